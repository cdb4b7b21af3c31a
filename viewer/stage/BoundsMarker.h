// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/stage/Lines.h"

#include <utility>
#include <vector>

namespace viewer {

/// Short lines at the corners of objects' bounding boxes, in one colour.
class BoundsMarker
{
public:
    /// @param color  red, green, blue, 0 .. 1
    /// @param widthPx  of the lines, logical pixels
    BoundsMarker(const osg::Color3f& color, float widthPx)
        : lines(color, widthPx)
    { }

    /// Marks the bounds that the objects have now; edits the lines only if these differ from the
    /// last time.
    /// @return whether the lines changed
    bool mark(const std::vector<osg::NodePtr>& objects);

private:
    using Box = std::pair<osg::Pnt3f, osg::Pnt3f>;

    std::vector<Box> boxes;
    HelperLines lines;
};

}  // namespace viewer
