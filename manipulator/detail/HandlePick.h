// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNode.h>

namespace nbec::manipulator {
class ManipulatorInteractionContext;
}  // namespace nbec::manipulator

namespace nbec::manipulator::detail {

/// Picks the handle under the pointer: the context's picker with its filter set to handles for this
/// pick and back to the scene after it.
/// @param ctx  may be null
/// @return the handle's node, null without a context, a picker or a hit
osg::NodePtr pickHandle(ManipulatorInteractionContext* ctx);

}  // namespace nbec::manipulator::detail
