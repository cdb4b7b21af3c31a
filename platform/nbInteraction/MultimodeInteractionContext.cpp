// SPDX-License-Identifier: MIT
#include <nbInteraction/EventNames.h>
#include <nbInteraction/InteractionEvent.h>
#include <nbInteraction/MultimodeInteractionContext.h>

namespace nbec::interaction {

MultimodeInteractionContext::MultimodeInteractionContext(PreferredPosition position)
    : preferredPosition(position)
{ }

MultimodeInteractionContext::~MultimodeInteractionContext() = default;

bool MultimodeInteractionContext::triggerEvent(InteractionManager*, const InteractionEvent& event)
{
    if (event.getTool() != names::kModeTool) {
        return false;
    }
    // The mode is kept here as well, because an overriding selectMode need not do so.
    if (event.getEvent() == names::kStart && currentMode != event.getHint()) {
        currentMode = event.getHint();
        selectMode(event.getHint());
    } else if (event.getEvent() == names::kStop && currentMode == event.getHint()) {
        currentMode = names::kNoMode;
        selectMode(names::kNoMode);
    }
    return false;
}

bool MultimodeInteractionContext::selectMode(const std::string& mode)
{
    currentMode = mode;
    return true;
}

}  // namespace nbec::interaction
