// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGExt/Transform3D.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

namespace nbec::manipulator::detail {

/// A new node with a core; no parent, count 0.
osg::NodePtr makeNode(const osg::NodeCorePtr& core);

/// A new node with a Group core.
osg::NodePtr makeGroupNode();

/// A new node with a ComponentTransform core.
osg::NodePtr makePlacedNode(const osg::Vec3f& translation, const osg::Quaternion& rotation);

/// A new node with a Transform3D core.
/// @param eulerDeg  rotation about the fixed axes x, then y, then z, degrees
osg::NodePtr makeTransform3DNode(const osg::Vec3f& eulerDeg);

/// Sets the parts of a transform inside an edit; one that has them already is not edited.
void placeTransform(const osg::Transform3DPtr& transform, const osg::Vec3f& translation,
                    const osg::Quaternion& rotation, const osg::Vec3f& scale);

/// Sets the translation of a node's ComponentTransform inside an edit, if it is another one.
void moveNode(const osg::NodePtr& node, const osg::Vec3f& translation);

/// Appends a child inside an edit of the parent. @return the parent
osg::NodePtr addChild(const osg::NodePtr& parent, const osg::NodePtr& child);

/// Sets the material of a node's geometry core, inside an edit; a node without one, or one that has
/// the material, is left alone.
void setGeometryMaterial(const osg::NodePtr& node, const osg::MaterialPtr& material);

/// A new node with a Geometry core of its own that shares all properties of another one, so that
/// the two differ in material and visibility only. No material is set.
osg::NodePtr makeSharingNode(const osg::GeometryPtr& prototype);

}  // namespace nbec::manipulator::detail
