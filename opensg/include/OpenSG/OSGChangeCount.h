// SPDX-License-Identifier: MIT
/// @file
/// Change counters, an extension of the bundled scene graph: who keeps something derived from
/// containers (a vertex buffer, a bounding-volume tree) compares a counter instead of the contents.
#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>
#include <OpenSG/OSGNodePtr.h>

namespace osg {

namespace detail {

extern UInt64 editCount;
extern UInt64 sceneEditCount;

}  // namespace detail

/// How many edits of whatever container ended in this process. While it stands still, nothing that
/// was edited as it should has changed.
inline UInt64 getEditCount()
{
    return detail::editCount;
}

/// Moves with every edit of a node that has a parent or children, or of such a node's core, and
/// when a node ends. While it stands still, all these are where they were, whatever cameras (with
/// their beacons, which stand alone) and materials have gone through.
inline UInt64 getSceneEditCount()
{
    return detail::sceneEditCount;
}

/// How often edits of the container ended with endEditCP or changedCP. 0 for null. Wraps after
/// 2^32.
UInt32 getChangeCount(const FieldContainerPtr& container);

/// A number that moves whenever something in the tree below a node (itself included) was edited:
/// children, masks, cores, and whatever the cores own, such as geometry properties, materials and
/// their chunks. What hangs in no node is counted for all trees together, so the number may move
/// for a material of another tree as well; it never stands still wrongly. Constant time. 0 for
/// null.
UInt64 getTreeChangeCount(const NodePtr& node);

/// Edits of containers that are neither nodes nor cores nor indifferent to drawing; part of the
/// above.
UInt64 getSharedChangeCount();

}  // namespace osg
