// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/handles/HandleNodes.h"
#include "manipulator/nbManipulatorExport.h"

#include <OpenSG/OSGNode.h>

namespace nbec::manipulator {

/// Makes a node a gizmo's root: it is named "Manipulatorgroup" and marked as auxiliary, selectable
/// auxiliary (the picker may hit it while the scene's selection ignores it) and manipulator node.
/// @return the node
osg::NodePtr makeHandleRoot(const osg::NodePtr& node = osg::makeCoredNode<osg::Group>());

/// Makes a gizmo root over a complete handle tree and, after it, an unnamed copy of the tree that
/// is drawn first, with sort key 64014. The tree is marked auxiliary and selectable auxiliary.
osg::NodePtr makeHandleRootOver(const osg::NodePtr& tree);

/// Makes a gizmo root over the two passes in which a complete handle tree is drawn over the scene:
/// an unnamed copy of the tree (osg::cloneTree, shared cores) under a material group with an unlit
/// material, depth function GL_ALWAYS and sort key 64015, and the tree itself under a second one
/// with sort key 64017. Nodes that are added to the tree later have no copy; showNode() acts on
/// both passes through the cores.
NB_MANIPULATOR_API osg::NodePtr makeHandleRootOfPasses(const osg::NodePtr& tree);

}  // namespace nbec::manipulator
