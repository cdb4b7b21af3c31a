// SPDX-License-Identifier: MIT
#pragma once

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

/// Appends a child inside an edit of the parent. @return the parent
osg::NodePtr addChild(const osg::NodePtr& parent, const osg::NodePtr& child);

/// Sets the material of a node's geometry core, inside an edit; a node without one, or one that has
/// the material, is left alone.
void setGeometryMaterial(const osg::NodePtr& node, const osg::MaterialPtr& material);

/// A new node with a Geometry core of its own that shares all properties of another one, so that
/// the two differ in material and visibility only. No material is set.
osg::NodePtr makeSharingNode(const osg::GeometryPtr& prototype);

/// Geometry of handles that all gizmos share: built once per process, on first use.
enum class HandleShape
{
    ArrowShaft,  ///< line of length 2 along y, centred
    ArrowHead,  ///< cone, height 0.4, radius 0.1, 24 sides, axis y, centred
    ScaleShaft,  ///< line of length 1.5 along y, centred at 0.75
    ScaleCube,  ///< box of 0.175, centred at 1.5 on y
    Cube,  ///< box of 0.175, centred
    Ring,  ///< line circle of radius 1.5 about y, 36 segments
    RingAxis,  ///< line of length 20 along y, centred
    PlanePatch,  ///< square of 0.4 in the xy plane, centred at (0.2, 0.2)
    PlaneBarX,  ///< bar of length 0.4 along x, centred at (0.2, 0.4): cylinder, radius 0.02, 8
                ///< sides
    PlaneBarY,  ///< bar of length 0.4 along y, centred at (0.4, 0.2)
    CentreSphere  ///< sphere of radius 0.125
};

/// A new node with a Geometry core of its own that shares its properties with all other nodes of
/// the shape: visibility and colour sit on the core, so that no two handles share one. No material
/// is set.
osg::NodePtr makeShapeNode(HandleShape shape);

}  // namespace nbec::manipulator::detail
