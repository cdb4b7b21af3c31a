// SPDX-License-Identifier: MIT
#include "viewer/stage/PreselectionTool.h"

#include "viewer/loading/BuiltModel.h"

#include <nbInteraction/Picker.h>
#include <nbInteraction/ToolInteractionContext.h>
#include <nbKernel/nbScenegraph.h>

#include <OpenSG/OSGFieldContainerFactory.h>

namespace viewer {

bool PreselectionTool::hoverTool(nbec::interaction::ToolInteractionContext* context,
                                 const std::string& hint)
{
    SelectionTool::hoverTool(context, hint);
    preselectedId = 0;
    nbec::interaction::Picker* picker = context->getPicker();
    if (picker == nullptr || !nbScenegraph::isPreselectionEnabled()) {
        return false;
    }
    const osg::NodePtr object = objectOf(picker->pick());
    if (object == osg::NullFC) {
        return false;
    }
    preselectedId = object.getFieldContainerId();
    return true;
}

bool PreselectionTool::stopHoverTool(nbec::interaction::ToolInteractionContext* context,
                                     const std::string& hint)
{
    preselectedId = 0;
    return SelectionTool::stopHoverTool(context, hint);
}

osg::NodePtr PreselectionTool::getPreselected() const
{
    if (preselectedId == 0 || !nbScenegraph::isPreselectionEnabled()) {
        return {};
    }
    return osg::NodePtr::dcast(osg::FieldContainerFactory::the()->getContainer(preselectedId));
}

}  // namespace viewer
