// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/nbManipulatorExport.h"

#include <nbOpenSGExt/Transform3D.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

#include <vector>

namespace nbec::manipulator {

/// A new node with a ComponentTransform core.
osg::NodePtr makePlacedNode(const osg::Vec3f& translation, const osg::Quaternion& rotation);

/// A new node with a Transform3D core.
/// @param eulerDeg  rotation about the fixed axes x, then y, then z, degrees
osg::NodePtr makeTransform3DNode(const osg::Vec3f& eulerDeg);

/// Sets the parts of a transform inside an edit; one that has them already is not edited.
NB_MANIPULATOR_API void placeTransform(const osg::Transform3DPtr& transform,
                                       const osg::Vec3f& translation,
                                       const osg::Quaternion& rotation, const osg::Vec3f& scale);

/// Sets translation and rotation of a node's ComponentTransform inside an edit, if they are others.
void moveNode(const osg::NodePtr& node, const osg::Vec3f& translation,
              const osg::Quaternion& rotation = osg::Quaternion());

/// Sets the matrix of a node's Transform inside an edit; one that has it already is not edited.
NB_MANIPULATOR_API void setMatrix(const osg::NodePtr& node, const osg::Matrix& matrix);

/// Appends a child inside an edit of the parent. @return the parent
osg::NodePtr addChild(const osg::NodePtr& parent, const osg::NodePtr& child);

/// Sets the material of a node's geometry core, inside an edit; a node without one, or one that has
/// the material, is left alone.
void setGeometryMaterial(const osg::NodePtr& node, const osg::MaterialPtr& material);

/// Shows or hides a handle, group or whole handle tree, in both passes: acts on every node that has
/// the given node's core, because the depth-pass copy shares the cores of the handles. Nodes that
/// are so already are not edited.
/// @param node  null or a node without a core does nothing
NB_MANIPULATOR_API void showNode(const osg::NodePtr& node, bool visible);

/// A new node with a Geometry core of its own that shares all properties of another one, so that
/// the two differ in material and visibility only. No material is set.
osg::NodePtr makeSharingNode(const osg::GeometryPtr& prototype);

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
