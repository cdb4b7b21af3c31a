// SPDX-License-Identifier: MIT
/// @file
/// Counters of ended edits on a real OpenSG 1.8, read from its change list. An edit counts when it
/// ends with endEditCP; changedCP leaves no trace there. For the thread that edits the scene.
#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>
#include <OpenSG/OSGNode.h>

#define NB_GLUE_API __attribute__((visibility("default")))

namespace osg {

/// How many edits of whatever container ended in this process. While it stands still, nothing that
/// was edited as it should has changed.
NB_GLUE_API UInt64 getEditCount();

/// How often edits of the container ended. 0 for null.
NB_GLUE_API UInt32 getChangeCount(const FieldContainerPtr& container);

/// A number that grows between two calls if a node or core of the subtree below a node, which must
/// not be null, was edited. It grows also when nodes elsewhere change parents.
NB_GLUE_API UInt64 getSubtreeChangeCount(const NodePtr& node);

/// The same for whatever the cores own as well, such as materials and their chunks, which are
/// counted for all trees together. 0 for null.
NB_GLUE_API UInt64 getTreeChangeCount(const NodePtr& node);

namespace glue {

/// Who empties OpenSG's change list. OpenSG keeps it switched off (read-only) until somebody asks
/// for it. As long as nothing else is said, the counters do so when they are first asked, and empty
/// it each time they are. A host that needs the entries itself, for aspects of threads or a
/// cluster, says so with true, before the first manipulator is made: it switches the list on
/// (ChangeList::setReadWriteDefault), and calls noteChanges() each time before it empties it.
NB_GLUE_API void leaveChangeListToHost(bool leave);

/// Counts what the change list has got, which the host empties now.
NB_GLUE_API void noteChanges();

}  // namespace glue
}  // namespace osg
