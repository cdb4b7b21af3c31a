// SPDX-License-Identifier: MIT
#include "manipulator/UniversalTransformManipulator2.h"
#include "manipulator/UniversalTransformManipulator2Drag.h"
#include "manipulator/detail/ContainerReference.h"
#include "manipulator/detail/DragGeometry.h"
#include "manipulator/detail/MessageSending.h"
#include "manipulator/detail/TargetFrame.h"

#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUtils/nbNodePermission.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbTransform/nbTransformModel.h>
#include <nbUtils/nbLog.h>

#include <algorithm>
#include <cmath>

namespace nbec::manipulator {

namespace {

using Active = UniversalTransformManipulator2::ActiveMode;
using Mode = UniversalTransformManipulator2::ManipulatorMode;

constexpr osg::Int32 kTransformPermission = 19;
constexpr float kShortest = 1e-6F;
constexpr float kLeastAxisRatio = 0.01F;
constexpr float kLeastUniformFactor = 0.1F;
constexpr float kUniformSpeed = 0.1F;
constexpr double kDegreeFactor = 3.1415927 / 360.0;

bool isRing(Active handle)
{
    return handle >= Active::RotateX && handle <= Active::RotateZ;
}

bool isTranslation(Active handle)
{
    return handle >= Active::TranslateX && handle <= Active::TranslateYZ;
}

bool isScale(Active handle)
{
    return handle >= Active::ScaleX && handle <= Active::ScaleUniform;
}

/// Axis of a handle of one axis: 0, 1, 2; 3 for all others.
osg::UInt32 axisOf(Active handle)
{
    const auto value = static_cast<osg::UInt32>(handle);
    if (isRing(handle)) {
        return value - static_cast<osg::UInt32>(Active::RotateX);
    }
    if (value >= static_cast<osg::UInt32>(Active::TranslateX) &&
        value <= static_cast<osg::UInt32>(Active::TranslateZ)) {
        return value - static_cast<osg::UInt32>(Active::TranslateX);
    }
    if (value >= static_cast<osg::UInt32>(Active::ScaleX) &&
        value <= static_cast<osg::UInt32>(Active::ScaleZ)) {
        return value - static_cast<osg::UInt32>(Active::ScaleX);
    }
    return 3;
}

/// Axis at right angles to a plane handle: z of xy, y of xz, x of yz; 3 for all others.
osg::UInt32 planeNormalAxis(Active handle)
{
    switch (handle) {
    case Active::TranslateXY:
        return 2;
    case Active::TranslateXZ:
        return 1;
    case Active::TranslateYZ:
        return 0;
    default:
        return 3;
    }
}

/// Keeps the components along which a handle moves; none of a handle that is no arrow or plane.
osg::Vec3f maskedByHandle(const osg::Vec3f& delta, Active handle)
{
    const osg::UInt32 axis = isTranslation(handle) ? axisOf(handle) : 3;
    const osg::UInt32 normal = planeNormalAxis(handle);
    osg::Vec3f masked;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        const bool isKept = normal < 3 ? i != normal : i == axis;
        masked[i] = isKept ? delta[i] : 0.0F;
    }
    return masked;
}

osg::Vec3f snappedLength(const osg::Vec3f& delta, double step)
{
    const float length = delta.length();
    const float scale = length < kShortest ? 1.0F : 1.0F / length;
    return delta * (scale * static_cast<float>(detail::snapped(length, step)));
}

osg::Vec3f rotated(const osg::Quaternion& rotation, osg::Vec3f vector)
{
    rotation.multVec(vector, vector);
    return vector;
}

/// Quaternion of an angle about an axis, in double. @param axis  one not longer than 1e-6 gives the
/// identity
osg::Quaterniond turnAbout(const osg::Vec3f& axis, double angleRad)
{
    osg::Quaterniond turn;
    const double length = axis.length();
    if (length > kShortest) {
        const double sine = std::sin(angleRad / 2) / length;
        turn.setValueAsQuat(axis.x() * sine, axis.y() * sine, axis.z() * sine,
                            std::cos(angleRad / 2));
    }
    return turn;
}

osg::Vec3f column(const osg::Matrix& matrix, osg::UInt32 index)
{
    return osg::Vec3f(matrix[index][0], matrix[index][1], matrix[index][2]);
}

/// A frame whose axis number `axis` is the ring's normal and the next one the radial direction.
osg::Matrix matrixOf(const detail::RingFrame& ring, osg::UInt32 axis)
{
    osg::Matrix frame;
    const auto setColumn = [&frame](osg::UInt32 index, const osg::Vec3f& value) {
        frame[index % 3] = osg::Vec4f(value.x(), value.y(), value.z(), 0.0F);
    };
    setColumn(axis, ring.normal);
    setColumn(axis + 1, ring.radial);
    setColumn(axis + 2, ring.tangent);
    frame.setTranslate(ring.center);
    return frame;
}

osg::Matrix inverted(const osg::Matrix& matrix)
{
    osg::Matrix result;
    matrix.inverse(result);
    return result;
}

osg::Pnt3f mapped(const osg::Matrix& matrix, osg::Pnt3f point)
{
    matrix.multMatrixPnt(point);
    return point;
}

}  // namespace

