// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <string>

namespace nbec::interaction {

/// A named event of the user: what happened, for which tool, and how it is meant. An immutable
/// value; all three strings may be anything.
class NB_PLATFORM_API InteractionEvent
{
public:
    /// @param eventName  what happened ("start", "process", "stop", "hover", "stopHover", ...)
    /// @param toolName   whom it concerns ("tool", "mode", "camera", ...)
    /// @param hintText   how it is meant ("select", "toggle", "orbit", ...)
    /// @param amountValue  extent of a stepless action, such as wheel steps (positive away from the
    /// user); 0 where the event has none
    /// @param fine  whether Shift was held, for small steps of such an action
    InteractionEvent(const std::string& eventName, const std::string& toolName,
                     const std::string& hintText, double amountValue = 0.0, bool fine = false)
        : event(eventName)
        , tool(toolName)
        , hint(hintText)
        , amount(amountValue)
        , isFineStep(fine)
    { }

    const std::string& getEvent() const { return event; }

    const std::string& getTool() const { return tool; }

    const std::string& getHint() const { return hint; }

    double getAmount() const { return amount; }

    bool isFine() const { return isFineStep; }

private:
    std::string event;
    std::string tool;
    std::string hint;
    double amount = 0.0;
    bool isFineStep = false;
};

}  // namespace nbec::interaction
