// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNode.h>

namespace nbec::manipulator::detail {

/// Shows or hides a handle, group or whole handle tree, in both passes: acts on every node that has
/// the given node's core, because the depth-pass copy shares the cores of the handles. Nodes that
/// are so already are not edited.
/// @param node  null or a node without a core does nothing
void showNode(const osg::NodePtr& node, bool visible);

}  // namespace nbec::manipulator::detail