// == Events

bool UniversalTransformManipulator2::processManipulator(ManipulatorInteractionContext* /*ctx*/,
                                                        const std::string& /*hint*/)
{
    if (activeHandle == ActiveMode::None) {
        return false;
    }
    const osg::NodePtr selected = getNode();
    if (selected == osg::NullFC || selected->getParent() == osg::NullFC) {
        return false;
    }
    if (transformationInfos.empty() && !nbNodePermission::allows(selected, kTransformPermission)) {
        nbLog::warning("Selected node cannot be transformed.");
        return false;
    }
    const nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    if (widget == nullptr) {
        return false;
    }
    const osg::NodePtr node = makeTransform(detail::editedNode(selected));
    if (node == osg::NullFC) {
        return false;
    }
    if (!prepared) {
        prepareAll(node);
        return true;
    }
    osg::Line ray;
    osg::Pnt3f point;
    if (detail::pointerRay(*widget, ray) && detail::intersectPlane(drag->plane, ray, point)) {
        dragTo(node, point);
    }
    return true;
}

bool UniversalTransformManipulator2::stopManipulator(ManipulatorInteractionContext* /*ctx*/,
                                                     const std::string& /*hint*/)
{
    if (activeHandle == ActiveMode::None) {
        return false;
    }
    grabbing = false;
    prepared = false;
    endHover();
    setDescription(osg::NodePtr());
    if (getNode() == osg::NullFC) {
        return false;
    }
    showActiveManipulator();
    return true;
}

osg::NodePtr UniversalTransformManipulator2::makeTransform(const osg::NodePtr& node)
{
    if (osg::Transform3DPtr::dcast(node->getCore()) != osg::NullFC) {
        return node;
    }
    const osg::NodePtr transform = nbNodeUtils::convertToTransform3DNode(node);
    if (transform != osg::NullFC && node != nbScenegraph::getRootNode()) {
        const osg::Pnt3f center = calculateObjectCenter(transform, false);
        nbNodeUtils::setTransformNodeRotatePivot(transform, center.x(), center.y(), center.z(),
                                                 true, -1);
        nbNodeUtils::setTransformNodeScalePivot(transform, center.x(), center.y(), center.z(), true,
                                                -1);
    }
    return transform;
}

void UniversalTransformManipulator2::dragTo(const osg::NodePtr& node, const osg::Pnt3f& point)
{
    if (mode == ManipulatorMode::RotatePivot || mode == ManipulatorMode::ScalePivot) {
        if (isRing(activeHandle)) {
            rotatePivot(node, point);
        } else {
            translatePivot(node, point);
        }
    } else if (isRing(activeHandle)) {
        rotate(node, point);
    } else if (isTranslation(activeHandle)) {
        translate(node, point);
    } else if (isScale(activeHandle)) {
        scale(node, point);
    }
}

