// SPDX-License-Identifier: MIT
#include "manipulator/PlanarTextureManipulator.h"

#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/PlanarTextureManipulatorState.h"
#include "manipulator/detail/DragGeometry.h"
#include "manipulator/detail/HandlePick.h"
#include "manipulator/detail/InstanceRegistry.h"
#include "manipulator/detail/MessageSending.h"
#include "manipulator/detail/NodeVisibility.h"
#include "manipulator/detail/ScreenScale.h"
#include "manipulator/detail/TargetFrame.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbUtils/nbMessage.h>

#include <OpenSG/OSGImage.h>

#include <algorithm>
#include <cmath>
#include <cstddef>

#include <EditStamp.h>

namespace nbec::manipulator {

namespace {

/// A quaternion shorter than this is no rotation.
constexpr float kShortestQuaternion = 1e-6F;
constexpr std::size_t kMatrixElements = 16;

osg::Quaternion normalisedRotation(osg::Quaternion rotation)
{
    if (!(rotation.length() >= kShortestQuaternion)) {
        return osg::Quaternion();
    }
    rotation.normalize();
    return rotation;
}

bool isFinite(const osg::Matrix& matrix)
{
    return std::all_of(matrix.getValues(), matrix.getValues() + kMatrixElements,
                       [](float value) { return std::isfinite(value); });
}

/// Pivot of an object in its own frame: where it will be, if it has none yet.
osg::Vec3f objectPivot(const osg::NodePtr& node, bool scalePivot)
{
    if (!detail::hasPivots(node)) {
        return detail::objectCenter(node, false).subZero();
    }
    return scalePivot ? nbNodeUtils::getTransformNodeScalePivot(node)
                      : nbNodeUtils::getTransformNodeRotatePivot(node);
}

bool isScaleMode(PlanarTextureManipulator::ActiveMode mode)
{
    return mode >= PlanarTextureManipulator::ActiveMode::ScaleX;
}

}  // namespace

float PlanarTextureManipulator::m_ManipulatorSize = detail::kDefaultManipulatorSize;
std::vector<PlanarTextureManipulator*> PlanarTextureManipulator::_allManipulators;
PlanarTextureManipulator* PlanarTextureManipulator::_the = nullptr;

PlanarTextureManipulator::PlanarTextureManipulator(bool withDepthPass)
    : state(std::make_unique<State>())
{
    createManipulatorGeo(withDepthPass);
    setDefaultMaterials();
    state->handles.showRoot(false);
    _allManipulators.push_back(this);
}

PlanarTextureManipulator::PlanarTextureManipulator(const PlanarTextureManipulator& other)
    : NodeManipulator(other)
    , state(std::make_unique<State>(*other.state))
{ }

PlanarTextureManipulator& PlanarTextureManipulator::operator=(const PlanarTextureManipulator& other)
{
    NodeManipulator::operator=(other);
    *state = *other.state;
    return *this;
}

PlanarTextureManipulator::~PlanarTextureManipulator()
{
    detail::unregisterInstance(_allManipulators, this);
    if (_the == this) {
        _the = nullptr;
    }
}

// == Events, in their slot order

void PlanarTextureManipulator::activate(ManipulatorInteractionContext* ctx)
{
    NodeManipulator::activate(ctx);
    showActiveManipulator();
}

void PlanarTextureManipulator::deactivate(ManipulatorInteractionContext* ctx)
{
    NodeManipulator::deactivate(ctx);
    endDrag();
    state->previewPause.end();
}

osg::NodePtr PlanarTextureManipulator::getVisualisation()
{
    return state->root.get();
}

osg::NodePtr PlanarTextureManipulator::getCollider()
{
    return state->root.get();
}

void PlanarTextureManipulator::update(bool force)
{
    const bool isUnchanged =
        osg::glue::editStamp() == state->comparedStamp && m_ManipulatorSize == state->placedSize;
    if (!isActive() || (!force && isUnchanged) || getNode() == osg::NullFC) {
        return;
    }
    updateManipulator();
    state->comparedStamp = osg::glue::editStamp();
}

bool PlanarTextureManipulator::startManipulator(ManipulatorInteractionContext* ctx,
                                                const std::string& /*tool*/)
{
    if (state->dragging) {
        // The host has lost a stop; what the last drag hid and paused comes back.
        endDrag();
        state->showElements();
        state->previewPause.end();
    }
    state->endHover();
    const ActiveMode detected = detectMode(ctx);
    if (detected == ActiveMode::None) {
        return false;
    }
    state->activeMode = detected;
    state->dragging = true;
    prepareManipulator(getNode());
    highlightControlElement();
    state->beginDrag();
    return true;
}

bool PlanarTextureManipulator::hoverManipulator(ManipulatorInteractionContext* ctx,
                                                const std::string& /*tool*/)
{
    if (state->dragging) {
        return true;
    }
    state->activeMode = detectMode(ctx);
    if (state->activeMode != state->highlighted) {
        setDefaultMaterials();
        highlightMode();
    }
    return state->activeMode != ActiveMode::None;
}

bool PlanarTextureManipulator::resetManipulator(ManipulatorInteractionContext* /*ctx*/,
                                                const std::string& /*tool*/)
{
    if (!state->dragging) {
        state->endHover();
    }
    return true;
}

void PlanarTextureManipulator::State::endHover()
{
    activeMode = ActiveMode::None;
    if (highlighted != ActiveMode::None) {
        handles.setDefaultMaterials(static_cast<int>(mode));
        highlighted = ActiveMode::None;
    }
}

void PlanarTextureManipulator::endDrag()
{
    if (state->dragging) {
        state->dragging = false;
        setDescription(osg::NodePtr());
    }
    state->endHover();
}

PlanarTextureManipulator::ActiveMode
PlanarTextureManipulator::detectMode(ManipulatorInteractionContext* ctx) const
{
    if (getNode() == osg::NullFC) {
        return ActiveMode::None;
    }
    return static_cast<ActiveMode>(
        state->handles.detect(detail::pickHandle(ctx), state->root.get()));
}

// == Object and projection

void PlanarTextureManipulator::setNode(const osg::NodePtr& node)
{
    NodeManipulator::setNode(node);
    if (node == osg::NullFC) {
        endDrag();
        state->previewPause.end();
    } else {
        prepareManipulator(node);
        if (state->dragging) {
            state->beginDrag();
        }
    }
    if (isActive()) {
        showActiveManipulator();
    }
}

void PlanarTextureManipulator::prepareManipulator(const osg::NodePtr& node)
{
    if (node == osg::NullFC) {
        return;
    }
    state->readProjection(node);
    const osg::ColorComponentSettingsPtr settings = state->component.getSettings();
    if (settings != osg::NullFC && settings->getPlanarProjection() != osg::NullFC) {
        state->keepAspectRatio =
            settings->hasPlanarProjectionFlag(osg::ColorComponentSettings::KeepAspectRatio);
        const osg::ImagePtr image =
            state->component.getUberMaterial()->getImage(state->component.getName());
        if (image != osg::NullFC && image->getHeight() > 0) {
            state->aspectRatio =
                static_cast<float>(image->getWidth()) / static_cast<float>(image->getHeight());
        }
        state->askScaleValues();
    }
    state->previewPause.begin();
}

void PlanarTextureManipulator::State::readProjection(const osg::NodePtr& node)
{
    frame.worldFromObject = node->getToWorld();
    if (useObjectTranslation) {
        frame.translation = objectPivot(node, isScaleMode(activeMode));
    }
    if (useObjectScale) {
        frame.scale = nbNodeUtils::getTransformNodeScale(node);
    }
    const osg::ColorComponentSettingsPtr settings = component.getSettings();
    const osg::Transform3DPtr projection =
        settings != osg::NullFC ? settings->getPlanarProjection() : osg::Transform3DPtr();
    if (projection == osg::NullFC || !isFinite(projection->getMatrix())) {
        return;
    }
    frame.projectionScale = projection->getScale();
    if (!useObjectTranslation) {
        // The image of the origin: the translation, where no pivot of the projection moves it.
        frame.translation = detail::column(projection->getMatrix(), 3);
    }
    if (!useObjectScale) {
        frame.scale = frame.projectionScale;
    }
    frame.rotation = projection->getRotationAsQuaternion();
    frame.rotation.mult(projection->getRotationOrientation());
    frame.rotation = normalisedRotation(frame.rotation);
}

void PlanarTextureManipulator::State::askScaleValues()
{
    frame.extentPerScale = osg::Vec3f(1.0F, 1.0F, 1.0F);
    if (!useTextureScale) {
        return;
    }
    nbMessage message;
    detail::sendToReceiver(messageReceiver, "::getScaleValues", message);
    nbMessage::get(message, "initialTextureScale", initialTextureScale);
    nbMessage::get(message, "projectionSize", projectionSize);
    for (osg::UInt32 i = 0; i < 2; ++i) {
        const float perScale = 0.5F * projectionSize[i] / frame.scale[i];
        if (std::isfinite(perScale) && perScale > 0.0F) {
            frame.extentPerScale[i] = perScale;
        }
    }
}

void PlanarTextureManipulator::setMaterialComponent(osg::MaterialPtr material,
                                                    const std::string& componentType,
                                                    nbStateChunkBase* gui)
{
    state->component.set(material, componentType, gui);
    updateManipulator();
}

osg::MaterialPtr PlanarTextureManipulator::getMaterial() const
{
    return state->component.getMaterial();
}

bool PlanarTextureManipulator::isConnectedToMaterial(osg::MaterialPtr material) const
{
    return state->component.isOf(material);
}

bool PlanarTextureManipulator::isConnectedTo(osg::MaterialPtr material,
                                             const std::string& componentType) const
{
    return state->component.is(material, componentType);
}

std::string PlanarTextureManipulator::getComponentType() const
{
    return state->component.getName();
}

void PlanarTextureManipulator::setGUI(nbStateChunkBase* gui)
{
    state->component.setGUI(gui);
}

nbStateChunkBase* PlanarTextureManipulator::getGUI() const
{
    return state->component.getGUI();
}

void PlanarTextureManipulator::setMessageReceiver(const std::string& receiver)
{
    state->messageReceiver = receiver;
}

bool PlanarTextureManipulator::centerPivot()
{
    const osg::NodePtr node = getNode();
    if (node == osg::NullFC || nbNodeUtils::convertToTransform3DNode(node) == osg::NullFC) {
        return false;
    }
    state->readProjection(node);
    detail::setBothPivots(node, osg::Pnt3f(state->frame.translation));
    updateManipulator();
    nbController::setModified(1);
    return true;
}

osg::Pnt3f PlanarTextureManipulator::calculateObjectCenter(const osg::NodePtr& node,
                                                           bool worldSpace)
{
    return node != osg::NullFC ? detail::objectCenter(node, worldSpace) : osg::Pnt3f();
}

void PlanarTextureManipulator::updateManipulator()
{
    const osg::NodePtr node = getNode();
    if (node != osg::NullFC) {
        state->readProjection(node);
        state->placeHandles();
    }
}

// == Settings

void PlanarTextureManipulator::setKeepAspectRatio(bool on)
{
    state->keepAspectRatio = on;
}

bool PlanarTextureManipulator::getKeepAspectRatio() const
{
    return state->keepAspectRatio;
}

void PlanarTextureManipulator::setAspectRatio(float ratio)
{
    state->aspectRatio = ratio;
}

float PlanarTextureManipulator::getAspectRatio() const
{
    return state->aspectRatio;
}

void PlanarTextureManipulator::setUseTextureScale(bool on)
{
    state->useTextureScale = on;
}

osg::Vec3f PlanarTextureManipulator::getInitialTextureScale() const
{
    return state->initialTextureScale;
}

osg::Vec2f PlanarTextureManipulator::getProjectionSize() const
{
    return state->projectionSize;
}

void PlanarTextureManipulator::setUseObjectScale(bool on)
{
    state->useObjectScale = on;
}

void PlanarTextureManipulator::setUseObjectTranslation(bool on)
{
    state->useObjectTranslation = on;
}

void PlanarTextureManipulator::setApplyProjectionRotationToTranslation(bool on)
{
    state->applyRotationToTranslation = on;
}

void PlanarTextureManipulator::setZScaleVisible(bool on)
{
    state->zScaleVisible = on;
    state->showElements();
}

void PlanarTextureManipulator::showZScaleValue(bool on)
{
    state->zScaleValueShown = on;
    state->showElements();
}

// == All instances

void PlanarTextureManipulator::createInstance(bool destroy)
{
    delete _the;
    _the = destroy ? nullptr : new PlanarTextureManipulator(false);
}

void PlanarTextureManipulator::setManipulatorSize(float size)
{
    m_ManipulatorSize = size;
    if (_the != nullptr) {
        _the->updateManipulator();
    }
}

void PlanarTextureManipulator::updateAllManipulators()
{
    detail::forEachInstance(_allManipulators, [](PlanarTextureManipulator& manipulator) {
        manipulator.updateManipulator();
    });
}

}  // namespace nbec::manipulator
