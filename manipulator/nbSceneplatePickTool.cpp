// SPDX-License-Identifier: MIT
#include "manipulator/nbSceneplatePickTool.h"

#include "manipulator/course/View.h"

#include <nbInteraction/Picker.h>
#include <nbInteraction/ToolInteractionContext.h>
#include <nbKernel/nbController.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGExt/nbContainerId.h>
#include <nbUtils/nbMessage.h>

#include <vector>

using nbec::interaction::AbstractInteractionTool;
using nbec::interaction::Picker;
using nbec::interaction::ToolInteractionContext;
using nbec::manipulator::pickerOf;

namespace {

/// Least sides of a drag that selects by rectangle, pixels, first and last included.
constexpr int kLeastRectangleSide = 3;

}  // namespace

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
    const bool isToolMode = mode == "tool";
    if (!isToolMode && !mode.empty()) {
        return false;
    }
    nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    if (widget == nullptr) {
        return true;
    }
    widget->setCursor(isToolMode ? Qt::CrossCursor : Qt::ArrowCursor);
    if (isToolMode) {
        startPreselection(context);
    } else if (preselectionSent) {
        preselectionActive = false;
        stopPreselection();
    }
    return true;
}

bool nbSceneplatePickTool::startTool(ToolInteractionContext* context, const std::string& hint)
{
    return nbSceneplatePickTool::processTool(context, hint);
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

osg::SceneplatePtr nbSceneplatePickTool::getSceneplate() const
{
    return resolveContainer<osg::SceneplatePtr>(sceneplateId);
}

// == Preselection and selection

bool nbSceneplatePickTool::isSelectionHint(const std::string& hint)
{
    return hint == s_selectHint || hint == s_deselectHint || hint == s_toggleHint ||
        hint == s_addHint || hint == s_subHint;
}

bool nbSceneplatePickTool::hoverSelection(ToolInteractionContext* context)
{
    const bool reports = nbOSGWidget::getInteractionMode() != 0 || preselectionActive;
    Picker* const picker = pickerOf(context);
    if (!nbScenegraph::isPreselectionEnabled() || !reports || nbController::getPresenterMode() ||
        picker == nullptr) {
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
    const QSize drag = widget->getMouseRect().size();
    if (!widget->getRectSelection() && drag.width() >= kLeastRectangleSide &&
        drag.height() >= kLeastRectangleSide) {
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
