// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/drag/DragParameters.h"
#include "manipulator/transform/TransformModes.h"

#include <nbOpenSGUtils/nbTransformState.h>

#include <OpenSG/OSGNode.h>

#include <QtCore/QString>

#include <vector>

namespace nbec::manipulator::transform {

/// The nodes that a transform gizmo edits, held by id: the dragged one first, then further ones.
class TransformTargets
{
public:
    /// @param further  of these left out are null, what is given twice, and what is above or below
    /// another of the nodes
    void set(const osg::NodePtr& node, const std::vector<osg::NodePtr>& further);

    std::size_t count() const { return ids.size(); }

    /// A node as it was set; null if it no longer exists.
    osg::NodePtr get(std::size_t index) const;

    osg::NodePtr first() const { return ids.empty() ? osg::NodePtr() : get(0); }

    /// Those whose transforms are edited, see editedNode(); null for what no longer exists.
    std::vector<osg::NodePtr> edited() const;

    bool isLocked(std::size_t index) const;

    /// Makes a node a transform, unless it is locked. @return null for one that no longer exists or
    /// cannot be one
    osg::NodePtr makeEditable(std::size_t index) const;

    /// Notes the transforms as they are, for restore().
    void capture();
    /// Sets them again, to the bit.
    void restore() const;

    /// Text of the values that a handle edits in a mode; empty without the first node. Deliberate:
    /// the universal mode shows none, whatever the handle, rings show theirs in mode rotate only,
    /// scale handles in mode scale only.
    /// @param anglesDeg  of the present rotation, as the drag has come to them
    QString describe(const HandleAction& action, ManipulatorMode mode, bool worldSpace,
                     const osg::Vec3f& anglesDeg) const;

private:
    std::vector<osg::UInt32> ids;
    std::vector<nbTransformState> captured;
};

}  // namespace nbec::manipulator::transform
