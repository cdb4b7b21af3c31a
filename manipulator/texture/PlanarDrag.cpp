// SPDX-License-Identifier: MIT
#include "manipulator/texture/PlanarDrag.h"

#include "manipulator/drag/DragGeometry.h"
#include "manipulator/texture/PlanarHandles.h"

#include <algorithm>
#include <cmath>

namespace nbec::manipulator::texture {

namespace {

using Kind = DragParameters::Kind;

constexpr float kShortest = 1e-6F;
constexpr float kLeastLength = 1e-12F;
constexpr float kLeastAxisFactor = 0.01F;
constexpr float kLeastUniformFactor = 0.001F;

/// Whether a length can be divided by.
bool hasLength(float length)
{
    return std::abs(length) >= kLeastLength;
}

float usableLength(float length)
{
    return hasLength(length) ? length : 1.0F;
}

/// Signed half of a side after one of its ends has moved; never less than a hundredth. A side
/// without length has no least one, and grows whichever way its end goes.
/// @param half      distance of the end from the centre
/// @param outwards  half of the end's motion, along its direction from the centre
float draggedHalf(float half, float outwards)
{
    return hasLength(half) ? half * std::max(1.0F + outwards / half, kLeastAxisFactor) : outwards;
}

/// Gives two halves the ratio that they had: a corner goes along the diagonal, an edge takes the
/// other side along. Sides without length have no ratio.
void keepRatio(const osg::Vec3f& from, osg::Vec3f& to, const osg::Vec3f& side)
{
    if (!hasLength(from.x()) || !hasLength(from.y())) {
        return;
    }
    const float x = to.x() / from.x();
    const float y = to.y() / from.y();
    const float xWeight = side[0] != 0.0F ? from.x() * from.x() : 0.0F;
    const float yWeight = side[1] != 0.0F ? from.y() * from.y() : 0.0F;
    const float factor = (x * xWeight + y * yWeight) / (xWeight + yWeight);
    to[0] = from.x() * factor;
    to[1] = from.y() * factor;
}

/// Place on the z axis of a frame that a hit covers on screen: where the sight to the hit meets the
/// plane of the axis that faces the viewer. The hit's own z where the axis points at the viewer.
osg::Pnt3f onDepthAxis(const osg::Matrix& worldFromAxes, const osg::Pnt3f& hit,
                       const osg::Vec3f& sightAtHit, const osg::Vec3f& sightAtCenter)
{
    const osg::Pnt3f center(column(worldFromAxes, 3));
    const osg::Vec3f normal = axisPlaneNormal(unitVector(column(worldFromAxes, 2)), sightAtCenter);
    const float slope = normal.dot(sightAtHit);
    return std::abs(slope) >= kShortest ? hit + sightAtHit * (normal.dot(center - hit) / slope)
                                        : hit;
}

}  // namespace

osg::Matrix ProjectionFrame::worldFromAxes() const
{
    osg::Matrix axes;
    axes.setTransform(translation, rotation);
    osg::Matrix result = worldFromObject;
    result.mult(axes);
    return result;
}

osg::Vec3f ProjectionFrame::halfExtents() const
{
    return osg::Vec3f(scale.x() * extentPerScale.x(), scale.y() * extentPerScale.y(),
                      scale.z() * extentPerScale.z());
}

osg::Vec3f ProjectionDrag::motion(const osg::Pnt3f& from, const osg::Pnt3f& to) const
{
    return mapped(axesFromWorld, to) - mapped(axesFromWorld, from);
}

osg::Plane dragPlaneOf(const ProjectionFrame& frame, const HandleAction& action,
                       const osg::Vec3f& sight)
{
    const osg::Matrix worldFromAxes = frame.worldFromAxes();
    const osg::Pnt3f center(column(worldFromAxes, 3));
    const bool isResizing = action.kind == Kind::Factor || action.kind == Kind::HalfSizes;
    if (action.kind == Kind::None || (isResizing && action.axis() == 2)) {
        return osg::Plane(sight, center);
    }
    if (action.axis() != kNoAxis && (action.kind == Kind::Offset || action.kind == Kind::Factor)) {
        const osg::Vec3f along = unitVector(column(worldFromAxes, action.axis()));
        return osg::Plane(axisPlaneNormal(along, sight), center);
    }
    // At right angles to x and y, which a skewed object's z need not be.
    const osg::Vec3f normal =
        unitVector(column(worldFromAxes, 0)).cross(unitVector(column(worldFromAxes, 1)));
    return osg::Plane(unitVector(normal), center);
}

ProjectionDrag beginDrag(const ProjectionFrame& frame, const HandleRow& handle,
                         const osg::Vec3f& sight)
{
    ProjectionDrag drag;
    drag.action = handle.action;
    drag.side = planarSideOf(handle);
    drag.frame = frame;
    drag.axesFromWorld = inverted(frame.worldFromAxes());
    drag.plane = dragPlaneOf(frame, handle.action, sight);
    return drag;
}

// == From two points of the drag's plane to drag parameters

osg::Vec3f offsetBetween(const ProjectionDrag& drag, const osg::Pnt3f& from, const osg::Pnt3f& to)
{
    return masked(drag.motion(from, to), drag.action.axes);
}

float turnAboutZ(const osg::Vec3f& from, const osg::Vec3f& to)
{
    const osg::Vec3d start(from.x(), from.y(), 0.0);  // in double, for tiny and huge objects
    const osg::Vec3d end(to.x(), to.y(), 0.0);
    return static_cast<float>(std::atan2(start.cross(end).z(), start.dot(end)));
}

std::optional<float> angleBetween(const ProjectionDrag& drag, const osg::Pnt3f& from,
                                  const osg::Pnt3f& to)
{
    const osg::Vec3f start = mapped(drag.axesFromWorld, from).subZero();
    const osg::Vec3f end = mapped(drag.axesFromWorld, to).subZero();
    if (!(std::hypot(start.x(), start.y()) > 0.0F) || !(std::hypot(end.x(), end.y()) > 0.0F)) {
        return std::nullopt;
    }
    return turnAboutZ(start, end);
}

float factorBetween(const ProjectionDrag& drag, const osg::Pnt3f& from, const osg::Pnt3f& to)
{
    const osg::UInt32 axis = drag.action.axis();
    if (axis == kNoAxis) {
        const osg::Vec3f motion = drag.motion(from, to);
        const osg::Vec3f& projection = drag.frame.projectionScale;
        const float greatest = std::max(motion.x() / usableLength(projection.x()),
                                        motion.y() / usableLength(projection.y()));
        return std::max(greatest + 1.0F, kLeastUniformFactor);
    }
    const float start = mapped(drag.axesFromWorld, from)[axis];
    // Nothing can be divided by a start at the centre.
    const float least = kShortest * std::abs(usableLength(drag.frame.scale[axis]));
    const float factor =
        std::abs(start) < least ? 1.0F : mapped(drag.axesFromWorld, to)[axis] / start;
    const bool isMirrored = axis == 2 ? factor <= 0.0F : factor < 0.0F;
    return isMirrored ? kLeastAxisFactor : factor;
}

osg::Vec3f halfSizesBetween(const ProjectionDrag& drag, const osg::Pnt3f& from,
                            const osg::Pnt3f& to, const Sights& sights, bool keepsRatio)
{
    const osg::Vec3f& side = drag.side;
    const bool isZPlane = side[2] != 0.0F;
    osg::Vec3f motion = drag.motion(from, to);
    if (isZPlane) {
        const osg::Matrix axes = drag.frame.worldFromAxes();
        const auto onAxis = [&](const osg::Pnt3f& hit, const osg::Vec3f& sight) {
            return drag.motion(from, onDepthAxis(axes, hit, sight, sights.center));
        };
        motion = onAxis(to, sights.to) - onAxis(from, sights.from);
    }
    const osg::Vec3f before = drag.frame.halfExtents();
    osg::Vec3f after = before;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        // Of a side only one end moves, the depth is counted from the projection plane.
        const float share = i < 2 ? 0.5F : 1.0F;
        if (side[i] != 0.0F) {
            after[i] = draggedHalf(before[i], share * motion[i] * side[i]);
        }
    }
    if (keepsRatio && !isZPlane) {
        keepRatio(before, after, side);
    }
    return after;
}

