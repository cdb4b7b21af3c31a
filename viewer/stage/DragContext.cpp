// SPDX-License-Identifier: MIT
#include "viewer/stage/DragContext.h"

#include "manipulator/AbstractManipulator.h"

#include <nbInteraction/EventNames.h>
#include <nbInteraction/InteractionEvent.h>
#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbKernelServices/nbScopedUndo.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <utility>

namespace viewer {

namespace names = nbec::interaction::names;
using nbec::interaction::InteractionEvent;
using nbec::interaction::InteractionManager;
using nbec::manipulator::AbstractManipulator;
using nbec::manipulator::ManipulatorInteractionContext;

DragContext::DragContext()
    : ManipulatorInteractionContext(nbec::interaction::Manipulator)
{ }

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
    if (isTool && event.getEvent() == names::kStop && isDragged) {
        return stop(manager, event);
    }
    return ManipulatorInteractionContext::triggerEvent(manager, event);
}

bool DragContext::start(InteractionManager* manager, const InteractionEvent& event)
{
    if (auto* const drag = dynamic_cast<AbstractManipulator*>(getManipulator()); drag != nullptr) {
        drag->setReadoutShown(true);
    }
    isDragged = ManipulatorInteractionContext::triggerEvent(manager, event);
    if (isDragged) {
        grabbed = getPicker() != nullptr ? nbNodeUtils::getName(getPicker()->getHitNode()) : "";
        if (grabbed.empty()) {
            grabbed = "picture";  // beside all handles nothing else can be grabbed
        }
        // The first title in a step is the step's.
        if (const QString title = titles ? titles(grabbed) : QString(); !title.isEmpty()) {
            const nbScopedUndo titled(title);
        }
        // The manipulator measures from its first step on: one where the handle was grabbed keeps
        // the way to the next position from being lost.
        ManipulatorInteractionContext::triggerEvent(
            manager, InteractionEvent(names::kProcess, event.getTool(), event.getHint()));
        notify();
    }
    return isDragged;
}

bool DragContext::stop(InteractionManager* manager, const InteractionEvent& event)
{
    const bool answer = ManipulatorInteractionContext::triggerEvent(manager, event);
    isDragged = false;
    grabbed.clear();
    notify();
    return answer;
}

}  // namespace viewer
