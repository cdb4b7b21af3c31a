// SPDX-License-Identifier: MIT
#include "manipulator/PlanarTextureManipulator.h"
#include "manipulator/PlanarTextureManipulatorState.h"
#include "manipulator/detail/DragGeometry.h"
#include "manipulator/detail/MessageSending.h"
#include "manipulator/detail/TargetFrame.h"
#include "manipulator/detail/ValueText.h"

#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbUtils/nbMessage.h>

#include <QtCore/QString>

#include <algorithm>
#include <cmath>

namespace nbec::manipulator {

using detail::mapped;

namespace {

using Active = PlanarTextureManipulator::ActiveMode;

constexpr float kShortest = 1e-6F;
constexpr float kLeastAxisFactor = 0.01F;
constexpr float kLeastUniformFactor = 0.001F;
constexpr const char* kChangedSuffix = "::changedPlanarManipulator";

/// Edge index of a handle: its mode less this; the corners, the edges and the Z plane count from 0.
constexpr int kEdgeModeOffset = 10;

osg::Vec3f unitVector(osg::Vec3f vector)
{
    const float length = vector.length();
    return length > 0.0F ? vector * (1.0F / length) : osg::Vec3f();
}

/// Ratio of two places on an axis; 1 where the start is too near the centre to divide by.
float factorOf(float hit, float start)
{
    return std::abs(start) < kShortest ? 1.0F : hit / start;
}

// Deliberate: x and y accept a factor of exactly 0, z does not.
float planeFactor(float hit, float start)
{
    const float factor = factorOf(hit, start);
    return factor < 0.0F ? kLeastAxisFactor : factor;
}

float depthFactor(float hit, float start)
{
    const float factor = factorOf(hit, start);
    return factor <= 0.0F ? kLeastAxisFactor : factor;
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
void keepRatio(const osg::Vec3f& from, osg::Vec3f& to, const std::array<int, 3>& side)
{
    if (!hasLength(from.x()) || !hasLength(from.y())) {
        return;
    }
    const float x = to.x() / from.x();
    const float y = to.y() / from.y();
    const float xWeight = side[0] != 0 ? from.x() * from.x() : 0.0F;
    const float yWeight = side[1] != 0 ? from.y() * from.y() : 0.0F;
    const float factor = (x * xWeight + y * yWeight) / (xWeight + yWeight);
    to[0] = from.x() * factor;
    to[1] = from.y() * factor;
}

/// Place on the z axis of a frame that a hit covers on screen: where the sight to the hit meets the
/// plane of the axis that faces the viewer. The hit's own z where the axis points at the viewer.
osg::Pnt3f onDepthAxis(const osg::Matrix& worldFromAxes, const osg::Pnt3f& hit)
{
    const osg::Pnt3f center(detail::column(worldFromAxes, 3));
    const osg::Vec3f sight = detail::viewDirection(hit);
    const osg::Vec3f normal = detail::axisPlaneNormal(unitVector(detail::column(worldFromAxes, 2)),
                                                      detail::viewDirection(center));
    const float slope = normal.dot(sight);
    return std::abs(slope) < kShortest ? hit : hit + sight * (normal.dot(center - hit) / slope);
}

/// What the on-screen text says. Deliberate: the values are those of the object's transform, and
/// the z handles show none.
QString describe(const osg::NodePtr& node, Active mode)
{
    switch (mode) {
    case Active::TranslateX:
    case Active::TranslateY:
    case Active::TranslateXY:
        return detail::describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Translation ("),
                                      nbNodeUtils::getTransformNodeTranslation(node));
    case Active::ScaleX:
    case Active::ScaleY:
    case Active::ScaleUniform:
        return detail::describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Scale ("),
                                      nbNodeUtils::getTransformNodeScale(node));
    case Active::Rotate:
        return detail::describeValues(QT_TRANSLATE_NOOP("nbForegroundTextContext", "Rotation ("),
                                      nbNodeUtils::getTransformNodeRotation(node));
    default:
        return QString();
    }
}

}  // namespace

osg::Vec3f ProjectionDrag::start() const
{
    return mapped(handleFromWorld, plane.getStart()).subZero();
}

osg::Vec3f ProjectionDrag::motionTo(const osg::Pnt3f& hit) const
{
    osg::Vec3f motion = mapped(handleFromWorld, hit).subZero() - start();
    for (osg::UInt32 i = 0; i < 3; ++i) {
        motion[i] *= unit[i];
    }
    return motion;
}

// == Events

bool PlanarTextureManipulator::processManipulator(ManipulatorInteractionContext* /*ctx*/,
                                                  const std::string& /*tool*/)
{
    if (state->activeMode == ActiveMode::None) {
        return false;
    }
    const osg::NodePtr node = getNode();
    if (node == osg::NullFC || node->getParent() == osg::NullFC) {
        return false;
    }
    state->makeTransform(node);
    if (state->dragging) {
        dragTo(node);
    }
    return true;
}

bool PlanarTextureManipulator::stopManipulator(ManipulatorInteractionContext* /*ctx*/,
                                               const std::string& /*tool*/)
{
    if (state->activeMode == ActiveMode::None || !state->dragging) {
        return false;
    }
    endDrag();
    if (getNode() == osg::NullFC) {
        return false;
    }
    showActiveManipulator();
    state->previewPause.resume();
    return true;
}

void PlanarTextureManipulator::State::makeTransform(const osg::NodePtr& node)
{
    if (drag.isTargetReady || node == nbScenegraph::getRootNode()) {
        return;
    }
    nbNodeUtils::convertToTransform3DNode(node);
    if (!detail::hasPivots(node)) {
        detail::setBothPivots(node, detail::objectCenter(node, false));
    }
    drag.isTargetReady = true;
}

// == Start of a drag

void PlanarTextureManipulator::updateManipulatorPlane()
{
    state->updatePlane();
}

void PlanarTextureManipulator::State::updatePlane()
{
    const osg::Matrix worldFromAxes = frame.worldFromAxes();
    const osg::Vec3f view = detail::cameraDirection();
    const auto facing = [&](osg::UInt32 axis) {
        return detail::axisPlaneNormal(unitVector(detail::column(worldFromAxes, axis)), view);
    };
    osg::Vec3f normal = view;
    switch (activeMode) {
    case ActiveMode::TranslateX:
    case ActiveMode::ScaleX:
        normal = facing(0);
        break;
    case ActiveMode::TranslateY:
    case ActiveMode::ScaleY:
        normal = facing(1);
        break;
    case ActiveMode::TranslateZ:
        normal = facing(2);
        break;
    case ActiveMode::None:
    case ActiveMode::ScaleZ:
    case ActiveMode::ScaleZPlane:
        break;
    default:
        // At right angles to x and y, which a skewed object's z need not be.
        normal = unitVector(unitVector(detail::column(worldFromAxes, 0))
                                .cross(unitVector(detail::column(worldFromAxes, 1))));
        break;
    }
    drag.plane.set(normal, osg::Pnt3f(detail::column(worldFromAxes, 3)));
}

void PlanarTextureManipulator::State::beginDrag()
{
    drag = ProjectionDrag();
    drag.frame = frame;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        drag.unit[i] = usableLength(frame.scale[i]);
    }
    osg::Matrix units;
    units.setScale(drag.unit);
    osg::Matrix worldFromHandle = frame.worldFromAxes();
    worldFromHandle.mult(units);
    drag.handleFromWorld = detail::inverted(worldFromHandle);
    updatePlane();
    osg::Pnt3f hit;
    if (const nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1)) {
        drag.plane.follow(*widget, hit);
    }
}

