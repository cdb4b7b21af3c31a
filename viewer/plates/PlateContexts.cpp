// SPDX-License-Identifier: MIT
#include "viewer/plates/PlateContexts.h"

#include <nbInteraction/EventNames.h>
#include <nbInteraction/InteractionEvent.h>
#include <nbInteraction/InteractionManager.h>
#include <nbKernel/nbOSGWidget.h>

#include <utility>

namespace viewer {
namespace {

/// Name of the handle that lies over everything within the frame.
const char* const kBody = "grid";

osg::Pnt2f pointer()
{
    const nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    return widget != nullptr ? widget->getMousePosition() : osg::Pnt2f();
}

}  // namespace

namespace names = nbec::interaction::names;
using nbec::interaction::DragEnd;
using nbec::interaction::InteractionEvent;
using nbec::interaction::InteractionManager;
using nbec::interaction::ToolInteractionContext;

bool PlateDragContext::triggerEvent(InteractionManager* manager, const InteractionEvent& event)
{
    const bool isTool = event.getTool() == names::kTool;
    const bool isStop = isTool && event.getEvent() == names::kStop;
    if (isTool && event.getEvent() == names::kProcess) {
        isClick = isClick &&
            (pointer() - pressPx).length() <= kClickTolerance * nbOSGWidget::getPixelRatio(-1);
    }
    const bool isReleased = manager == nullptr || manager->getDragEnd() == DragEnd::Released;
    const bool isClickOnBody =
        isStop && isClick && grabbedHandle() == kBody && isReleased && clickCallback;
    const bool answer = DragContext::triggerEvent(manager, event);
    if (isTool && event.getEvent() == names::kStart) {
        pressPx = pointer();
        isClick = answer;
    }
    if (isClickOnBody) {
        clickCallback(event.getHint());
    }
    return answer;
}

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
