// SPDX-License-Identifier: MIT
#pragma once

#include <nbInteraction/ToolInteractionContext.h>

namespace viewer {

/// Context of the tool that picks scene plates. It takes every drag and hover of the tool, also
/// where there is no plate, so that a rectangle may begin anywhere and nothing of the 3D scene is
/// selected. A drag that was interrupted or cancelled picks nothing.
class PlatePickContext : public nbec::interaction::ToolInteractionContext
{
public:
    PlatePickContext();

    bool triggerEvent(nbec::interaction::InteractionManager* manager,
                      const nbec::interaction::InteractionEvent& event) override;

private:
    bool stop(nbec::interaction::InteractionManager* manager,
              const nbec::interaction::InteractionEvent& event);
};

}  // namespace viewer
