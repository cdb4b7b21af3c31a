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

}  // namespace nbec::manipulator
