// SPDX-License-Identifier: MIT
#include "viewer/stage/PreselectionTool.h"

#include "viewer/loading/BuiltModel.h"

#include <nbInteraction/EventNames.h>
#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbInteraction/ToolInteractionContext.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGSelection/nbSelection.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace viewer {
namespace {

/// Longest side of a drag that is still a click.
constexpr int kLeastRectanglePx = 6;

}  // namespace

bool PreselectionTool::hoverTool(nbec::interaction::ToolInteractionContext* context,
                                 const std::string& hint)
{
    SelectionTool::hoverTool(context, hint);
    nbec::interaction::Picker* picker = context->getPicker();
    const bool isPossible = picker != nullptr && nbScenegraph::isPreselectionEnabled();
    preselect(isPossible ? objectOf(picker->pick()) : osg::NodePtr());
    return preselectedId != 0;
}

/// The mark of an object is no edit, for which the view would be drawn anew.
void PreselectionTool::preselect(const osg::NodePtr& object)
{
    if (std::exchange(preselectedId, containerId(object)) != preselectedId) {
        nbOSGWidget::updateAll();
    }
}

bool PreselectionTool::stopHoverTool(nbec::interaction::ToolInteractionContext* context,
                                     const std::string& hint)
{
    preselect({});
    return SelectionTool::stopHoverTool(context, hint);
}

bool PreselectionTool::startTool(nbec::interaction::ToolInteractionContext* context,
                                 const std::string& hint)
{
    const bool isTaken = SelectionTool::startTool(context, hint);
    isBesideAll = isTaken && objectOf(context->getPicker()->pick()) == osg::NullFC;
    return isTaken;
}

bool PreselectionTool::processTool(nbec::interaction::ToolInteractionContext* context,
                                   const std::string& hint)
{
    nbOSGWidget* const view = nbOSGWidget::getMGLW(-1);
    if (isBesideAll && view != nullptr) {
        const QRect drawn = view->getMouseRect();
        view->setRectSelection(view->getRectSelection() ||
                               qMax(drawn.width(), drawn.height()) > kLeastRectanglePx);
        view->update();
    }
    return SelectionTool::processTool(context, hint);
}

bool PreselectionTool::stopTool(nbec::interaction::ToolInteractionContext* context,
                                const std::string& hint)
{
    nbOSGWidget* const view = nbOSGWidget::getMGLW(-1);
    const bool isDrawn = isBesideAll && view != nullptr && view->getRectSelection();
    isBesideAll = false;
    if (!isDrawn) {
        return SelectionTool::stopTool(context, hint);
    }
    view->setRectSelection(false);
    view->update();
    const auto* manager = context->getInteractionManager();
    if (manager != nullptr && manager->getDragEnd() != nbec::interaction::DragEnd::Released) {
        return SelectionTool::stopTool(context, hint);
    }
    std::vector<osg::NodePtr> objects;
    if (hint == nbec::interaction::names::kAdd || hint == nbec::interaction::names::kToggle) {
        objects = nbSelection::getNodes();
    }
    for (const osg::NodePtr& node : context->getPicker()->pickRectangle(view->getMouseRect())) {
        const osg::NodePtr object = objectOf(node);
        if (object != osg::NullFC &&
            std::find(objects.begin(), objects.end(), object) == objects.end()) {
            objects.push_back(object);
        }
    }
    nbSelection::set(objects);
    return true;
}

osg::NodePtr PreselectionTool::getPreselected() const
{
    const auto node = resolveContainer<osg::NodePtr>(preselectedId);
    const bool isThere = nbScenegraph::isPreselectionEnabled() &&
        nbNodeUtils::hasParent(node, nbScenegraph::getRootNode());
    return isThere ? node : osg::NodePtr();  // it may have been deleted under the pointer
}

}  // namespace viewer
