// SPDX-License-Identifier: MIT
#include "manipulator/detail/AnchoredGizmo.h"

#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/detail/HandlePick.h"
#include "manipulator/detail/MessageSending.h"
#include "manipulator/detail/ScreenScale.h"

#include <nbInteraction/Picker.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <cmath>
#include <utility>

namespace nbec::manipulator::detail {

namespace {

constexpr float kTolerance = 1e-6F;
constexpr int kHiddenMode = -1;
constexpr int kUniversalMode = 0;

bool differs(const osg::Matrix& left, const osg::Matrix& right)
{
    for (osg::UInt32 i = 0; i < 4; ++i) {
        for (osg::UInt32 k = 0; k < 4; ++k) {
            if (std::abs(left[i][k] - right[i][k]) > kTolerance) {
                return true;
            }
        }
    }
    return false;
}

bool differs(const osg::Pnt3f& left, const osg::Pnt3f& right)
{
    return std::abs(left.x() - right.x()) > kTolerance ||
        std::abs(left.y() - right.y()) > kTolerance || std::abs(left.z() - right.z()) > kTolerance;
}

/// Size of gizmos in an orthographic main view; 0 in any other.
float orthographicSize()
{
    const std::optional<float> diagonal = orthographicDiagonal();
    return diagonal.has_value() ? orthographicScale(*diagonal) : 0.0F;
}

}  // namespace

AnchoredGizmo::AnchoredGizmo(const HandleTable& table, HandleSet::Materials materials,
                             int startMode)
    : mode(startMode)
    , handles(table, std::move(materials))
{
    handles.setDefaultMaterials(mode);
}

AnchoredGizmo::~AnchoredGizmo() = default;

// == What is edited

void AnchoredGizmo::setComponent(const osg::MaterialPtr& material, const std::string& componentName,
                                 nbStateChunkBase* gui)
{
    if (!component.is(material, componentName)) {
        endDrag();
    }
    component.set(material, componentName, gui);
    seen.isStale = true;
    if (material != osg::NullFC && !componentName.empty()) {
        showActive();
    } else {
        hide();
    }
}

void AnchoredGizmo::setAnchor(const osg::NodePtr& node, const osg::Pnt3f& position)
{
    anchor.set(node, position);
    seen.isStale = true;
}

// == Handles shown

void AnchoredGizmo::showActive()
{
    handles.showRoot(true);
    if (mode == kHiddenMode) {
        handles.hideAll();
        return;
    }
    const HandleModeRow* const row = handles.findMode(mode);
    if (row == nullptr) {
        return;
    }
    handles.showMode(*row);
    if (mode != kUniversalMode) {
        clearHighlight();
        handles.setDefaultMaterials(mode);
        place();
    }
}

void AnchoredGizmo::hide()
{
    handles.showRoot(false);
}

void AnchoredGizmo::activateMode(int newMode)
{
    mode = newMode;
    if (const HandleModeRow* const row = handles.findMode(mode)) {
        handles.showMode(*row);
    }
    highlighted = 0;
    handles.setDefaultMaterials(mode);
    place();
}

// == Events

int AnchoredGizmo::detect(ManipulatorInteractionContext* ctx)
{
    if (component.getMaterial() == osg::NullFC) {
        return 0;
    }
    return handles.detect(pickHandle(ctx), root.get());
}

void AnchoredGizmo::clearHighlight()
{
    if (highlighted != 0) {
        highlighted = 0;
        handles.setDefaultMaterials(mode);
    }
}

bool AnchoredGizmo::hover(ManipulatorInteractionContext* ctx)
{
    if (dragging) {
        return true;
    }
    activeMode = detect(ctx);
    // A handle that is hovered on keeps its colour without an edit, so that nothing is drawn again.
    if (activeMode != highlighted) {
        clearHighlight();
        if (activeMode != 0) {
            highlighted = activeMode;
            handles.highlight(activeMode);
        }
    }
    return activeMode != 0;
}

bool AnchoredGizmo::start(ManipulatorInteractionContext* ctx)
{
    endDrag();
    clearHighlight();
    activeMode = detect(ctx);
    if (activeMode == 0) {
        return false;
    }
    grabbedPoint = ctx->getPicker()->getHitPoint();
    handles.showOnly(activeMode);
    return true;
}

bool AnchoredGizmo::process()
{
    const nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    if (activeMode == 0 || widget == nullptr ||
        (needsMaterial() && component.getMaterial() == osg::NullFC)) {
        return false;
    }
    if (dragging) {
        step(*widget);
        return true;
    }
    if (!prepare(*widget)) {
        return false;
    }
    dragging = true;
    previewPause.begin();
    return true;
}

bool AnchoredGizmo::stop()
{
    if (activeMode == 0) {
        return false;
    }
    if (dragging) {
        finish();
    }
    dragging = false;
    activeMode = 0;
    handles.showHidden();
    if (component.getMaterial() == osg::NullFC) {
        return false;
    }
    showActive();
    previewPause.resume();
    return true;
}

bool AnchoredGizmo::reset()
{
    clearHighlight();
    return true;
}

void AnchoredGizmo::endDrag()
{
    if (dragging) {
        finish();
    }
    dragging = false;
    activeMode = 0;
    handles.showHidden();
    previewPause.end();
}

void AnchoredGizmo::sendChange(const char* suffix, nbMessage& message)
{
    sendToReceiver(messageReceiver, suffix, message);
    place();
}

// == Placement

bool AnchoredGizmo::isViewChanged() const
{
    return differs(nbOSGWidget::getFrom(-1), seen.from) || nbOSGWidget::getFov(-1) != seen.fovDeg ||
        orthographicSize() != seen.orthoSize;
}

void AnchoredGizmo::update(bool force)
{
    if (component.getMaterial() == osg::NullFC) {
        return;
    }
    const osg::NodePtr node = anchor.getNode();
    if (force || seen.isStale || isElseChanged() || isViewChanged() ||
        (node != osg::NullFC && differs(node->getToWorld(), seen.anchorMatrix))) {
        place();
    }
}

void AnchoredGizmo::place()
{
    const osg::NodePtr node = anchor.getNode();
    if (component.getMaterial() == osg::NullFC || node == osg::NullFC) {
        return;
    }
    seen.anchorMatrix = node->getToWorld();
    anchor.follow(seen.anchorMatrix);
    seen.from = nbOSGWidget::getFrom(-1);
    seen.fovDeg = nbOSGWidget::getFov(-1);
    seen.orthoSize = orthographicSize();
    seen.isStale = false;
    placeHandles(seen.anchorMatrix);
}

}  // namespace nbec::manipulator::detail
