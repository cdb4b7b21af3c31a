// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/course/View.h"
#include "manipulator/handles/HandleSet.h"

namespace nbec::manipulator {

/// Rank of a handle under the pointer by how it is seen: those whose motion can be seen come first,
/// then what points at the viewer and planes seen edge-on, then rings seen edge-on, which lie over
/// the arrows, then what lies behind all others.
int rankSeen(const HandleSet& handles, const osg::NodePtr& part, const View& view);

/// Adapts the handles of one gizmo to the view as far as they follow it: by fading, letters and the
/// backs of rings.
class HandleLooks
{
public:
    /// @param held  which never fades; 0 for none @return whether handles come or go
    bool adapt(HandleSet& handles, const View& view, int mode, int held);

private:
    bool isAnyFaded = false;
};

}  // namespace nbec::manipulator
