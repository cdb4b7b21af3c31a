// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGExt/Transform3D.h>

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGQuaternion.h>

namespace nbec::manipulator {

/// The node whose transform is edited for a selected one: a clip plane's transform node, otherwise
/// the node itself.
osg::NodePtr editedNode(const osg::NodePtr& node);

/// World from the frame of a node's parent; the identity for a node without a parent.
osg::Matrix parentToWorld(const osg::NodePtr& node);

/// A transform's pivot in world space: parent * (translation + rotate pivot), or the image of the
/// scale pivot under the transform without its scale, parent * T(translation) T(rotatePivot) R RO
/// T(-rotatePivot) * scale pivot.
/// @param transform  core of the node
/// @param scalePivot  the scale pivot instead of the rotate pivot
osg::Pnt3f pivotWorld(const osg::NodePtr& node, const osg::Transform3DPtr& transform,
                      bool scalePivot);

/// Orientation of a node's axes in the world, without scale and shear; see orthonormalised().
osg::Quaternion worldRotation(const osg::NodePtr& node);

/// Orientation of the axes of a transform's rotate pivot in the world: of its rotation without the
/// rotation orientation.
osg::Quaternion pivotAxesInWorld(const osg::NodePtr& node, const osg::Transform3DPtr& transform);

/// Centre of the node's volume, of its origin if it has none.
/// @param worldSpace  in the world; otherwise in the node's own frame, in which pivots are given
osg::Pnt3f objectCenter(const osg::NodePtr& node, bool worldSpace);

/// Makes a node a transform, with both pivots at the centre of its volume; the scene root keeps
/// its own. No undo step by itself: a drag that ends where it began leaves none.
/// @return null if it cannot be one
osg::NodePtr makeTransform(const osg::NodePtr& node);

/// Whether a node's core is a Transform3D with one of its pivots set away from the origin.
bool hasPivots(const osg::NodePtr& node);

/// Sets both pivots of a node's Transform3D to a point of its own frame; the object stays where it
/// is. Nothing for another core.
void setBothPivots(const osg::NodePtr& node, const osg::Pnt3f& point);

}  // namespace nbec::manipulator
