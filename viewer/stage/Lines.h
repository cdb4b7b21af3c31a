// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBoxVolume.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGRefPtr.h>

#include <utility>
#include <vector>

namespace viewer {

/// Lines of one colour that no light changes.
/// @param mode  GL_LINES or GL_LINE_LOOP  @param widthPx  logical pixels
osg::GeometryPtr makeLines(osg::UInt32 mode, const osg::Color3f& color, float widthPx);

/// Sets their corners.
void setCorners(const osg::GeometryPtr& lines, const std::vector<osg::Pnt3f>& corners);

/// Lines of the world that belong to no object, two corners each, under the scene graph's internal
/// root.
class HelperLines
{
public:
    HelperLines(const osg::Color3f& color, float widthPx);
    HelperLines(const HelperLines&) = delete;
    HelperLines& operator=(const HelperLines&) = delete;
    /// Takes the lines out of the scene graph.
    ~HelperLines();

    void set(const std::vector<osg::Pnt3f>& corners);

private:
    osg::NodeRefPtr node;
    osg::RefPtr<osg::GeometryPtr> lines;
};

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

/// A grid on the ground, the plane through the origin across the upward axis: cells of 1, 10, 0.1
/// or another power of ten, as the scene is large.
class GroundGrid
{
public:
    GroundGrid();

    /// Lays the grid below a scene; edits the lines only if they are others than before.
    /// @param bounds  of the scene, world; empty: no grid
    /// @param upAxis  1 for y, 2 for z
    void lay(const osg::BoxVolume& bounds, osg::UInt32 upAxis);

    void hide();

private:
    HelperLines lines;
    osg::Pnt3f middle;
    float cell = 0.0F;  ///< 0: hidden
    osg::UInt32 up = 1;
};

}  // namespace viewer
