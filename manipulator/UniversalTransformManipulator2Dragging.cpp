// SPDX-License-Identifier: MIT
#include "manipulator/UniversalTransformManipulator2.h"
#include "manipulator/UniversalTransformManipulator2Drag.h"
#include "manipulator/UniversalTransformManipulator2Handles.h"
#include "manipulator/detail/DragGeometry.h"
#include "manipulator/detail/MessageSending.h"
#include "manipulator/detail/PivotMarks.h"
#include "manipulator/detail/TargetFrame.h"

#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbOpenSGExt/Transform3D.h>
#include <nbOpenSGUtils/nbNodePermission.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbTransform/nbTransformModel.h>
#include <nbUtils/nbLog.h>

#include <OpenSG/OSGFieldContainerFactory.h>

#include <algorithm>
#include <cmath>

namespace nbec::manipulator {

using detail::mapped;
using detail::rotated;

namespace {

using Active = UniversalTransformManipulator2::ActiveMode;
using Mode = UniversalTransformManipulator2::ManipulatorMode;

constexpr osg::Int32 kTransformPermission = 19;
constexpr float kShortest = 1e-6F;
constexpr float kLeastAxisRatio = 0.01F;
constexpr float kLeastUniformFactor = 0.1F;
constexpr float kUniformSpeed = 0.1F;
constexpr double kDegreeFactor = 3.1415927 / 360.0;

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

osg::Vec3f toDegrees(const nbEulerAngles& anglesRad)
{
    return nbEulerUtils::toVec3f(nbEulerUtils::toDegrees(anglesRad));
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
        // Where the pivots of a new transform are is part of the conversion, which is no undo step
        // by itself: a drag that ends where it began leaves none.
        const nbScopedUndo unrecorded(false);
        detail::setBothPivots(transform, calculateObjectCenter(transform, false));
    }
    return transform;
}

void UniversalTransformManipulator2::dragTo(const osg::NodePtr& node, const osg::Pnt3f& point)
{
    resolveTargets(node);
    drag->ownEdits.allow(0);
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
    resolvedTargets.clear();  // nothing is kept from step to step
}

// == The five transformations

void UniversalTransformManipulator2::resolveTargets(const osg::NodePtr& node)
{
    const osg::FieldContainerFactory& containers = *osg::FieldContainerFactory::the();
    resolvedTargets.resize(transformationInfos.size() + 1);
    resolvedTargets[0] = node;
    for (std::size_t i = 0; i < transformationInfos.size(); ++i) {
        resolvedTargets[i + 1] =
            osg::NodePtr::dcast(containers.getContainer(transformationInfos[i].nodeId));
    }
}

nbTransformModel::Value UniversalTransformManipulator2::valueFor(osg::UInt32 index,
                                                                 const osg::Vec3f& value) const
{
    return { { resolvedTargets[index], static_cast<osg::Int32>(index) }, value };
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

/// Whether a step's edits are of all targets, and the only ones since the drag began.
bool UniversalTransformManipulator2::areAllEdited(osg::UInt32 edited)
{
    return drag->ownEdits.allow(edited) && edited == resolvedTargets.size();
}

void UniversalTransformManipulator2::finishStep(const osg::NodePtr& node, bool describe,
                                                bool areMarksPlaced)
{
    if (describe && setDescription(node)) {
        resolvedTargets.clear();  // who listens to texts may have destroyed some
    }
    const bool isKnown = areMarksPlaced && drag->ownEdits.allow(0);
    updateManipulator(isKnown);
    drag->ownEdits.goOn(isKnown);
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
    const TransformStart* const starts = drag->starts.data();
    const auto count = static_cast<osg::UInt32>(resolvedTargets.size());
    const auto inWorld = [this, starts, delta](osg::UInt32 index) {
        return valueFor(index, starts[index].translationWorld + delta);
    };
    const auto inParent = [&](osg::UInt32 index) {
        const TransformStart& start = starts[index];
        return valueFor(index, start.translationLocal + rotated(start.rotation, delta));
    };
    const osg::UInt32 edited = worldSpace ? model->setTranslation(count, true, inWorld)
                                          : model->setTranslation(count, false, inParent);
    const bool isKnown = worldSpace && areAllEdited(edited);
    if (isKnown) {
        marks->moveTo(delta);
    }
    finishStep(node, true, isKnown);
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
    drag->turnedRad += angle;
    const detail::TurnAngle turned(drag->turnedRad);
    const auto angles = [&](osg::UInt32 index) {
        detail::TurningAngles& turning = drag->turns[index];
        turning.turnTo(turned);
        return valueFor(index, toDegrees(turning.getAngles()));
    };
    const osg::UInt32 edited =
        model->setRotation(static_cast<osg::UInt32>(resolvedTargets.size()), angles);
    finishStep(node, true, areAllEdited(edited));  // the pivots have stayed
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
    const osg::UInt32 only = isUniform ? 3 : axisOf(activeHandle);
    const double step = snappingActive() ? model->getScalePrecision() : 0.0;
    const TransformStart* const starts = drag->starts.data();
    const auto values = [&](osg::UInt32 index) {
        // The other axes have the factor 1.
        osg::Vec3f value = starts[index].scale;
        value.setValues(value.x() * factors.x(), value.y() * factors.y(), value.z() * factors.z());
        for (osg::UInt32 i = 0; i < 3 && step != 0.0; ++i) {
            if (isUniform || i == only) {
                value[i] = static_cast<float>(detail::snapped(value[i], step));
            }
        }
        return valueFor(index, value);
    };
    const osg::UInt32 edited =
        model->setScale(static_cast<osg::UInt32>(resolvedTargets.size()), values);
    finishStep(node, true, areAllEdited(edited));  // the pivots have stayed
}

void UniversalTransformManipulator2::translatePivot(const osg::NodePtr& node,
                                                    const osg::Pnt3f& point)
{
    // Deliberate: pivots never snap.
    const osg::Vec3f delta = handleDelta(point);
    const bool worldSpace = !m_LocalSpaceManipulator;
    const auto place = [&](osg::UInt32 index) {
        const TransformStart& start = drag->starts[index];
        return valueFor(index,
                        worldSpace ? start.pivotWorld + delta
                                   : start.pivotLocal + rotated(start.rotation, delta));
    };
    if (mode == ManipulatorMode::RotatePivot) {
        nbTransformModel::the()->setRotationPivot(static_cast<osg::UInt32>(resolvedTargets.size()),
                                                  worldSpace, place);
    } else {
        nbTransformModel::the()->setScalePivot(static_cast<osg::UInt32>(resolvedTargets.size()),
                                               worldSpace, place);
    }
    finishStep(node, true, false);
}

void UniversalTransformManipulator2::rotatePivot(const osg::NodePtr& node, const osg::Pnt3f& point)
{
    const double angle = computeRotation(drag->startLocal, mapped(drag->inverseDragFrame, point),
                                         axisOf(activeHandle));
    nbTransformModel::the()->setRotationPivotOrientation(
        static_cast<osg::UInt32>(resolvedTargets.size()), [&](osg::UInt32 index) {
            const nbEulerAngles from = drag->turns[index].getAngles();
            const nbQuaterniond turned =
                nbRotationMath::product(detail::turnAbout(drag->starts[index].ringAxis, angle),
                                        nbEulerUtils::QuatFromEul(from));
            return valueFor(index, toDegrees(nbEulerUtils::EulFromQuat(turned, from.order)));
        });
    // Deliberate: the description stays as it is.
    finishStep(node, false, false);
}

}  // namespace nbec::manipulator
