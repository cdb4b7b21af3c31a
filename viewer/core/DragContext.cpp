// SPDX-License-Identifier: MIT
#include "viewer/core/DragContext.h"

#include <nbInteraction/EventNames.h>
#include <nbInteraction/InteractionEvent.h>
#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <utility>

namespace viewer {

namespace names = nbec::interaction::names;
using nbec::interaction::DragEnd;
using nbec::interaction::InteractionEvent;
using nbec::interaction::InteractionManager;
using nbec::manipulator::ManipulatorInteractionContext;

DragContext::DragContext()
    : ManipulatorInteractionContext(nbec::interaction::Manipulator)
{ }

void DragContext::setDragCallback(std::function<void()> callback)
{
    dragCallback = std::move(callback);
}

void DragContext::notify() const
{
    if (dragCallback) {
        dragCallback();
    }
}

bool DragContext::triggerEvent(InteractionManager* manager, const InteractionEvent& event)
{
    const bool isTool = event.getTool() == names::kTool;
    if (isTool && event.getEvent() == names::kStart) {
        return start(manager, event);
    }
    if (isTool && event.getEvent() == names::kStop && isDragging) {
        return stop(manager, event);
    }
    return ManipulatorInteractionContext::triggerEvent(manager, event);
}

bool DragContext::start(InteractionManager* manager, const InteractionEvent& event)
{
    // Opened first, as the start may already edit: it makes transforms of other cores.
    nbUndoService::the()->beginGroup();
    isDragging = ManipulatorInteractionContext::triggerEvent(manager, event);
    if (isDragging) {
        // The manipulator measures from its first step on: one where the handle was grabbed keeps
        // the way to the next position from being lost.
        ManipulatorInteractionContext::triggerEvent(
            manager, InteractionEvent(names::kProcess, event.getTool(), event.getHint()));
        grabbed = getPicker() != nullptr ? nbNodeUtils::getName(getPicker()->getHitNode()) : "";
        notify();
    } else {
        nbUndoService::the()->endGroup();
    }
    return isDragging;
}

bool DragContext::stop(InteractionManager* manager, const InteractionEvent& event)
{
    const bool isCancelled = manager != nullptr && manager->getDragEnd() == DragEnd::Cancelled;
    const bool answer = ManipulatorInteractionContext::triggerEvent(manager, event);
    isDragging = false;
    grabbed.clear();
    if (!isCancelled) {
        nbUndoService::the()->endGroup();
    }
    notify();
    return answer;
}

}  // namespace viewer
