// SPDX-License-Identifier: MIT
#include "viewer/plates/PlatePickContext.h"

#include <nbInteraction/EventNames.h>
#include <nbInteraction/InteractionEvent.h>
#include <nbInteraction/InteractionManager.h>
#include <nbKernel/nbOSGWidget.h>

namespace viewer {

namespace names = nbec::interaction::names;
using nbec::interaction::DragEnd;
using nbec::interaction::InteractionEvent;
using nbec::interaction::InteractionManager;
using nbec::interaction::ToolInteractionContext;

PlatePickContext::PlatePickContext()
    : ToolInteractionContext(nbec::interaction::Tool)
{ }

bool PlatePickContext::triggerEvent(InteractionManager* manager, const InteractionEvent& event)
{
    if (event.getTool() != getToolName() || event.getEvent() == names::kStopHover) {
        return ToolInteractionContext::triggerEvent(manager, event);
    }
    if (event.getEvent() == names::kStop) {
        return stop(manager, event);
    }
    ToolInteractionContext::triggerEvent(manager, event);
    return true;
}

bool PlatePickContext::stop(InteractionManager* manager, const InteractionEvent& event)
{
    if (manager == nullptr || manager->getDragEnd() == DragEnd::Released) {
        ToolInteractionContext::triggerEvent(manager, event);
    }
    // Also for hints that mean nothing to the tool.
    if (nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1); widget != nullptr) {
        widget->setRectSelection(false);
        widget->update();
    }
    return true;
}

}  // namespace viewer
