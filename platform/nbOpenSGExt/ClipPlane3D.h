// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGVector.h>

#include <FieldContainerGlue.h>

namespace osg {

class NB_PLATFORM_API ClipPlane3D;
NB_CONTAINER_POINTER(ClipPlane3D, GroupPtr);

// clang-format off
#define NB_CLIP_PLANE_3D_FIELDS(VALUE, OWNED, LINK)                                                \
    VALUE(Equation, equation, Vec4f, Vec4f(0.0F, 1.0F, 0.0F, 0.0F))                                    \
    VALUE(Enable, enable, bool, true)                                                              \
    VALUE(TransformNodeId, transformNodeId, UInt32, 0)

// clang-format on

/// Core that cuts off what is drawn below its node: of the plane (a, b, c, d), points with
/// a x + b y + c z + d < 0 are not shown; at the start the upper half of space stays.
/// The equation is in the frame of the transform node, so that moving and turning that node (with a
/// gizmo, say) moves the cut; without one, or when it has been destroyed, it is in the frame of the
/// core's own node. The transform node may stand anywhere in the scene, also below what is cut. It
/// is kept by id and not counted; a copy of the core refers to the same node.
class NB_PLATFORM_API ClipPlane3D : public Group
{
    NB_CONTAINER(ClipPlane3D, Group, NB_CLIP_PLANE_3D_FIELDS);

public:
    /// The node whose frame the plane is in; null without one.
    NodePtr getTransformNode() const;

    /// Null takes it away. Edited with TransformNodeIdFieldMask.
    void setTransformNode(const NodePtr& node);

    /// The plane in world space with a normal of unit length, for one of the nodes that have this
    /// core.
    /// @param node    gives the frame where there is no transform node
    /// @param result  written only on success
    /// @return false if nothing is to be cut: the plane is off, the node null, the normal zero, or
    /// the frame flattened to a plane or not finite
    bool getWorldEquation(const NodePtr& node, Vec4f& result) const;
};

}  // namespace osg
