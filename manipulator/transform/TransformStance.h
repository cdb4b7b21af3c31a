// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/course/View.h"
#include "manipulator/drag/DragParameters.h"
#include "manipulator/transform/TransformModes.h"
#include "manipulator/transform/TransformTargets.h"

#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

#include <optional>

namespace nbec::manipulator::transform {

/// What all transform gizmos share beside their size.
struct TransformSettings
{
    bool m_LocalSpaceManipulator = false;
    bool _temporary_snapping_active = false;
};

/// Where a transform gizmo stands while nothing is dragged, and along which axes it works. Nodes
/// are those whose transforms are edited, not null; all else is in the world.
struct TransformStance
{
    const TransformSettings* settings;
    GizmoAxes axes = GizmoAxes::Shared;
    osg::Quaternion givenAxes {};
    GizmoPivot pivot = GizmoPivot::Own;
    osg::Pnt3f givenPivot {};
    std::optional<osg::Quaternion> heldFacing {};  ///< of the view that a drag began in

    /// Whether the axes are the node's own.
    bool isOwn() const
    {
        return axes == GizmoAxes::Shared ? settings->m_LocalSpaceManipulator
                                         : axes == GizmoAxes::Own;
    }

    /// Whether all nodes turn and scale about one point in a mode.
    bool hasOnePoint(ManipulatorMode mode) const
    {
        return !movesPivot(mode) && (pivot == GizmoPivot::Common || pivot == GizmoPivot::Given);
    }

    /// The pivot of a node with which a mode works.
    static osg::Pnt3f anchor(const osg::NodePtr& node, ManipulatorMode mode);

    /// Where the gizmo stands. @param node  the first
    osg::Pnt3f centre(const osg::NodePtr& node, ManipulatorMode mode,
                      const TransformTargets& targets) const;

    /// Turn of the camera, or as it was when the drag began.
    osg::Quaternion facing() const { return heldFacing ? *heldFacing : View().facing(); }

    /// The axes along which a handle is drawn and works. @param action  of no kind for the gizmo as
    /// a whole
    osg::Quaternion axesOf(const HandleAction& action, ManipulatorMode mode,
                           const osg::NodePtr& node) const;
};

}  // namespace nbec::manipulator::transform
