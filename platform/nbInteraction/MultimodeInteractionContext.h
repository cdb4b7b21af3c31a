// SPDX-License-Identifier: MIT
#pragma once

#include <nbInteraction/AbstractInteractionContext.h>

namespace nbec::interaction {

/// Context with a preferred position of its own that follows the interaction mode.
class NB_PLATFORM_API MultimodeInteractionContext : public AbstractInteractionContext
{
public:
    /// @param position  where the context wants to stand; any value
    explicit MultimodeInteractionContext(PreferredPosition position);
    /// A copy takes over position and mode, but no membership.
    MultimodeInteractionContext(const MultimodeInteractionContext&) = default;
    MultimodeInteractionContext& operator=(const MultimodeInteractionContext&) = default;

    /// Follows events of the tool "mode": "start" enters the mode that the hint names, "stop"
    /// leaves it for the mode "" if it is the current one; either calls selectMode. A mode already
    /// entered is not entered again.
    /// @return false always: a mode concerns every context, and no other event is handled
    bool triggerEvent(InteractionManager* manager, const InteractionEvent& event) override;

    PreferredPosition getPreferredPosition() override { return preferredPosition; }

    /// Keeps the mode. Overriding operations need not call it. @return true
    bool selectMode(const std::string& mode) override;

    /// @return the mode last entered through an event or kept by selectMode; "" at first
    const std::string& getMode() const { return currentMode; }

    ~MultimodeInteractionContext() override;

private:
    PreferredPosition preferredPosition;
    std::string currentMode;
};

}  // namespace nbec::interaction
