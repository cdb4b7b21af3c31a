// SPDX-License-Identifier: MIT
#include "manipulator/transform/TransformDrag.h"

#include "manipulator/drag/DragGeometry.h"
#include "manipulator/scene/TargetFrame.h"

#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbTransform/nbTransformModel.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace nbec::manipulator::transform {

namespace {

using Kind = DragParameters::Kind;

constexpr float kShortest = 1e-6F;
constexpr float kLeastAxisRatio = 0.01F;
constexpr float kLeastUniformFactor = 0.1F;
constexpr float kUniformSpeed = 0.1F;

/// Takes out of the other two axes of a frame what lies along one of them: the coordinate along
/// that axis is then a point's distance from the plane at right angles to it.
void straighten(osg::Matrix& frame, osg::UInt32 axis)
{
    const osg::Vec3f along = column(frame, axis);
    const float squaredLength = along.dot(along);
    if (!(squaredLength > 0.0F)) {
        return;
    }
    for (osg::UInt32 i = 1; i < 3; ++i) {
        osg::Vec4f& other = frame[(axis + i) % 3];
        const float part =
            (other[0] * along[0] + other[1] * along[1] + other[2] * along[2]) / squaredLength;
        for (osg::UInt32 row = 0; row < 3; ++row) {
            other[row] -= along[row] * part;
        }
    }
}

/// The vector that the frame of a node's parent maps onto one of the world about which it is
/// turned; a mirrored parent turns the other way.
osg::Vec3f turnAxisAbove(const osg::NodePtr& node, osg::Vec3f axisWorld)
{
    const osg::Matrix worldFromParent = parentToWorld(node);
    inverted(worldFromParent).multMatrixVec(axisWorld);
    return worldFromParent.det3() < 0.0F ? -axisWorld : axisWorld;
}

/// A node's rotation, without the rotation orientation of a Transform3D.
osg::Quaternion turnOf(const osg::NodePtr& node)
{
    const osg::Transform3DPtr transform = osg::Transform3DPtr::dcast(node->getCore());
    return transform != osg::NullFC
        ? transform->getRotationAsQuaternion()
        : nbRotationMath::toFloat(nbEulerUtils::QuatFromEul(
              nbEulerUtils::fromDegrees(nbNodeUtils::getTransformNodeRotation(node), 0)));
}

/// World direction in which an axis of the handle goes, unit length.
osg::Vec3f movementAxis(const osg::NodePtr& node, const GrabbedGizmo& grabbed, osg::UInt32 axis)
{
    const osg::Vec3f drawn = column(grabbed.frame, axis);
    if (!grabbed.isLocal || grabbed.action.kind != Kind::Offset) {
        return unitVector(drawn);
    }
    // Below a parent with different scales the node's own axes are not at right angles, as the
    // drawn ones are; the node goes along its own.
    osg::Vec3f own;
    own[axis] = 1.0F;
    own = rotated(turnOf(node), own);
    parentToWorld(node).multMatrixVec(own);
    return own.length() > 0.0F ? unitVector(own) : drawn;
}

/// Frame in which translation is measured: the node's own, without scale and pivots.
osg::Matrix translationFrame(const osg::NodePtr& node, const TransformStart& start,
                             const HandleAction& action)
{
    osg::Matrix own;
    own.setTransform(start.translation.local, start.rotation);
    osg::Matrix frame = parentToWorld(node);
    frame.mult(own);
    if (action.kind == Kind::Offset && action.axis() != kNoAxis) {
        // Below a parent with different scales the axes are not at right angles. Without this a
        // pointer that leaves the arrow's line sideways would pull the node along the arrow.
        straighten(frame, action.axis());
    }
    return frame;
}

/// Frame in which scaling is measured.
osg::Matrix scaleFrame(const GrabbedGizmo& grabbed, const osg::Pnt3f& start, const View& view)
{
    if (grabbed.action.axes != kAllAxes) {
        return grabbed.frame;
    }
    // Up the screen is more, wherever the cube is grabbed: the origin lies one gizmo unit below.
    osg::Matrix frame;
    view.facing().getValue(frame);
    const osg::Vec3f up = column(frame, 1);
    if (view.upAxis() == 2) {
        std::swap(frame[1], frame[2]);
        frame[1] *= -1.0F;
    }
    frame.setTranslate(start - up * grabbed.unit);
    return frame;
}

/// Chooses the path, and for a ring its frame.
void updateManipulatorPlane(TransformDrag& drag, const osg::NodePtr& node,
                            const GrabbedGizmo& grabbed, const View& view)
{
    const osg::Pnt3f center(column(grabbed.frame, 3));
    const osg::UInt32 axis = grabbed.action.axis();
    const osg::UInt32 normalAxis = grabbed.action.planeNormal();
    if (grabbed.action.kind == Kind::Angle) {
        drag.path = RingDrag::begin(center, column(grabbed.frame, axis), grabbed.grabbedPoint,
                                    view.getSight());
        drag.inverseDragFrame = inverted(drag.path.frame(axis));
    } else if (normalAxis != kNoAxis) {
        drag.path = RingDrag::flat(
            unitVector(movementAxis(node, grabbed, (normalAxis + 1) % 3)
                           .cross(movementAxis(node, grabbed, (normalAxis + 2) % 3))),
            center);
    } else if (axis != kNoAxis) {
        drag.path = RingDrag::flat(
            axisPlaneNormal(movementAxis(node, grabbed, axis), view.sightAt(center)), center);
    } else {
        drag.path = RingDrag::flat(view.sightAt(grabbed.grabbedPoint), grabbed.grabbedPoint);
    }
}

}  // namespace