// == Preparation

void UniversalTransformManipulator2::prepareAll(const osg::NodePtr& node)
{
    prepareManipulator(node);
    for (NodeTransformationInfo& info : transformationInfos) {
        const osg::NodePtr further = getTransform(info.index);
        if (further != osg::NullFC) {
            prepareManipulator(further, info);
        }
    }
    prepared = true;
}

osg::NodePtr UniversalTransformManipulator2::getTransform(osg::UInt32 index)
{
    if (index == 0) {
        const osg::NodePtr selected = getNode();
        return selected != osg::NullFC ? makeTransform(detail::editedNode(selected)) : selected;
    }
    const osg::NodePtr further =
        detail::resolveContainer<osg::NodePtr>(transformationInfos[index - 1].nodeId);
    return further != osg::NullFC ? makeTransform(further) : further;
}

void UniversalTransformManipulator2::prepareManipulator(const osg::NodePtr& node)
{
    const osg::Transform3DPtr transform = osg::Transform3DPtr::dcast(node->getCore());
    *drag = TransformDrag();
    updateManipulatorPlane(node);
    drag->start = captureStart(node);

    const nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    osg::Line ray;
    drag->startWorld = grabbedPoint;
    if (widget != nullptr && detail::pointerRay(*widget, ray) &&
        !detail::intersectPlane(drag->plane, ray, drag->startWorld)) {
        // The handle was hit this side of the plane's horizon, the plane is met beyond it.
        drag->plane = osg::Plane(drag->plane.getNormal(), grabbedPoint);
        detail::intersectPlane(drag->plane, ray, drag->startWorld);
    }
    if (!isRing(activeHandle)) {
        drag->inverseDragFrame = inverted(translationFrame(node, transform));
    }
    drag->inverseScaleFrame = inverted(scaleFrame(drag->startWorld));
    drag->startLocal = mapped(drag->inverseDragFrame, drag->startWorld);
    drag->lastRotationPoint = drag->startLocal;
    drag->scaleAnchor = mapped(drag->inverseScaleFrame, drag->startWorld).subZero();
}

void UniversalTransformManipulator2::prepareManipulator(const osg::NodePtr& node,
                                                        NodeTransformationInfo& info)
{
    info.start = captureStart(node);
}

TransformStart UniversalTransformManipulator2::captureStart(const osg::NodePtr& node) const
{
    const osg::Transform3DPtr transform = osg::Transform3DPtr::dcast(node->getCore());
    TransformStart start;
    start.translationLocal = nbTransformModel::getTranslation(node, false);
    start.translationWorld = nbTransformModel::getTranslation(node, true);
    start.scale = transform->getScale();
    const bool isScalePivot = mode == ManipulatorMode::ScalePivot;
    start.pivotLocal = isScalePivot ? nbTransformModel::getScalePivot(node, false)
                                    : nbTransformModel::getRotationPivot(node, false);
    start.pivotWorld = isScalePivot ? nbTransformModel::getScalePivot(node, true)
                                    : nbTransformModel::getRotationPivot(node, true);
    start.rotation = transform->getRotationAsQuaternion();
    const int order = nbEulerUtils::getOrderFromString(transform->getEulerRotationOrder());
    start.accumulated = nbEulerUtils::fromDegrees(transform->getRotation(), order);
    if (isRing(activeHandle)) {
        // The axis that the parent's frame maps onto the drawn one; a mirrored parent turns the
        // other way.
        const osg::Matrix worldFromParent = detail::parentToWorld(node);
        start.ringAxis = column(gizmoFrame(), axisOf(activeHandle));
        inverted(worldFromParent).multMatrixVec(start.ringAxis);
        start.ringAxis.normalize();
        start.ringSign = worldFromParent.det3() < 0.0F ? -1.0 : 1.0;
    }
    return start;
}

