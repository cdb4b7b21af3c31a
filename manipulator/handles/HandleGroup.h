// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/nbManipulatorExport.h"

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGRefPtr.h>

namespace nbec::manipulator {

/// Name of a gizmo's root node.
constexpr const char* kHandleGroupName = "Manipulatorgroup";

/// Name of the nodes that hold the two passes. Deliberate: both bear the same name.
constexpr const char* kDepthPassGroupName = "ManipulatorDepthPassMaterialGroup";

/// The two passes in which a handle tree is drawn over the scene. Both nodes have no parent yet; a
/// count is held.
struct HandlePasses
{
    osg::RefPtr<osg::NodePtr>
        depthPass;  ///< copy of the tree that shares its cores and bears no names, sort key 64015
    osg::RefPtr<osg::NodePtr> handlePass;  ///< the tree itself, sort key 64017
};

/// Arranges a complete handle tree in two passes: an unnamed copy (osg::cloneTree, shared cores)
/// under a material group with an unlit material, depth function GL_ALWAYS and sort key 64015, and
/// the tree itself under a second one with sort key 64017. The two materials share one
/// DepthTestChunk. The tree must be complete: nodes added later have no copy, and showNode() acts
/// on both passes through the cores.
/// @param tree  top node of the handles, becomes the child of the handle pass
HandlePasses makeHandlePasses(const osg::NodePtr& tree);

/// Marks a node as a gizmo's root: auxiliary, selectable auxiliary (the picker may hit it while the
/// scene's selection ignores it) and manipulator node.
void markHandleRoot(const osg::NodePtr& root);

/// Makes an empty gizmo root: a Group node named "Manipulatorgroup", marked as root.
osg::NodePtr makeHandleRoot();

/// Makes a gizmo root over a complete handle tree and, after it, the first of the two passes with
/// sort key 64014. The tree is marked auxiliary and selectable auxiliary.
osg::NodePtr makeHandleRootOver(const osg::NodePtr& tree);

/// Makes a gizmo root over the two passes of a complete handle tree.
NB_MANIPULATOR_API osg::NodePtr makeHandleRootOfPasses(const osg::NodePtr& tree);

}  // namespace nbec::manipulator