// == Steps

void PlanarTextureManipulator::dragTo(const osg::NodePtr& node)
{
    const nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    osg::Pnt3f hit;
    if (widget == nullptr || !state->drag.plane.follow(*widget, hit)) {
        return;
    }
    const int edge = static_cast<int>(state->activeMode) - kEdgeModeOffset;
    if (state->activeMode == ActiveMode::Rotate) {
        rotate(hit);
    } else if (state->activeMode <= ActiveMode::TranslateXY) {
        translate(hit);
    } else if (edge < 0) {
        scale(hit);
    } else {
        scaleEdge(node, hit, edge);
    }
}

void PlanarTextureManipulator::translate(const osg::Pnt3f& hit)
{
    const ActiveMode mode = state->activeMode;
    const osg::Vec3f motion = state->drag.motionTo(hit);
    osg::Vec3f shift;
    if (mode == ActiveMode::TranslateX || mode == ActiveMode::TranslateXY) {
        shift[0] = motion.x();
    }
    if (mode == ActiveMode::TranslateY || mode == ActiveMode::TranslateXY) {
        shift[1] = motion.y();
    }
    if (mode == ActiveMode::TranslateZ) {
        shift[2] = motion.z();
    }
    nbMessage message;
    state->setTranslationIn(message, shift);
    finishStep(message);
}

void PlanarTextureManipulator::State::setTranslationIn(nbMessage& message,
                                                       const osg::Vec3f& shift) const
{
    const osg::Vec3f turned = detail::rotated(drag.frame.rotation, shift);
    const osg::Vec3f& inPlane = applyRotationToTranslation ? turned : shift;
    message.set("offset", osg::Vec2f(inPlane.x(), inPlane.y()), true);
    message.set("transVec", turned, true);
}

