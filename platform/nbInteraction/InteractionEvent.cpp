// SPDX-License-Identifier: MIT
#include <nbInteraction/InteractionEvent.h>

namespace nbec::interaction {

InteractionEvent::InteractionEvent(const std::string& eventName, const std::string& toolName,
                                   const std::string& hintText, double amountValue)
    : event(eventName)
    , tool(toolName)
    , hint(hintText)
    , amount(amountValue)
{ }

const std::string& InteractionEvent::getEvent() const
{
    return event;
}

const std::string& InteractionEvent::getTool() const
{
    return tool;
}

const std::string& InteractionEvent::getHint() const
{
    return hint;
}

double InteractionEvent::getAmount() const
{
    return amount;
}

}  // namespace nbec::interaction
