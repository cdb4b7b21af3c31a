// SPDX-License-Identifier: MIT
#include "nbQRPCConverter.h"

osg::Line2D nbQRPCConverter::toLine2D(const QLineF& line)
{
    return { osg::Pnt2f(static_cast<osg::Real32>(line.x1()), static_cast<osg::Real32>(line.y1())),
             osg::Pnt2f(static_cast<osg::Real32>(line.x2()), static_cast<osg::Real32>(line.y2())) };
}

QLineF nbQRPCConverter::fromLine2D(const osg::Line2D& line)
{
    return { line.getFirst().x(), line.getFirst().y(), line.getSecond().x(), line.getSecond().y() };
}

osg::UInt32 nbQRPCConverter::nodeToId(const osg::NodePtr& node)
{
    return node != osg::NullFC ? node.getFieldContainerId() : 0;
}