// == Capturing

TransformStart captureStart(const osg::NodePtr& node, const GrabbedGizmo& grabbed)
{
    TransformStart start;
    if (node == osg::NullFC) {
        return start;
    }
    const osg::Transform3DPtr transform = osg::Transform3DPtr::dcast(node->getCore());
    const bool isScalePivot = grabbed.mode == ManipulatorMode::ScalePivot;
    const auto pivot =
        isScalePivot ? &nbTransformModel::getScalePivot : &nbTransformModel::getRotationPivot;
    start.translation = { nbTransformModel::getTranslation(node, false),
                          nbTransformModel::getTranslation(node, true) };
    start.scale = nbNodeUtils::getTransformNodeScale(node);
    start.pivot = { pivot(node, false), pivot(node, true) };
    if (transform != osg::NullFC) {
        start.anchor = pivotWorld(node, transform, grabbed.action.kind == Kind::Factor);
    }
    start.rotation = turnOf(node);
    if (grabbed.action.isTurn() && transform != osg::NullFC) {
        for (osg::UInt32 axis = 0; axis < 2; ++axis) {
            start.screenAxes[axis] = turnAxisAbove(node, column(grabbed.frame, axis));
        }
        const osg::UInt32 axis = grabbed.action.kind == Kind::Angle ? grabbed.action.axis() : 0;
        captureRotation(start,
                        nbEulerUtils::fromDegrees(
                            transform->getRotation(),
                            nbEulerUtils::getOrderFromString(transform->getEulerRotationOrder())),
                        unitVector(turnAxisAbove(node, column(grabbed.frame, axis))));
    }
    return start;
}

TransformDrag prepareManipulator(const osg::NodePtr& node, const GrabbedGizmo& grabbed,
                                 const View& view, DragTrack& track)
{
    TransformDrag drag;
    drag.action = grabbed.action;
    drag.unit = grabbed.unit;
    drag.axes = grabbed.axes;
    drag.center = osg::Pnt3f(column(grabbed.frame, 3));
    const osg::UInt32 axis = std::min(grabbed.action.axis(), grabbed.action.planeNormal());
    const bool isRing = grabbed.action.kind == Kind::Angle;
    if (axis != kNoAxis) {
        drag.handleAxis = unitVector(column(grabbed.frame, axis));
    }
    updateManipulatorPlane(drag, node, grabbed, view);
    drag.starts.push_back(captureStart(node, grabbed));

    const std::optional<osg::Line> ray = view.pointerRay();
    std::optional<osg::Pnt3f> met = drag.path.follow(ray, track);
    if (!met && !isRing) {
        // The handle was hit this side of the plane's horizon, the plane is met beyond it.
        drag.path.center = grabbed.grabbedPoint;
        met = drag.path.follow(ray, track);
    }
    drag.dragStartWorld = met.value_or(grabbed.grabbedPoint);
    if (!isRing) {
        drag.inverseDragFrame = inverted(translationFrame(node, drag.starts[0], grabbed.action));
    }
    drag.inverseScaleFrame = inverted(scaleFrame(grabbed, drag.dragStartWorld, view));
    drag.dragStartLocal = mapped(drag.inverseDragFrame, drag.dragStartWorld);
    track.last = drag.dragStartLocal;
    drag.scaleAnchor = mapped(drag.inverseScaleFrame, drag.dragStartWorld).subZero();
    return drag;
}

