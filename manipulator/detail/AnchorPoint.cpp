// SPDX-License-Identifier: MIT
#include "manipulator/detail/AnchorPoint.h"

#include "manipulator/detail/ContainerReference.h"
#include "manipulator/detail/DragGeometry.h"

namespace nbec::manipulator::detail {

void AnchorPoint::set(const osg::NodePtr& node, const osg::Pnt3f& position)
{
    nodeId = containerId(node);
    localPosition = position;
    worldPosition = position;
    if (node != osg::NullFC) {
        follow(node->getToWorld());
    }
}

osg::NodePtr AnchorPoint::getNode() const
{
    return resolveContainer<osg::NodePtr>(nodeId);
}

void AnchorPoint::follow(const osg::Matrix& worldFromNode)
{
    worldPosition = mapped(worldFromNode, localPosition);
}

}  // namespace nbec::manipulator::detail
