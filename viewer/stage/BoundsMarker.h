// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGVector.h>

#include <vector>

namespace viewer {

/// Short lines at the corners of objects' bounding boxes, in one colour, under the scene graph's
/// internal root.
class BoundsMarker
{
public:
    /// @param color  red, green, blue, 0 .. 1
    /// @param widthPx  of the lines, logical pixels
    BoundsMarker(const osg::Color3f& color, float widthPx);
    BoundsMarker(const BoundsMarker&) = delete;
    BoundsMarker& operator=(const BoundsMarker&) = delete;
    /// Takes the lines out of the scene graph.
    ~BoundsMarker();

    /// Marks the bounds that the objects have now; edits the lines only if these differ from the
    /// last time.
    void mark(const std::vector<osg::NodePtr>& objects);

private:
    using Box = std::pair<osg::Pnt3f, osg::Pnt3f>;

    void rebuild();

    std::vector<Box> boxes;
    osg::NodeRefPtr node;
    osg::RefPtr<osg::GeometryPtr> lines;
};

}  // namespace viewer