// == From a point in the drag's plane to drag parameters

osg::Vec3f offsetBetween(const TransformDrag& drag, const osg::Pnt3f& from, const osg::Pnt3f& to,
                         bool isLocal)
{
    // A scale handle that is held while the mode goes over to pivots moves none.
    const unsigned axes = drag.action.kind == Kind::Offset ? drag.action.axes : 0;
    return masked(isLocal ? mapped(drag.inverseDragFrame, to) - mapped(drag.inverseDragFrame, from)
                          : rotated(drag.axes.inverse(), to - from),
                  axes);
}

osg::Vec3f startPlace(const TransformDrag& drag, bool isLocal, bool ofPivot)
{
    const TransformStart& start = drag.starts.front();
    const Place& place = ofPivot ? start.pivot : start.translation;
    return isLocal ? rotated(start.rotation.inverse(), place.local)
                   : rotated(drag.axes.inverse(), place.world);
}

osg::Vec3f withSnappedPlace(const TransformDrag& drag, const osg::Vec3f& offset, double step,
                            bool isLocal)
{
    const osg::Vec3f place = startPlace(drag, isLocal, false);
    osg::Vec3f result;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        result[i] = static_cast<float>(snapped(place[i] + offset[i], step)) - place[i];
    }
    return masked(result, drag.action.axes);
}

osg::Vec3f withSnappedLength(const osg::Vec3f& offset, double step)
{
    const float length = offset.length();
    const float scale = length < kShortest ? 1.0F : 1.0F / length;
    return offset * (scale * static_cast<float>(snapped(length, step)));
}

double computeRotation(const osg::Pnt3f& from, const osg::Pnt3f& to, osg::UInt32 axis)
{
    const osg::UInt32 radial = (axis + 1) % 3;
    const osg::UInt32 tangent = (axis + 2) % 3;
    const double fromRadial = from[radial];
    const double fromTangent = from[tangent];
    const double toRadial = to[radial];
    const double toTangent = to[tangent];
    return std::atan2(fromRadial * toTangent - fromTangent * toRadial,
                      fromRadial * toRadial + fromTangent * toTangent);
}

double turnAtStart(const TransformStart& start)
{
    // Under a half turn about an axis w becomes minus the part along it.
    return 2.0 * std::atan2(-start.halfTurned.w(), start.quaternion.w());
}

double factorAt(const TransformDrag& drag, const osg::Pnt3f& point, osg::UInt32 upAxis)
{
    const bool isUniform = drag.action.axes == kAllAxes;
    const osg::Vec3f place = mapped(drag.inverseScaleFrame, point).subZero();
    if (drag.action.isPlane()) {
        const osg::Vec3f start = masked(drag.scaleAnchor, drag.action.axes);
        const float square = start.squareLength();
        return square < kShortest * kShortest * drag.unit * drag.unit
            ? 1.0
            : std::max(place.dot(start) / square, kLeastAxisRatio);
    }
    const osg::UInt32 axis = isUniform ? upAxis : drag.action.axis();
    if (axis == kNoAxis || std::abs(drag.scaleAnchor[axis]) < kShortest * drag.unit) {
        return 1.0;
    }
    const float ratio = place[axis] / drag.scaleAnchor[axis];
    if (!isUniform) {
        return std::max(ratio, kLeastAxisRatio);
    }
    // Deliberate: both branches are the same line, written twice.
    const float factor = ratio > 1.0F ? 1.0F + (ratio - 1.0F) * kUniformSpeed
                                      : 1.0F + (1.0F - ratio) * -kUniformSpeed;
    return std::max(factor, kLeastUniformFactor);
}