void UniversalTransformManipulator2::updateManipulatorPlane(const osg::NodePtr& node)
{
    const osg::Matrix frame = gizmoFrame();
    const osg::Pnt3f center(frame[3][0], frame[3][1], frame[3][2]);
    const osg::UInt32 axis = axisOf(activeHandle);
    const osg::UInt32 normalAxis = planeNormalAxis(activeHandle);
    if (isRing(activeHandle)) {
        const detail::RingFrame ring = detail::ringDragFrame(
            center, column(frame, axis), grabbedPoint, detail::viewDirection(grabbedPoint));
        drag->inverseDragFrame = inverted(matrixOf(ring, axis));
        drag->plane = osg::Plane(ring.normal, ring.center);
    } else if (normalAxis < 3) {
        osg::Vec3f normal = movementAxis(node, (normalAxis + 1) % 3)
                                .cross(movementAxis(node, (normalAxis + 2) % 3));
        normal.normalize();
        drag->plane = osg::Plane(normal, center);
    } else if (axis < 3) {
        drag->plane = osg::Plane(
            detail::axisPlaneNormal(movementAxis(node, axis), detail::viewDirection(center)),
            center);
    } else {
        drag->plane = osg::Plane(detail::viewDirection(grabbedPoint), grabbedPoint);
    }
}

osg::Vec3f UniversalTransformManipulator2::movementAxis(const osg::NodePtr& node,
                                                        osg::UInt32 axis) const
{
    osg::Vec3f direction = column(gizmoFrame(), axis);
    if (m_LocalSpaceManipulator && isTranslation(activeHandle)) {
        // Below a parent with different scales the node's own axes are not at right angles, as the
        // drawn ones are; the node goes along its own.
        osg::Vec3f own;
        own[axis] = 1.0F;
        own = rotated(osg::Transform3DPtr::dcast(node->getCore())->getRotationAsQuaternion(), own);
        detail::parentToWorld(node).multMatrixVec(own);
        direction = own.length() < kShortest ? direction : own;
    }
    direction.normalize();
    return direction;
}

osg::Matrix UniversalTransformManipulator2::gizmoFrame() const
{
    const osg::Matrix placed = handleTree->getToWorld();
    osg::Matrix frame = detail::orthonormalised(placed);
    frame.setTranslate(placed[3][0], placed[3][1], placed[3][2]);
    return frame;
}

osg::Matrix UniversalTransformManipulator2::translationFrame(const osg::NodePtr& node,
                                                             const osg::Transform3DPtr& transform)
{
    for (osg::UInt32 i = 0; i < 3; ++i) {
        const float factor = drag->start.scale[i];
        drag->frameScale[i] = std::abs(factor) < kShortest ? 1.0F : factor;
    }
    osg::Matrix own;
    own.setTransform(transform->getTranslation(), drag->start.rotation, drag->frameScale);
    osg::Matrix frame = detail::parentToWorld(node);
    frame.mult(own);
    return frame;
}

osg::Matrix UniversalTransformManipulator2::scaleFrame(const osg::Pnt3f& start) const
{
    if (activeHandle != ActiveMode::ScaleUniform) {
        return gizmoFrame();
    }
    // Up the screen is more, wherever the cube is grabbed: the origin lies one gizmo unit below.
    osg::Pnt3f from;
    osg::Pnt3f at;
    osg::Vec3f cameraUp;
    nbOSGWidget::getFromAtUp(-1, from, at, cameraUp);
    osg::Vec3f sight = at - from;
    sight.normalize();
    osg::Vec3f right = sight.cross(cameraUp);
    right.normalize();
    const osg::Vec3f up = right.cross(sight);
    osg::Matrix frame;
    if (nbOSGWidget::isCameraZUp()) {
        frame.setValue(right, sight, up);
    } else {
        frame.setValue(right, up, -sight);
    }
    frame[3][3] = 1.0F;
    const float unit = column(handleTree->getToWorld(), 0).length();
    frame.setTranslate(start - up * unit);
    return frame;
}

// == The five transformations

const TransformStart& UniversalTransformManipulator2::startOf(osg::UInt32 index) const
{
    return index == 0 ? drag->start : transformationInfos[index - 1].start;
}

