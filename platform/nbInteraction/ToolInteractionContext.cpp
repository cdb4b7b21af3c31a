// SPDX-License-Identifier: MIT
#include <nbInteraction/AbstractInteractionTool.h>
#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbInteraction/ToolInteractionContext.h>

namespace nbec::interaction {

ToolInteractionContext::ToolInteractionContext(PreferredPosition position)
    : MultimodeInteractionContext(position)
{ }

ToolInteractionContext::~ToolInteractionContext()
{
    leaveManager();
    deactivateIfActive();
}

void ToolInteractionContext::setTool(AbstractInteractionTool* newTool)
{
    if (newTool == tool) {
        return;
    }
    InteractionManager* const manager = getInteractionManager();
    if (manager && manager->getDragContext() == this) {
        manager->endDrag();
    }
    deactivateIfActive();
    tool = newTool;
    activateIfUsable();
    if (toolIsActivated) {
        tool->setToolMode(this, getMode());
    }
}

void ToolInteractionContext::enabled(InteractionManager* manager)
{
    MultimodeInteractionContext::enabled(manager);
    activateIfUsable();
}

void ToolInteractionContext::disabled(InteractionManager* manager)
{
    MultimodeInteractionContext::disabled(manager);
    deactivateIfActive();
}

void ToolInteractionContext::contextAdded(InteractionManager* manager)
{
    MultimodeInteractionContext::contextAdded(manager);
    activateIfUsable();
}

void ToolInteractionContext::contextRemoved(InteractionManager* manager)
{
    deactivateIfActive();
    MultimodeInteractionContext::contextRemoved(manager);
}

void ToolInteractionContext::pointerMoved(const osg::Pnt2f& positionPx)
{
    pointerPosition = positionPx;
    MultimodeInteractionContext::pointerMoved(positionPx);
}

bool ToolInteractionContext::triggerEvent(InteractionManager* manager,
                                          const InteractionEvent& event)
{
    if (toolIsActivated && event.getTool() == getToolName() && callTool(event)) {
        return true;
    }
    return MultimodeInteractionContext::triggerEvent(manager, event);
}

bool ToolInteractionContext::selectMode(const std::string& mode)
{
    MultimodeInteractionContext::selectMode(mode);
    return toolIsActivated && tool->setToolMode(this, mode);
}

void ToolInteractionContext::activateIfUsable()
{
    if (tool && !toolIsActivated && isActive() && isEnabled()) {
        toolIsActivated = true;
        tool->activateTool(this);
    }
}

void ToolInteractionContext::deactivateIfActive()
{
    if (toolIsActivated) {
        toolIsActivated = false;
        tool->setToolMode(this, names::kNoMode);
        tool->deactivateTool(this);
    }
}

bool ToolInteractionContext::callTool(const InteractionEvent& event)
{
    const std::string& name = event.getEvent();
    const std::string& hint = event.getHint();
    if (name == names::kStart) {
        pickFor(hint);
        return tool->startTool(this, hint);
    }
    if (name == names::kProcess) {
        pickFor(hint);
        return tool->processTool(this, hint);
    }
    if (name == names::kStop) {
        return tool->stopTool(this, hint);
    }
    if (name == names::kTrigger) {
        return tool->triggerTool(this, hint);
    }
    if (name == names::kHover) {
        return tool->hoverTool(this, hint);
    }
    if (name == names::kStopHover) {
        // The end of a hover concerns the others too, whatever the tool answers.
        tool->stopHoverTool(this, hint);
    }
    return false;
}

void ToolInteractionContext::pickFor(const std::string& hint)
{
    if (picker && tool->isPickHint(hint)) {
        picker->pick();
    }
}

}  // namespace nbec::interaction
