// SPDX-License-Identifier: MIT
#include "manipulator/UniversalTransformManipulator2.h"
#include "manipulator/UniversalTransformManipulator2Drag.h"
#include "manipulator/UniversalTransformManipulator2Handles.h"
#include "manipulator/detail/ContainerReference.h"
#include "manipulator/detail/DragGeometry.h"
#include "manipulator/detail/PivotMarks.h"
#include "manipulator/detail/TargetFrame.h"

#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbTransform/nbTransformModel.h>

#include <cmath>

namespace nbec::manipulator {

using detail::column;
using detail::inverted;
using detail::mapped;
using detail::rotated;

namespace {

constexpr float kShortest = 1e-6F;

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

}  // namespace

void UniversalTransformManipulator2::prepareAll(const osg::NodePtr& node)
{
    prepareManipulator(node);
    for (const NodeTransformationInfo& info : transformationInfos) {
        captureStart(getTransform(info.index));
    }
    resolveTargets(node);
    placeMarks();
    drag->ownEdits.start(areApart(resolvedTargets));
    resolvedTargets.clear();
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
    captureStart(node);

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

/// @param node  null leaves a gap
void UniversalTransformManipulator2::captureStart(const osg::NodePtr& node)
{
    TransformStart& start = drag->starts.emplace_back();
    if (isRing(activeHandle)) {
        drag->turns.emplace_back();
    }
    if (node == osg::NullFC) {
        return;
    }
    const osg::Transform3DPtr transform = osg::Transform3DPtr::dcast(node->getCore());
    start.translationLocal = nbTransformModel::getTranslation(node, false);
    start.translationWorld = nbTransformModel::getTranslation(node, true);
    start.scale = transform->getScale();
    const bool isScalePivot = mode == ManipulatorMode::ScalePivot;
    start.pivotLocal = isScalePivot ? nbTransformModel::getScalePivot(node, false)
                                    : nbTransformModel::getRotationPivot(node, false);
    start.pivotWorld = isScalePivot ? nbTransformModel::getScalePivot(node, true)
                                    : nbTransformModel::getRotationPivot(node, true);
    start.rotation = transform->getRotationAsQuaternion();
    if (isRing(activeHandle)) {
        start.ringAxis = ringAxisAbove(node);
        const int order = nbEulerUtils::getOrderFromString(transform->getEulerRotationOrder());
        drag->turns.back() = detail::TurningAngles(
            nbEulerUtils::fromDegrees(transform->getRotation(), order), start.ringAxis);
    }
}

/// The axis that the frame of a node's parent maps onto that of the grabbed ring; a mirrored parent
/// turns the other way.
osg::Vec3f UniversalTransformManipulator2::ringAxisAbove(const osg::NodePtr& node) const
{
    const osg::Matrix worldFromParent = detail::parentToWorld(node);
    osg::Vec3f ringAxis = column(gizmoFrame(), axisOf(activeHandle));
    inverted(worldFromParent).multMatrixVec(ringAxis);
    ringAxis.normalize();
    return worldFromParent.det3() < 0.0F ? -ringAxis : ringAxis;
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
        drag->inverseDragFrame = inverted(detail::ringMatrix(ring, axis));
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
    const osg::Matrix placed = handles->getTree()->getToWorld();
    osg::Matrix frame = detail::orthonormalised(placed);
    frame.setTranslate(placed[3][0], placed[3][1], placed[3][2]);
    return frame;
}

osg::Matrix UniversalTransformManipulator2::translationFrame(const osg::NodePtr& node,
                                                             const osg::Transform3DPtr& transform)
{
    for (osg::UInt32 i = 0; i < 3; ++i) {
        const float factor = drag->starts[0].scale[i];
        drag->frameScale[i] = std::abs(factor) < kShortest ? 1.0F : factor;
    }
    osg::Matrix own;
    own.setTransform(transform->getTranslation(), drag->starts[0].rotation, drag->frameScale);
    osg::Matrix frame = detail::parentToWorld(node);
    frame.mult(own);
    if (const osg::UInt32 axis = axisOf(activeHandle); isTranslation(activeHandle) && axis < 3) {
        // Below a parent with different scales the axes are not at right angles. Without this a
        // pointer that leaves the arrow's line sideways would pull the node along the arrow.
        straighten(frame, axis);
    }
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
    const float unit = column(handles->getTree()->getToWorld(), 0).length();
    frame.setTranslate(start - up * unit);
    return frame;
}

}  // namespace nbec::manipulator
