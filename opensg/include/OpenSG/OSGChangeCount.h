// SPDX-License-Identifier: MIT
/// @file
/// Change counters, an extension of the bundled scene graph: who keeps something derived from
/// containers (a vertex buffer, a bounding-volume tree) compares a counter instead of the contents.
#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>
#include <OpenSG/OSGNode.h>

namespace osg {

namespace detail {

extern UInt64 editCount;
extern UInt64 sharedChangeCount;

}  // namespace detail

/// How many edits of whatever container ended in this process. While it stands still, nothing that
/// was edited as it should has changed.
inline UInt64 getEditCount()
{
    return detail::editCount;
}

/// How often edits of the container ended with endEditCP or changedCP. 0 for null. Wraps after
/// 2^32.
inline UInt32 getChangeCount(const FieldContainerPtr& container)
{
    return container != NullFC ? container->changeCount : 0;
}

/// A number that grows between two calls if a node or core of the subtree below a node, which must
/// not be null, was edited. Constant time.
inline UInt64 getSubtreeChangeCount(const NodePtr& node)
{
    return node->readChange();
}

/// A number that moves whenever something in the tree below a node (itself included) was edited:
/// children, masks, cores, and whatever the cores own, such as geometry properties, materials and
/// their chunks. What hangs in no node is counted for all trees together, so the number may move
/// for a material of another tree as well; it never stands still wrongly. Constant time. 0 for
/// null.
inline UInt64 getTreeChangeCount(const NodePtr& node)
{
    return node != NullFC ? getSubtreeChangeCount(node) + detail::sharedChangeCount : 0;
}

}  // namespace osg
