// SPDX-License-Identifier: MIT
#include "viewer/stage/PlacingContext.h"

#include <nbInteraction/EventNames.h>
#include <nbInteraction/InteractionEvent.h>
#include <nbInteraction/InteractionManager.h>

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
    return event.getTool() == names::kTool && anchoring
        ? anchor(manager, event.getEvent())
        : ToolInteractionContext::triggerEvent(manager, event);
}

}  // namespace viewer
