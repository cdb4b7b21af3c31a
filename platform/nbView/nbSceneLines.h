// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGBoxVolume.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGRefPtr.h>

#include <utility>
#include <vector>

/// Lines of the world that belong to no object, two corners each, under the internal root: drawn in
/// every view of the scene, never picked.
class NB_PLATFORM_API nbSceneLines
{
public:
    /// @param color  red, green, blue, 0 .. 1, which no light changes  @param widthPx  logical
    /// pixels
    nbSceneLines(const osg::Color3f& color, float widthPx);
    nbSceneLines(const nbSceneLines&) = delete;
    nbSceneLines& operator=(const nbSceneLines&) = delete;
    /// Takes the lines out of the scene graph.
    ~nbSceneLines();

    /// @param corners  world; none: hidden
    void set(const std::vector<osg::Pnt3f>& corners);

    /// Geometry for such lines anywhere else. @param mode  GL_LINES or GL_LINE_LOOP
    static osg::GeometryPtr makeGeometry(osg::UInt32 mode, const osg::Color3f& color,
                                         float widthPx);
    /// Sets the corners of such a geometry, in its space.
    static void setCorners(const osg::GeometryPtr& lines, const std::vector<osg::Pnt3f>& corners);

private:
    osg::RefPtr<osg::NodePtr> node;
    osg::RefPtr<osg::GeometryPtr> lines;
};

/// Short lines at the corners of objects' bounding boxes, in one colour.
class NB_PLATFORM_API nbBoundsMarker
{
public:
    /// @param color  red, green, blue, 0 .. 1
    /// @param widthPx  of the lines, logical pixels
    nbBoundsMarker(const osg::Color3f& color, float widthPx)
        : lines(color, widthPx)
    { }

    /// Marks the bounds that the objects have now; edits the lines only if these differ from the
    /// last time.
    /// @return whether the lines changed
    bool mark(const std::vector<osg::NodePtr>& objects);

private:
    using Box = std::pair<osg::Pnt3f, osg::Pnt3f>;

    std::vector<Box> boxes;
    nbSceneLines lines;
};

/// A grid on the ground, the plane through the origin across the upward axis: cells of 1, 10, 0.1
/// or another power of ten, as the scene is large.
class NB_PLATFORM_API nbGroundGrid
{
public:
    nbGroundGrid();

    /// Lays the grid below a scene; edits the lines only if they are others than before.
    /// @param bounds  of the scene, world; empty: no grid
    /// @param upAxis  1 for y, 2 for z
    void lay(const osg::BoxVolume& bounds, osg::UInt32 upAxis);

    void hide();

private:
    nbSceneLines lines;
    osg::Pnt3f middle;
    float cell = 0.0F;  ///< 0: hidden
    osg::UInt32 up = 1;
};
