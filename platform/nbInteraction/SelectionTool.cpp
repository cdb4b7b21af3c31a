// SPDX-License-Identifier: MIT
#include <nbInteraction/EventNames.h>
#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbInteraction/SelectionTool.h>
#include <nbInteraction/ToolInteractionContext.h>
#include <nbInteraction/detail/ScenePick.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGSelection/nbSelection.h>

#include <cmath>

namespace nbec::interaction {

namespace {

bool isSelectionHint(const std::string& hint)
{
    return hint == names::kSelect || hint == names::kSelectThrough || hint == names::kAdd ||
        hint == names::kToggle;
}

void applyClick(const osg::NodePtr& node, const std::string& hint)
{
    if (hint == names::kAdd) {
        nbSelection::add(node);
    } else if (hint == names::kToggle) {
        nbSelection::toggle(node);
    } else {
        nbSelection::set(node);
    }
}

bool wasReleased(const ToolInteractionContext& context)
{
    const InteractionManager* const manager = context.getInteractionManager();
    return !manager || manager->getDragEnd() == DragEnd::Released;
}

}  // namespace

bool SelectionTool::startTool(ToolInteractionContext* context, const std::string& hint)
{
    pressed = isSelectionHint(hint) && context->getPicker();
    pressPx = context->getPointerPosition();
    return pressed;
}

bool SelectionTool::stopTool(ToolInteractionContext* context, const std::string& hint)
{
    if (!pressed) {
        return false;
    }
    pressed = false;
    Picker* const picker = context->getPicker();
    if (picker && wasReleased(*context) && isClick(context->getPointerPosition())) {
        applyClick(detail::pickScene(*picker), hint);
    }
    return true;
}

bool SelectionTool::isClick(const osg::Pnt2f& releasePx) const
{
    const float distance = std::hypot(releasePx[0] - pressPx[0], releasePx[1] - pressPx[1]);
    return distance <= kClickTolerance * nbOSGWidget::getPixelRatio(-1);
}

}  // namespace nbec::interaction