// == From drag parameters to values of the projection

osg::Vec3f scaledProjection(const ProjectionDrag& drag, float factor, bool keepsRatio)
{
    osg::Vec3f scale = drag.frame.scale;
    const bool isDepth = drag.action.axis() == 2;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        const bool isOwn = keepsRatio || hasAxis(drag.action.axes, i);
        if (isDepth ? i == 2 : i < 2 && isOwn) {
            scale[i] *= factor;
        }
    }
    return scale;
}

osg::Vec3f scaleOfHalfSizes(const ProjectionDrag& drag, const osg::Vec3f& halfSizes)
{
    const osg::Vec3f before = drag.frame.halfExtents();
    osg::Vec3f scale = drag.frame.scale;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        if (halfSizes[i] != before[i]) {
            scale[i] = (hasLength(before[i]) ? halfSizes[i] : std::abs(halfSizes[i])) /
                drag.frame.extentPerScale[i];
        }
    }
    return scale;
}

osg::Vec3f shiftOfHalfSizes(const ProjectionDrag& drag, const osg::Vec3f& halfSizes)
{
    const osg::Vec3f growth = halfSizes - drag.frame.halfExtents();
    return osg::Vec3f(growth.x() * drag.side.x(), growth.y() * drag.side.y(), 0.0F);
}

}  // namespace nbec::manipulator::texture
