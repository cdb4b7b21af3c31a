// SPDX-License-Identifier: MIT
#pragma once

#include <nbInteraction/ToolInteractionContext.h>

#include <functional>
#include <string>

namespace viewer {

/// The context of a tool that places by clicks, or that of clicks which place handles, which is no
/// edit.
class PlacingContext : public nbec::interaction::ToolInteractionContext
{
public:
    bool triggerEvent(nbec::interaction::InteractionManager* manager,
                      const nbec::interaction::InteractionEvent& event) override;

    /// Places handles at a pixel. @return whether there is a place for them
    using Anchoring = std::function<bool(const osg::Pnt2f& px)>;

    /// Has clicks place handles; empty: they go to the tool.
    /// @param whenPlaced  called when the button was let go after that
    void setAnchoring(Anchoring newAnchoring, std::function<void()> whenPlaced);

private:
    bool anchor(const nbec::interaction::InteractionManager* manager, const std::string& event);

    Anchoring anchoring;
    std::function<void()> anchored;
    bool isAnchored = false;
};

}  // namespace viewer
