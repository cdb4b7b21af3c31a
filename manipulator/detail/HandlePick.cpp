// SPDX-License-Identifier: MIT
#include "manipulator/detail/HandlePick.h"

#include "manipulator/ManipulatorInteractionContext.h"

#include <nbInteraction/Picker.h>

namespace nbec::manipulator::detail {

osg::NodePtr pickHandle(ManipulatorInteractionContext* ctx)
{
    using interaction::Picker;
    Picker* const picker = ctx != nullptr ? ctx->getPicker() : nullptr;
    if (picker == nullptr) {
        return osg::NodePtr();
    }
    picker->setFilter(Picker::HandleFilter);
    const osg::NodePtr hit = picker->pick();
    picker->setFilter(Picker::SceneFilter);
    return hit;
}

}  // namespace nbec::manipulator::detail