osg::Vec2d screenTurnAt(const TransformDrag& drag, const osg::Pnt3f& point)
{
    const osg::Vec3f way = rotated(drag.axes.inverse(), point - drag.dragStartWorld);
    const double radius = kTrackballRadius * drag.unit;
    return radius > 0.0 ? osg::Vec2d(-way.y() / radius, way.x() / radius) : osg::Vec2d();
}

// == From drag parameters to a target's value

osg::Vec3f moved(const TransformStart& start, const Place& place, const osg::Vec3f& offset,
                 bool isLocal)
{
    return isLocal ? place.local + rotated(start.rotation, offset) : place.world + offset;
}

osg::Vec3f turnedTranslation(const TransformDrag& drag, const TransformStart& start,
                             const osg::Vec2d& turnRad)
{
    const osg::Vec3f arm = start.anchor - drag.center;
    osg::Vec3f axis = drag.handleAxis;
    double angle = turnRad.x();
    if (drag.action.kind == Kind::Turns) {
        angle = turnRad.length();
        axis = unitVector(rotated(
            drag.axes,
            osg::Vec3f(static_cast<float>(turnRad.x()), static_cast<float>(turnRad.y()), 0.0F)));
    }
    osg::Quaternion turn;
    turn.setValueAsAxisRad(axis, static_cast<float>(angle));
    return start.translation.world + (rotated(turn, arm) - arm);
}

osg::Vec3f scaledTranslation(const TransformDrag& drag, const TransformStart& start, float factor)
{
    const osg::Vec3f arm = start.anchor - drag.center;
    const osg::Vec3f along = drag.handleAxis * drag.handleAxis.dot(arm);
    const bool isAlong = drag.action.axis() != kNoAxis;
    return start.translation.world + (isAlong ? along : arm - along) * (factor - 1.0F);
}

HalfTurn::HalfTurn(double turnRad)
    : sine(std::sin(turnRad / 2))
    , cosine(std::cos(turnRad / 2))
{ }

void captureRotation(TransformStart& start, const nbEulerAngles& anglesRad,
                     const osg::Vec3f& ringAxis)
{
    osg::Vec3d axis(ringAxis.x(), ringAxis.y(), ringAxis.z());
    axis.normalize();
    nbQuaterniond halfTurn;
    halfTurn.setValueAsQuat(axis.x(), axis.y(), axis.z(), 0.0);
    start.anglesRad = anglesRad;
    start.quaternion = nbEulerUtils::QuatFromEul(anglesRad);
    start.halfTurned = nbRotationMath::product(halfTurn, start.quaternion);
}

/// The rotation is (cos + sin * axis) * quaternion, multiplied out.
nbEulerAngles turnedAngles(const TransformStart& start, const HalfTurn& turn,
                           const nbEulerAngles& before)
{
    if (turn.sine == 0.0) {
        return start.anglesRad;  // to the bit
    }
    const nbQuaterniond& from = start.quaternion;
    const nbQuaterniond& over = start.halfTurned;
    nbQuaterniond turned;
    turned.setValueAsQuat(turn.cosine * from.x() + turn.sine * over.x(),
                          turn.cosine * from.y() + turn.sine * over.y(),
                          turn.cosine * from.z() + turn.sine * over.z(),
                          turn.cosine * from.w() + turn.sine * over.w());
    return nbEulerUtils::nearest(nbEulerUtils::EulFromQuat(turned, start.anglesRad.order), before);
}

nbEulerAngles turnedFreely(const TransformStart& start, const osg::Vec2d& turnRad,
                           const nbEulerAngles& before)
{
    TransformStart about;
    captureRotation(about, start.anglesRad,
                    unitVector(start.screenAxes[0] * static_cast<float>(turnRad.x()) +
                               start.screenAxes[1] * static_cast<float>(turnRad.y())));
    return turnedAngles(about, HalfTurn(turnRad.length()), before);
}

osg::Vec3f scaledBy(const TransformStart& start, unsigned axes, float factor, double step,
                    SnapRule rule)
{
    osg::Vec3f scale = start.scale;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        if (hasAxis(axes, i)) {
            const double wanted = scale[i] * factor;
            const double rounded = snapped(wanted, step);
            const bool isLost = rule == SnapRule::Exact && rounded == 0.0 && wanted != 0.0;
            scale[i] = static_cast<float>(isLost ? std::copysign(step, wanted) : rounded);
        }
    }
    return scale;
}

}  // namespace nbec::manipulator::transform