nbTransformModel::Value UniversalTransformManipulator2::valueFor(const osg::NodePtr& node,
                                                                 osg::UInt32 index,
                                                                 const osg::Vec3f& value) const
{
    const osg::NodePtr target = index == 0
        ? node
        : detail::resolveContainer<osg::NodePtr>(transformationInfos[index - 1].nodeId);
    return { { target, static_cast<osg::Int32>(index) }, value };
}

osg::UInt32 UniversalTransformManipulator2::targetCount() const
{
    return static_cast<osg::UInt32>(transformationInfos.size() + 1);
}

osg::Vec3f UniversalTransformManipulator2::handleDelta(const osg::Pnt3f& point) const
{
    if (!m_LocalSpaceManipulator) {
        return maskedByHandle(point - drag->startWorld, activeHandle);
    }
    osg::Vec3f delta = mapped(drag->inverseDragFrame, point) - drag->startLocal;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        delta[i] *= drag->frameScale[i];
    }
    return maskedByHandle(delta, activeHandle);
}

void UniversalTransformManipulator2::finishStep(const osg::NodePtr& node, bool describe)
{
    if (describe) {
        setDescription(node);
    }
    updateManipulator();
    detail::sendTransformationChanged();
}

void UniversalTransformManipulator2::translate(const osg::NodePtr& node, const osg::Pnt3f& point)
{
    if (node->getCore() == osg::NullFC) {
        return;
    }
    nbTransformModel* const model = nbTransformModel::the();
    osg::Vec3f delta = handleDelta(point);
    if (snappingActive()) {
        delta = snappedLength(delta, model->getTranslationPrecision());
    }
    const bool worldSpace = !m_LocalSpaceManipulator;
    model->setTranslation(targetCount(), worldSpace, [&](osg::UInt32 index) {
        const TransformStart& start = startOf(index);
        return valueFor(node, index,
                        worldSpace ? start.translationWorld + delta
                                   : start.translationLocal + rotated(start.rotation, delta));
    });
    finishStep(node, true);
}

double UniversalTransformManipulator2::computeRotation(const osg::Pnt3f& from, const osg::Pnt3f& to,
                                                       osg::UInt32 axis)
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

void UniversalTransformManipulator2::rotate(const osg::NodePtr& node, const osg::Pnt3f& point)
{
    nbTransformModel* const model = nbTransformModel::the();
    const osg::Pnt3f rotationPoint = mapped(drag->inverseDragFrame, point);
    double angle = computeRotation(drag->lastRotationPoint, rotationPoint, axisOf(activeHandle));
    if (snappingActive()) {
        angle = detail::snapped(angle, 2.0 * model->getRotationPrecision() * kDegreeFactor);
        if (angle == 0.0) {
            // Deliberate: the last point stays, so that small motions add up until they pass half a
            // step.
            setDescription(node);
            return;
        }
    }
    drag->lastRotationPoint = rotationPoint;
    RotationStep step(angle);
    accumulate(drag->start, step);
    for (NodeTransformationInfo& info : transformationInfos) {
        accumulate(info.start, step);
    }
    model->setRotation(targetCount(), [&](osg::UInt32 index) {
        const nbEulerAngles degrees = nbEulerUtils::toDegrees(startOf(index).accumulated);
        return valueFor(node, index, nbEulerUtils::toVec3f(degrees));
    });
    finishStep(node, true);
}

void UniversalTransformManipulator2::accumulate(TransformStart& start, RotationStep& step)
{
    start.accumulated = nbEulerUtils::multiply(
        step.about(start.ringAxis, start.ringSign, start.accumulated.order), start.accumulated);
}

const nbEulerAngles& RotationStep::about(const osg::Vec3f& newAxis, double newSign, int order)
{
    if (isKnown && newAxis == axis && newSign == sign && order == angles.order) {
        return angles;
    }
    isKnown = true;
    axis = newAxis;
    sign = newSign;
    angles = nbEulerUtils::EulFromQuat(turnAbout(axis, angleRad * sign), 0);
    if (angles.order != order) {
        angles = nbEulerUtils::convertOrder(angles, order);
    }
    return angles;
}

