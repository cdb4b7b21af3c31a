// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <functional>

#include "GeometrySoup.h"
#include "PickView.h"

using RTCGeometry = struct RTCGeometryTy*;
using RTCScene = struct RTCSceneTy*;

namespace nbec::interaction::detail {

/// See EmbreeDevice.h.
using BuildMonitor = std::function<bool(double)>;

/// Nearest triangle that a ray met in a PickTree, in the tree's frame.
struct TreeHit
{
    osg::Vec3f normal;  ///< (p1 - p0) x (p2 - p0), not unit
    std::uint32_t triangle = 0;
};

/// Axis-parallel box in the frame of its owner.
struct PickBounds
{
    osg::Pnt3f min;
    osg::Pnt3f max;
    bool isEmpty = true;

    /// Non-finite points are left out.
    void extend(const osg::Pnt3f& p);
};

/// Finds the nearest triangle of one geometry along a ray.
/// Above a few triangles through a bounding-volume tree, below that one by one.
class PickTree
{
public:
    /// Up to this many triangles a loop is quicker than a tree, and a tree's memory is saved.
    static constexpr std::size_t kDirectTriangles = 16;

    PickTree() = default;

    ~PickTree() { dropTree(); }

    PickTree(const PickTree&) = delete;
    PickTree& operator=(const PickTree&) = delete;

    /// Takes the triangles of a geometry; also when they have changed. If only positions differ
    /// from the last call, the tree keeps its shape and only its boxes are refitted (from the
    /// second such call on; now and then it is rebuilt).
    /// @param monitor  watches the building and lets any thread do it, see commitScene()
    /// @return false if no tree could be built, or the monitor has answered no; triangles are
    /// tested one by one then
    bool assign(GeometrySoup soup, const BuildMonitor& monitor = {});

    /// Finds the nearest triangle with 0 <= t <= ray.tFar, both faces.
    /// @param ray  in the tree's frame; tFar becomes the t of the hit
    /// @return false on a miss, which changes nothing, and for a ray as ItemTree::intersect()
    bool intersect(PickRay& ray, TreeHit& hit) const;

    /// Of the triangles.
    const PickBounds& getBounds() const { return bounds; }

    /// All positions of the geometry, those of lines and points too.
    const std::vector<osg::Pnt3f>& getPositions() const { return soup.positions; }

    /// Corners of a triangle that was hit.
    std::array<osg::Pnt3f, 3> getTriangle(std::uint32_t number) const
    {
        const std::uint32_t* const corners = &soup.triangles[3 * std::size_t(number)];
        return { soup.positions[corners[0]], soup.positions[corners[1]],
                 soup.positions[corners[2]] };
    }

    std::size_t getTriangleCount() const { return soup.triangles.size() / 3; }

private:
    void shareArrays();
    bool buildTree(bool expectsRefits, const BuildMonitor& monitor);
    bool refitTree();
    void dropTree();
    void measure();
    bool intersectDirectly(PickRay& ray, TreeHit& hit) const;

    GeometrySoup soup;
    PickBounds bounds;
    RTCScene scene = nullptr;
    RTCGeometry mesh = nullptr;  ///< owned by the scene
    bool isRefittable = false;
    std::size_t refitsSinceBuild = 0;
};

}  // namespace nbec::interaction::detail
