// SPDX-License-Identifier: MIT
#include "viewer/stage/PlacingContext.h"

#include <nbInteraction/EventNames.h>
#include <nbInteraction/InteractionEvent.h>

#include <utility>

namespace viewer {

using nbec::interaction::InteractionEvent;
using nbec::interaction::InteractionManager;
using nbec::interaction::ToolInteractionContext;
namespace names = nbec::interaction::names;

void PlacingContext::setAnchoring(Anchoring newAnchoring, std::function<void()> whenPlaced)
{
    anchoring = std::move(newAnchoring);
    anchored = std::move(whenPlaced);
    isAnchored = false;
}

bool PlacingContext::anchor(const InteractionManager* manager, const std::string& event)
{
    if (event == names::kStart || event == names::kProcess) {
        // A click beside the surface must not select something else.
        isAnchored = anchoring(getPointerPosition()) || isAnchored;
        return true;
    }
    if (event != names::kStop) {
        return false;
    }
    const bool wasLetGo =
        manager == nullptr || manager->getDragEnd() == nbec::interaction::DragEnd::Released;
    if (std::exchange(isAnchored, false) && wasLetGo) {
        // It may replace itself.
        const std::function<void()> whenPlaced = anchored;
        whenPlaced();
    }
    return true;
}

bool PlacingContext::triggerEvent(InteractionManager* manager, const InteractionEvent& event)
{
    const bool isTool = event.getTool() == names::kTool;
    if (isTool && anchoring) {
        return anchor(manager, event.getEvent());
    }
    const auto deliver = [&] { return ToolInteractionContext::triggerEvent(manager, event); };
    if (isTool && event.getEvent() == names::kStart) {
        return group.start(deliver);
    }
    if (isTool && event.getEvent() == names::kStop && group.isOpen()) {
        return group.stop(manager, deliver);
    }
    return deliver();
}

}  // namespace viewer
