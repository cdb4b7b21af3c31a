// SPDX-License-Identifier: MIT
#include "manipulator/nbSceneplatePickTool.h"

#include "manipulator/handles/ContainerReference.h"

#include <nbInteraction/Picker.h>
#include <nbInteraction/ToolInteractionContext.h>
#include <nbKernel/nbController.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbUtils/nbMessage.h>

#include <vector>

using nbec::interaction::AbstractInteractionTool;
using nbec::interaction::Picker;
using nbec::interaction::ToolInteractionContext;

namespace {

/// Least sides of a drag that selects by rectangle, pixels, first and last included.
constexpr int kLeastRectangleSide = 3;

Picker* pickerOf(const ToolInteractionContext* context)
{
    return context != nullptr ? context->getPicker() : nullptr;
}

bool isRectangle(const QRect& drag)
{
    return drag.right() + 1 - drag.left() >= kLeastRectangleSide &&
        drag.bottom() + 1 - drag.top() >= kLeastRectangleSide;
}

}  // namespace

const std::string nbSceneplatePickTool::s_selectHint = "select";
const std::string nbSceneplatePickTool::s_deselectHint = "deselect";
const std::string nbSceneplatePickTool::s_addHint = "add";
const std::string nbSceneplatePickTool::s_subHint = "sub";
const std::string nbSceneplatePickTool::s_toggleHint = "toggle";

nbSceneplatePickTool::nbSceneplatePickTool(const nbSceneplatePickTool& other)
    : AbstractInteractionTool(other)
    , messageReceiver(other.messageReceiver)
    , sceneplateId(other.sceneplateId)
    , showHitData(other.showHitData)
    , preselectionActive(other.preselectionActive)
{ }

nbSceneplatePickTool& nbSceneplatePickTool::operator=(const nbSceneplatePickTool& other)
{
    AbstractInteractionTool::operator=(other);
    messageReceiver = other.messageReceiver;
    sceneplateId = other.sceneplateId;
    showHitData = other.showHitData;
    preselectionActive = other.preselectionActive;
    return *this;
}

// == Events, in their slot order

bool nbSceneplatePickTool::setToolMode(ToolInteractionContext* context, const std::string& mode)
{
    nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    if (mode == "tool") {
        if (widget != nullptr) {
            widget->setCursor(Qt::CrossCursor);
            startPreselection(context);
        }
        return true;
    }
    if (mode.empty()) {
        if (widget != nullptr) {
            widget->setCursor(Qt::ArrowCursor);
            if (preselectionSent) {
                // Deliberate: without an outstanding report the tool stays in mode "tool".
                preselectionActive = false;
                stopPreselection();
            }
        }
        return true;
    }
    return false;
}

void nbSceneplatePickTool::activateTool(ToolInteractionContext* context)
{
    AbstractInteractionTool::activateTool(context);
}

void nbSceneplatePickTool::deactivateTool(ToolInteractionContext* context)
{
    AbstractInteractionTool::deactivateTool(context);
}

bool nbSceneplatePickTool::startTool(ToolInteractionContext* context, const std::string& hint)
{
    return isSelectionHint(hint) && processSelection(context, hint);
}

bool nbSceneplatePickTool::processTool(ToolInteractionContext* context, const std::string& hint)
{
    return isSelectionHint(hint) && processSelection(context, hint);
}

bool nbSceneplatePickTool::stopTool(ToolInteractionContext* context, const std::string& hint)
{
    return isSelectionHint(hint) && stopSelection(context, hint);
}

bool nbSceneplatePickTool::hoverTool(ToolInteractionContext* context, const std::string& hint)
{
    return !isSelectionHint(hint) || hoverSelection(context);
}

bool nbSceneplatePickTool::stopHoverTool(ToolInteractionContext* /*context*/,
                                         const std::string& hint)
{
    if (isSelectionHint(hint)) {
        stopPreselection();
    }
    return true;
}

// == Settings

void nbSceneplatePickTool::setMessageReceiver(const std::string& receiver)
{
    messageReceiver = receiver;
}

osg::SceneplatePtr nbSceneplatePickTool::getSceneplate() const
{
    return nbec::manipulator::resolveContainer<osg::SceneplatePtr>(sceneplateId);
}

// == Preselection and selection

bool nbSceneplatePickTool::isSelectionHint(const std::string& hint)
{
    return hint == s_selectHint || hint == s_deselectHint || hint == s_toggleHint ||
        hint == s_addHint || hint == s_subHint;
}

bool nbSceneplatePickTool::hoverSelection(ToolInteractionContext* context)
{
    if (!nbScenegraph::isPreselectionEnabled()) {
        return false;
    }
    const bool reports = nbOSGWidget::getInteractionMode() != 0 || preselectionActive;
    if (!reports || nbController::getPresenterMode()) {
        return false;
    }
    Picker* const picker = pickerOf(context);
    if (picker == nullptr) {
        return false;
    }
    const osg::NodePtr hovered = picker->pick();
    sendHoveredNode(hovered);
    preselectionSent = true;
    return hovered != osg::NullFC;
}

bool nbSceneplatePickTool::processSelection(ToolInteractionContext* context,
                                            const std::string& /*hint*/)
{
    Picker* const picker = pickerOf(context);
    nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    if (picker == nullptr || widget == nullptr) {
        return false;
    }
    if (!widget->getRectSelection() && isRectangle(widget->getMouseRect())) {
        stopPreselection();
        widget->setRectSelection(true);
    }
    if (!widget->getRectSelection()) {
        return picker->pick() != osg::NullFC;
    }
    widget->update();
    return true;
}

bool nbSceneplatePickTool::stopSelection(ToolInteractionContext* context, const std::string& hint)
{
    Picker* const picker = pickerOf(context);
    if (picker == nullptr) {
        return false;
    }
    std::vector<osg::NodePtr> nodes;
    nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    if (widget != nullptr && widget->getRectSelection()) {
        nodes = picker->pickRectangle(widget->getMouseRect());
        widget->setRectSelection(false);
    } else if (const osg::NodePtr picked = picker->pick(); picked != osg::NullFC) {
        nodes.push_back(picked);
    }
    nbMessage message;
    message.set("nodes", nodes, true);
    message.set("hint", hint, true);
    nbController::call("sceneplateSelected", message, 0);
    return !nodes.empty();
}

void nbSceneplatePickTool::sendHoveredNode(const osg::NodePtr& node)
{
    nbMessage message;
    message.set("node", node, true);
    nbController::call("sceneplatePreselected", message, 0);
}

void nbSceneplatePickTool::startPreselection(ToolInteractionContext* context)
{
    preselectionActive = true;
    hoverSelection(context);
}

void nbSceneplatePickTool::stopPreselection()
{
    if (preselectionSent) {
        preselectionSent = false;
        sendHoveredNode(osg::NodePtr());
    }
}
