// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "GeometrySoup.h"
#include "PickView.h"
#include "ScreenGeometry.h"

namespace nbec::interaction::detail {

/// What a pointer found in a HandleTable.
struct HandleHit
{
    osg::UInt32 nodeId = 0;
    osg::Pnt3f point;  ///< world space
    osg::Vec3f normal;  ///< world space, unit length
};

/// From how far handles are hit, and which of several as near.
struct HandleReach
{
    float px;  ///< device pixels, >= 0
    bool isSmallerFirst = false;  ///< the one that takes less of the screen, then the foremost
};

/// The handles of a gizmo as plain shapes, and their picture on screen for one placement and one
/// view.
///
/// A pick works on the picture alone: boxes around handles and around runs of primitives first,
/// then distances to segments and triangles in pixels. Nothing of the scene graph is touched.
class HandleTable
{
public:
    /// Removes all handles.
    void clear();

    /// Appends a handle; the order of the calls is the order of the tree.
    /// @param nodeId        container id that a hit reports
    /// @param shape         positions in the frame of the geometry
    /// @param tableFromGeo  places the shape in the frame of the table
    /// @param halfWidthPx   half of what is drawn across a line or point, device pixels, >= 0
    void add(osg::UInt32 nodeId, const GeometrySoup& shape, const osg::Matrix& tableFromGeo,
             float halfWidthPx);

    /// Draws the picture anew.
    /// @param worldFromTable  4x4, column vectors
    void project(const osg::Matrix& worldFromTable, const PickView& view);

    /// Finds the handle at a position on screen.
    /// The least distance beyond the drawn half width wins, then the smaller where that is asked
    /// for, then the least depth, then the first in the tree.
    /// @param position  device pixels
    /// @return false if nothing lies within reach
    bool pick(const ScreenPoint& position, const HandleReach& reach, HandleHit& hit);

    /// The same, but handles of a lesser rank win before those of a greater one, wherever within
    /// the tolerance they lie.
    /// @param rankOf  of a node by its id, from 0; asked only of nodes within the tolerance
    bool pick(const ScreenPoint& position, const HandleReach& reach,
              const std::function<int(osg::UInt32)>& rankOf, HandleHit& hit);

private:
    /// A point, segment or triangle of a handle; points repeat their vertex.
    struct Primitive
    {
        std::uint32_t vertices[3];
        bool isTriangle;
    };

    struct Handle
    {
        osg::UInt32 nodeId;
        float halfWidthPx;
        bool isMirrored;  ///< its matrix within the table turns the winding round
        std::size_t primitivesEnd;
    };

    /// A primitive as it appears on screen, cut off at the near plane.
    struct ScreenPrimitive
    {
        ScreenBox box;
        ScreenPoint corners[3];
        float depthOverW[3];  ///< both quotients are linear on screen, their ratio is the depth
        float oneOverW[3];
        std::uint32_t primitive;
        bool isTriangle;
    };

    struct ScreenHandle
    {
        ScreenBox box;
        std::size_t runsEnd;
    };

    /// A few primitives that follow each other, with one box around them.
    struct Run
    {
        ScreenBox box;
        std::uint32_t begin;
        std::uint32_t end;
    };

    struct Candidate
    {
        std::uint32_t handle;
        std::uint32_t screenPrimitive;
        float distancePx;  ///< beyond the drawn half width
        float depth;
        ScreenPoint nearest;
    };

    /// A vertex on screen; without meaning unless it is in front of the near plane and finite.
    struct ScreenCorner
    {
        ScreenPoint point;
        float depthOverW;
        float oneOverW;
        bool isVisible;
    };

    ScreenCorner toCorner(const ScreenProjection::Projected& p) const;
    void projectHandle(std::size_t first, std::size_t end);
    void projectPrimitive(std::uint32_t index);
    void projectCut(std::uint32_t index);
    void addScreenPrimitive(const ScreenCorner& a, const ScreenCorner& b, const ScreenCorner& c,
                            std::uint32_t index);
    void closeRuns(std::size_t first);
    bool choose(float bestPx, const HandleReach& reach, HandleHit& hit);
    float sizeOf(const Candidate& candidate) const;

    bool isNear(std::size_t handle, const ScreenPoint& position, float tolerancePx) const
    {
        return screenHandles[handle].box.isNear(position,
                                                tolerancePx + handles[handle].halfWidthPx);
    }

    void collect(std::uint32_t handle, const ScreenPoint& position, float tolerancePx,
                 float& bestPx);
    static float depthAt(const ScreenPrimitive& primitive, const float* weights);
    osg::Vec3f normalOf(const Candidate& winner) const;

    std::vector<Handle> handles;
    std::vector<Primitive> primitives;
    std::vector<osg::Pnt3f> positions;  ///< frame of the table

    // The picture
    osg::Matrix tableToWorld;
    ScreenProjection projection;
    std::vector<ScreenProjection::Projected> projected;  ///< one per position
    std::vector<ScreenCorner> corners;  ///< one per position
    std::vector<ScreenPrimitive> screenPrimitives;
    std::vector<Run> runs;
    std::vector<ScreenHandle> screenHandles;
    ScreenBox box;
    float largestHalfWidthPx = 0.0F;

    std::vector<Candidate> candidates;  ///< scratch of pick, kept for its memory
};

}  // namespace nbec::interaction::detail
