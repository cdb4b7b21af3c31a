// SPDX-License-Identifier: MIT
#include "viewer/core/PlacingContext.h"

#include <nbInteraction/EventNames.h>
#include <nbInteraction/InteractionEvent.h>

#include <utility>

namespace viewer {

using nbec::interaction::InteractionEvent;
using nbec::interaction::InteractionManager;
using nbec::interaction::ToolInteractionContext;
namespace names = nbec::interaction::names;

void PlacingContext::setAnchoring(Anchoring newAnchoring)
{
    anchoring = std::move(newAnchoring);
}

bool PlacingContext::triggerEvent(InteractionManager* manager, const InteractionEvent& event)
{
    const bool isTool = event.getTool() == names::kTool;
    if (isTool && anchoring) {
        const bool isWay = event.getEvent() == names::kStart || event.getEvent() == names::kProcess;
        return (isWay && anchoring(getPointerPosition())) || event.getEvent() == names::kStop;
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