osg::Vec3f UniversalTransformManipulator2::scaleFactors(const osg::Pnt3f& point) const
{
    osg::Vec3f factors(1.0F, 1.0F, 1.0F);
    const osg::Pnt3f scalePoint = mapped(drag->inverseScaleFrame, point);
    const bool isUniform = activeHandle == ActiveMode::ScaleUniform;
    const osg::UInt32 upAxis = nbOSGWidget::isCameraZUp() ? 2 : 1;
    const osg::UInt32 axis = isUniform ? upAxis : axisOf(activeHandle);
    if (axis > 2 || std::abs(drag->scaleAnchor[axis]) < kShortest) {
        return factors;
    }
    const float ratio = scalePoint[axis] / drag->scaleAnchor[axis];
    if (!isUniform) {
        factors[axis] = std::max(ratio, kLeastAxisRatio);
        return factors;
    }
    // Deliberate: both branches are the same line, written twice.
    const float factor = ratio > 1.0F ? 1.0F + (ratio - 1.0F) * kUniformSpeed
                                      : 1.0F + (1.0F - ratio) * -kUniformSpeed;
    const float limited = std::max(factor, kLeastUniformFactor);
    return osg::Vec3f(limited, limited, limited);
}

void UniversalTransformManipulator2::scale(const osg::NodePtr& node, const osg::Pnt3f& point)
{
    if (node->getCore() == osg::NullFC) {
        return;
    }
    nbTransformModel* const model = nbTransformModel::the();
    const osg::Vec3f factors = scaleFactors(point);
    const bool isUniform = activeHandle == ActiveMode::ScaleUniform;
    const double step = snappingActive() ? model->getScalePrecision() : 0.0;
    model->setScale(targetCount(), [&](osg::UInt32 index) {
        osg::Vec3f value = startOf(index).scale;
        for (osg::UInt32 i = 0; i < 3; ++i) {
            if (isUniform || i == axisOf(activeHandle)) {
                value[i] = static_cast<float>(
                    detail::snapped(static_cast<double>(value[i] * factors[i]), step));
            }
        }
        return valueFor(node, index, value);
    });
    finishStep(node, true);
}

void UniversalTransformManipulator2::translatePivot(const osg::NodePtr& node,
                                                    const osg::Pnt3f& point)
{
    // Deliberate: pivots never snap.
    const osg::Vec3f delta = handleDelta(point);
    const bool worldSpace = !m_LocalSpaceManipulator;
    const auto place = [&](osg::UInt32 index) {
        const TransformStart& start = startOf(index);
        return valueFor(node, index,
                        worldSpace ? start.pivotWorld + delta
                                   : start.pivotLocal + rotated(start.rotation, delta));
    };
    if (mode == ManipulatorMode::RotatePivot) {
        nbTransformModel::the()->setRotationPivot(targetCount(), worldSpace, place);
    } else {
        nbTransformModel::the()->setScalePivot(targetCount(), worldSpace, place);
    }
    finishStep(node, true);
}

void UniversalTransformManipulator2::rotatePivot(const osg::NodePtr& node, const osg::Pnt3f& point)
{
    const double angle = computeRotation(drag->startLocal, mapped(drag->inverseDragFrame, point),
                                         axisOf(activeHandle));
    nbTransformModel::the()->setRotationPivotOrientation(targetCount(), [&](osg::UInt32 index) {
        const TransformStart& start = startOf(index);
        osg::Quaterniond turned = turnAbout(start.ringAxis, angle * start.ringSign);
        turned.mult(nbEulerUtils::QuatFromEul(start.accumulated));
        turned.normalize();
        const nbEulerAngles angles = nbEulerUtils::EulFromQuat(turned, start.accumulated.order);
        return valueFor(node, index, nbEulerUtils::toVec3f(nbEulerUtils::toDegrees(angles)));
    });
    // Deliberate: the description stays as it is.
    finishStep(node, false);
}

}  // namespace nbec::manipulator
