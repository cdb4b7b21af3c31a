// SPDX-License-Identifier: MIT
#include "HandleTable.h"

#include <nbOpenSGExt/nbIsFinite.h>

#include <algorithm>
#include <cmath>

namespace nbec::interaction::detail {

namespace {

/// Distances that differ by less count as equal, so that the depth decides (device pixels).
constexpr float kDistanceTiePx = 0.5F;
/// Depths that differ by less than this part of the nearer one count as equal, so that the tree's
/// order decides.
constexpr float kDepthTie = 1e-4F;
/// Primitives that share one box: few enough to test one by one, many enough that the boxes are
/// few.
constexpr std::size_t kRunLength = 8;

ScreenProjection::Projected interpolate(const ScreenProjection::Projected& a,
                                        const ScreenProjection::Projected& b, double s)
{
    ScreenProjection::Projected result {};
    for (std::size_t i = 0; i < 4; ++i) {
        result.clip[i] = a.clip[i] + s * (b.clip[i] - a.clip[i]);
    }
    result.depth = a.depth + s * (b.depth - a.depth);
    return result;
}

/// Cuts a polygon or segment off at the near plane.
/// @param corners  in: count corners; out: up to count + 1
/// @return number of corners left
std::size_t clipAtNearPlane(ScreenProjection::Projected* corners, std::size_t count)
{
    ScreenProjection::Projected result[4];
    std::size_t kept = 0;
    const std::size_t edges = count == 2 ? 1 : count;
    for (std::size_t i = 0; i < count; ++i) {
        const auto& current = corners[i];
        const auto& next = corners[(i + 1) % count];
        if (current.isVisible()) {
            result[kept++] = current;
        }
        if (i < edges && current.isVisible() != next.isVisible()) {
            const double d0 = current.nearDistance();
            result[kept++] = interpolate(current, next, d0 / (d0 - next.nearDistance()));
        }
    }
    std::copy(result, result + kept, corners);
    return kept;
}

}  // namespace

// == Building

void HandleTable::clear()
{
    handles.clear();
    primitives.clear();
    positions.clear();
}

void HandleTable::add(osg::UInt32 nodeId, const GeometrySoup& shape,
                      const osg::Matrix& tableFromGeo, float halfWidthPx)
{
    const auto base = static_cast<std::uint32_t>(positions.size());
    for (const osg::Pnt3f& local : shape.positions) {
        osg::Pnt3f placed;
        tableFromGeo.multMatrixPnt(local, placed);
        positions.push_back(placed);
    }
    for (std::size_t i = 0; i + 2 < shape.triangles.size(); i += 3) {
        const std::uint32_t* v = &shape.triangles[i];
        primitives.push_back({ { base + v[0], base + v[1], base + v[2] }, true });
    }
    for (std::size_t i = 0; i + 1 < shape.segments.size(); i += 2) {
        const std::uint32_t* v = &shape.segments[i];
        primitives.push_back({ { base + v[0], base + v[1], base + v[1] }, false });
    }
    for (const std::uint32_t v : shape.points) {
        primitives.push_back({ { base + v, base + v, base + v }, false });
    }
    handles.push_back(
        { nodeId, halfWidthPx, linearDeterminant(tableFromGeo) < 0.0, primitives.size() });
}

// == Projecting

void HandleTable::project(const osg::Matrix& worldFromTable, const PickView& view)
{
    tableToWorld = worldFromTable;
    projection = ScreenProjection(view);
    screenPrimitives.clear();
    runs.clear();
    screenHandles.clear();
    box = ScreenBox();
    largestHalfWidthPx = 0.0F;
    if (!projection.isValid()) {
        return;
    }
    projected.resize(positions.size());
    corners.resize(positions.size());
    for (std::size_t i = 0; i < positions.size(); ++i) {
        osg::Pnt3f world;
        worldFromTable.multMatrixPnt(positions[i], world);
        projected[i] = projection.project(world);
        corners[i] = toCorner(projected[i]);
    }
    std::size_t first = 0;
    for (const Handle& handle : handles) {
        projectHandle(first, handle.primitivesEnd);
        largestHalfWidthPx = std::max(largestHalfWidthPx, handle.halfWidthPx);
        first = handle.primitivesEnd;
    }
}

void HandleTable::projectHandle(std::size_t first, std::size_t end)
{
    const std::size_t firstRun = runs.size();
    const std::size_t firstOnScreen = screenPrimitives.size();
    for (std::size_t i = first; i < end; ++i) {
        projectPrimitive(static_cast<std::uint32_t>(i));
    }
    closeRuns(firstOnScreen);
    ScreenBox handleBox;
    for (std::size_t i = firstRun; i < runs.size(); ++i) {
        handleBox.extend(runs[i].box);
    }
    screenHandles.push_back({ handleBox, runs.size() });
    box.extend(handleBox);
}

HandleTable::ScreenCorner HandleTable::toCorner(const ScreenProjection::Projected& p) const
{
    // False for a position that is not finite, too.
    if (!(p.isVisible() && p.clip[3] > 0.0)) {
        return {};
    }
    const double oneOverW = 1.0 / p.clip[3];
    return { projection.toScreen(p), static_cast<float>(p.depth * oneOverW),
             static_cast<float>(oneOverW), true };
}

void HandleTable::projectPrimitive(std::uint32_t index)
{
    const std::uint32_t* v = primitives[index].vertices;
    if (corners[v[0]].isVisible && corners[v[1]].isVisible && corners[v[2]].isVisible) {
        addScreenPrimitive(corners[v[0]], corners[v[1]], corners[v[2]], index);
    } else if (nbIsFinite(positions[v[0]]) && nbIsFinite(positions[v[1]]) &&
               nbIsFinite(positions[v[2]])) {
        projectCut(index);
    }
}

void HandleTable::projectCut(std::uint32_t index)
{
    const Primitive& primitive = primitives[index];
    ScreenProjection::Projected cut[4] = { projected[primitive.vertices[0]],
                                           projected[primitive.vertices[1]],
                                           projected[primitive.vertices[2]] };
    const std::size_t count = clipAtNearPlane(cut, primitive.isTriangle ? 3 : 2);
    ScreenCorner left[4];
    for (std::size_t i = 0; i < count; ++i) {
        left[i] = toCorner(cut[i]);
        if (!left[i].isVisible) {
            // A corner on the near plane itself may round to its other side.
            cut[i].clip[2] = -cut[i].clip[3];
            left[i] = toCorner(cut[i]);
        }
    }
    if (!primitive.isTriangle && count == 2) {
        addScreenPrimitive(left[0], left[1], left[1], index);
    }
    for (std::size_t i = 2; primitive.isTriangle && i < count; ++i) {
        addScreenPrimitive(left[0], left[i - 1], left[i], index);
    }
}

void HandleTable::addScreenPrimitive(const ScreenCorner& a, const ScreenCorner& b,
                                     const ScreenCorner& c, std::uint32_t index)
{
    if (!a.isVisible || !b.isVisible || !c.isVisible) {
        return;
    }
    ScreenPrimitive result { ScreenBox(),
                             { a.point, b.point, c.point },
                             { a.depthOverW, b.depthOverW, c.depthOverW },
                             { a.oneOverW, b.oneOverW, c.oneOverW },
                             index,
                             primitives[index].isTriangle };
    result.box.extend(a.point);
    result.box.extend(b.point);
    result.box.extend(c.point);
    screenPrimitives.push_back(result);
}

void HandleTable::closeRuns(std::size_t first)
{
    for (std::size_t begin = first; begin < screenPrimitives.size(); begin += kRunLength) {
        const std::size_t end = std::min(begin + kRunLength, screenPrimitives.size());
        Run run { ScreenBox(), static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(end) };
        for (std::size_t i = begin; i < end; ++i) {
            run.box.extend(screenPrimitives[i].box);
        }
        runs.push_back(run);
    }
}

// == Picking

bool HandleTable::pick(const ScreenPoint& position, const HandleReach& reach, HandleHit& hit)
{
    const float tolerancePx = reach.px;
    if (!box.isNear(position, tolerancePx + largestHalfWidthPx)) {
        return false;
    }
    candidates.clear();
    float bestPx = tolerancePx;
    for (std::size_t i = 0; i < screenHandles.size(); ++i) {
        if (isNear(i, position, tolerancePx)) {
            collect(static_cast<std::uint32_t>(i), position, tolerancePx, bestPx);
        }
    }
    return choose(bestPx, reach, hit);
}

bool HandleTable::pick(const ScreenPoint& position, const HandleReach& reach,
                       const std::function<int(osg::UInt32)>& rankOf, HandleHit& hit)
{
    const float tolerancePx = reach.px;
    if (!pick(position, reach, hit)) {
        return false;
    }
    int bestRank = rankOf(hit.nodeId);
    if (bestRank <= 0) {
        return true;
    }
    candidates.clear();
    float bestPx = tolerancePx;
    for (std::size_t i = 0; i < screenHandles.size(); ++i) {
        const auto known = static_cast<std::ptrdiff_t>(candidates.size());
        float ownPx = tolerancePx;
        if (isNear(i, position, tolerancePx)) {
            collect(static_cast<std::uint32_t>(i), position, tolerancePx, ownPx);
        }
        if (candidates.size() == static_cast<std::size_t>(known)) {
            continue;
        }
        const int rank = rankOf(handles[i].nodeId);
        if (rank > bestRank) {
            candidates.erase(candidates.begin() + known, candidates.end());
            continue;
        }
        if (rank < bestRank) {
            candidates.erase(candidates.begin(), candidates.begin() + known);
            bestPx = ownPx;
        }
        bestRank = rank;
        bestPx = std::min(bestPx, ownPx);
    }
    return choose(bestPx, reach, hit);
}

/// How far the handle of a candidate reaches over the screen, both ways together.
float HandleTable::sizeOf(const Candidate& candidate) const
{
    const ScreenBox& of = screenHandles[candidate.handle].box;
    return of.maxX - of.minX + of.maxY - of.minY;
}

/// The one that wins of the collected candidates. @param bestPx  their least distance
bool HandleTable::choose(float bestPx, const HandleReach& reach, HandleHit& hit)
{
    // In sieves rather than by one comparison: "nearly equal" is not transitive, so sorting by it
    // has no meaning.
    const auto keep = [this](const auto& isKept) {
        candidates.erase(std::remove_if(candidates.begin(), candidates.end(),
                                        [&](const Candidate& each) { return !isKept(each); }),
                         candidates.end());
    };
    const auto leastOf = [this](const auto& valueOf) {
        float least = ScreenBox::kFar;
        for (const Candidate& each : candidates) {
            least = std::min(least, valueOf(each));
        }
        return least;
    };
    keep([&](const Candidate& each) { return each.distancePx <= bestPx + kDistanceTiePx; });
    if (reach.isSmallerFirst) {
        const float least = leastOf([this](const Candidate& each) { return sizeOf(each); });
        keep([&](const Candidate& each) { return sizeOf(each) <= least + kDistanceTiePx; });
    }
    const float leastDepth = leastOf([](const Candidate& each) { return each.depth; });
    const float depthLimit = leastDepth + kDepthTie * std::abs(leastDepth);
    for (const Candidate& candidate : candidates) {
        if (candidate.depth <= depthLimit) {
            hit = { handles[candidate.handle].nodeId,
                    projection.pointAt(candidate.nearest, candidate.depth), normalOf(candidate) };
            return true;
        }
    }
    return false;
}

void HandleTable::collect(std::uint32_t handle, const ScreenPoint& position, float tolerancePx,
                          float& bestPx)
{
    const float halfWidthPx = handles[handle].halfWidthPx;
    const std::size_t runsEnd = screenHandles[handle].runsEnd;
    for (std::size_t r = handle > 0 ? screenHandles[handle - 1].runsEnd : 0; r < runsEnd; ++r) {
        float reachPx = std::min(tolerancePx, bestPx + kDistanceTiePx) + halfWidthPx;
        if (!runs[r].box.isNear(position, reachPx)) {
            continue;
        }
        for (std::uint32_t i = runs[r].begin; i < runs[r].end; ++i) {
            const ScreenPrimitive& primitive = screenPrimitives[i];
            if (!primitive.box.isNear(position, reachPx)) {
                continue;
            }
            const ScreenPoint* c = primitive.corners;
            const ScreenNearest nearest = primitive.isTriangle
                ? nearestOnTriangle(position, c[0], c[1], c[2], reachPx)
                : nearestOnSegment(position, c[0], c[1]);
            if (!(nearest.squaredDistancePx <= reachPx * reachPx)) {
                continue;
            }
            // The drawn width belongs to lines; a triangle has none beyond its edges.
            const float drawnPx = primitive.isTriangle ? 0.0F : halfWidthPx;
            const float distancePx = std::max(std::sqrt(nearest.squaredDistancePx) - drawnPx, 0.0F);
            if (distancePx > std::min(tolerancePx, bestPx + kDistanceTiePx)) {
                continue;
            }
            const float* w = nearest.weights;
            candidates.push_back({ handle,
                                   i,
                                   distancePx,
                                   depthAt(primitive, w),
                                   { w[0] * c[0].x + w[1] * c[1].x + w[2] * c[2].x,
                                     w[0] * c[0].y + w[1] * c[1].y + w[2] * c[2].y } });
            bestPx = std::min(bestPx, distancePx);
            reachPx = std::min(tolerancePx, bestPx + kDistanceTiePx) + halfWidthPx;
        }
    }
}

float HandleTable::depthAt(const ScreenPrimitive& primitive, const float* weights)
{
    float depthOverW = 0.0F;
    float oneOverW = 0.0F;
    for (std::size_t i = 0; i < 3; ++i) {
        depthOverW += weights[i] * primitive.depthOverW[i];
        oneOverW += weights[i] * primitive.oneOverW[i];
    }
    return depthOverW / oneOverW;
}

osg::Vec3f HandleTable::normalOf(const Candidate& winner) const
{
    const Primitive& primitive = primitives[screenPrimitives[winner.screenPrimitive].primitive];
    if (primitive.isTriangle) {
        const osg::Pnt3f& origin = positions[primitive.vertices[0]];
        osg::Vec3f normal = (positions[primitive.vertices[1]] - origin)
                                .cross(positions[primitive.vertices[2]] - origin);
        if (handles[winner.handle].isMirrored) {
            normal = -normal;
        }
        const osg::Vec3f world = transformNormal(tableToWorld, normal);
        if (world.squareLength() > 0.0F) {
            return world;
        }
    }
    return -projection.rayThrough(winner.nearest).direction;
}

}  // namespace nbec::interaction::detail