float PlanarTextureManipulator::computeRotationAngles(osg::Pnt3f from, osg::Pnt3f to,
                                                      ActiveMode mode)
{
    if (mode != ActiveMode::Rotate) {
        return 0.0F;
    }
    return std::atan2(from.x() * to.y() - from.y() * to.x(), from.x() * to.x() + from.y() * to.y());
}

void PlanarTextureManipulator::rotate(const osg::Pnt3f& hit)
{
    // The angle is one of the object's space; the units of handle space would skew it.
    ProjectionDrag& drag = state->drag;
    const osg::Vec3f start = drag.start();
    osg::Pnt3f from;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        from[i] = start[i] * drag.unit[i];
    }
    const osg::Pnt3f to = from + drag.motionTo(hit);
    if (std::hypot(from.x(), from.y()) > 0.0F && std::hypot(to.x(), to.y()) > 0.0F) {
        drag.lastAngle = computeRotationAngles(from, to, state->activeMode);
    }
    nbMessage message;
    // Deliberate: the receiver's rotation runs opposite to the gizmo's.
    message.set("rotate", -drag.lastAngle, true);
    finishStep(message);
}

void PlanarTextureManipulator::scale(const osg::Pnt3f& hit)
{
    const ProjectionDrag& drag = state->drag;
    const osg::Pnt3f place = mapped(drag.handleFromWorld, hit);
    osg::Vec3f scales = drag.frame.scale;
    nbMessage message;
    switch (state->activeMode) {
    case ActiveMode::ScaleX:
    case ActiveMode::ScaleY: {
        const osg::UInt32 axis = state->activeMode == ActiveMode::ScaleX ? 0 : 1;
        const float factor = planeFactor(place[axis], drag.start()[axis]);
        scales[axis] *= factor;
        if (state->keepAspectRatio) {
            scales[1 - axis] *= factor;
        }
        break;
    }
    case ActiveMode::ScaleZ:
        scales[2] *= depthFactor(place.z(), drag.start().z());
        showZScaleValue(true);
        message.set("clamping", true, true);
        break;
    default: {
        const osg::Vec3f motion = drag.motionTo(hit);
        const osg::Vec3f& projection = drag.frame.projectionScale;
        const float greatest = std::max(motion.x() / usableLength(projection.x()),
                                        motion.y() / usableLength(projection.y()));
        const float factor = std::max(greatest + 1.0F, kLeastUniformFactor);
        scales[0] *= factor;
        scales[1] *= factor;
        break;
    }
    }
    message.set("scale", scales, true);
    finishStep(message);
}

void PlanarTextureManipulator::scaleEdge(osg::NodePtr /*node*/, const osg::Pnt3f& hit, int edge)
{
    const ProjectionDrag& drag = state->drag;
    const bool isZPlane = state->activeMode == ActiveMode::ScaleZPlane;
    const std::array<int, 3>& side =
        planarHandleOf(static_cast<Active>(edge + kEdgeModeOffset))->side;
    osg::Vec3f motion = drag.motionTo(hit);
    if (isZPlane) {
        const osg::Matrix worldFromAxes = drag.frame.worldFromAxes();
        motion = drag.motionTo(onDepthAxis(worldFromAxes, hit)) -
            drag.motionTo(onDepthAxis(worldFromAxes, drag.plane.getStart()));
    }
    const osg::Vec3f from = drag.frame.halfExtents();
    osg::Vec3f to = from;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        // Of a side only one end moves, the depth is counted from the projection plane.
        const float share = i < 2 ? 0.5F : 1.0F;
        if (side[i] != 0) {
            to[i] = draggedHalf(from[i], share * motion[i] * static_cast<float>(side[i]));
        }
    }
    if (state->keepAspectRatio && !isZPlane) {
        keepRatio(from, to, side);
    }
    osg::Vec3f scales = drag.frame.scale;
    osg::Vec3f shift;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        if (to[i] != from[i]) {
            scales[i] =
                (hasLength(from[i]) ? to[i] : std::abs(to[i])) / drag.frame.extentPerScale[i];
        }
        shift[i] = i < 2 ? (to[i] - from[i]) * static_cast<float>(side[i]) : 0.0F;
    }
    nbMessage message;
    message.set("clamping", isZPlane, true);
    message.set("scale", scales, true);
    state->setTranslationIn(message, shift);
    if (isZPlane) {
        showZScaleValue(true);
    }
    finishStep(message);
}

void PlanarTextureManipulator::finishStep(nbMessage& message)
{
    detail::sendToReceiver(state->messageReceiver, kChangedSuffix, message);
    setDescription(getNode());  // looked up again: the receiver may have destroyed it
    updateManipulator();
}

void PlanarTextureManipulator::setDescription(const osg::NodePtr& node)
{
    static detail::ValueText text("textureTransformInfo");
    text.show(node != osg::NullFC ? describe(node, state->activeMode) : QString());
}

}  // namespace nbec::manipulator
