// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGExt/Line2D.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGNode.h>

#include <QtCore/QLineF>

/// Converts between the values of the document and those of the scene graph.
class NB_PLATFORM_API nbQRPCConverter
{
public:
    /// The nearest line in single precision.
    static osg::Line2D toLine2D(const QLineF& line);

    /// The same line, exactly.
    static QLineF fromLine2D(const osg::Line2D& line);

    /// Id by which the document knows a node; 0 for null.
    static osg::UInt32 nodeToId(const osg::NodePtr& node);
};
