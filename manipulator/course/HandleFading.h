// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/course/View.h"
#include "manipulator/handles/HandleSet.h"
#include "manipulator/nbManipulatorExport.h"

namespace nbec::manipulator {

/// How handles fade whose motion is hardly seen: arrows and scale handles that point at the viewer
/// and planes seen edge-on. Rings stay: seen edge-on they are turned along their line; but their
/// back halves may be dim. Numbers are sines of the angle to the line of sight, 0 to 1.
struct HandleFading
{
    bool isOn = false;
    float axisFull = 0.1F;  ///< from here on an axis is drawn in full
    float axisGone = 0.02F;  ///< to here it is not drawn and cannot be grabbed
    float planeFull = 0.25F;
    float planeGone = 0.175F;
    /// Share in which the back halves of rings about axes are drawn, above 0 to 1, also while
    /// nothing else fades. Of a ring seen from nearly above nothing is behind.
    float ringBack = 1.0F;

    /// Whether anything is drawn otherwise.
    bool isInForce() const { return isOn || ringBack < 1.0F; }

    /// Share in which a handle, or a ring's back half, is drawn, 0 to 1.
    /// @param openness  see HandleSet::openness() @param hasFront  of rings that have two halves
    float opacity(const HandleAction& action, float openness, bool hasFront) const;
};

/// Sets how handles of all gizmos fade; off at the start. They take it when they are placed next.
/// What is held never fades. For example HandleFading fading; fading.isOn = true;
/// setHandleFading(fading).
/// @return false, and nothing is set, unless 0 <= gone < full <= 1 for both and 0 < ringBack <= 1
NB_MANIPULATOR_API bool setHandleFading(const HandleFading& fading);
NB_MANIPULATOR_API const HandleFading& getHandleFading();

/// Rank of a handle under the pointer by how it is seen: those whose motion can be seen come first,
/// then what points at the viewer and planes seen edge-on, then rings seen edge-on, which lie over
/// the arrows, then what lies behind all others.
int rankSeen(const HandleSet& handles, const osg::NodePtr& part, const View& view);

/// Adapts handles to the view as far as they follow it: by fading, letters and the backs of rings.
/// @param held  which never fades; 0 for none @return whether handles come or go
bool adaptToView(HandleSet& handles, const View& view, int mode, int held);

}  // namespace nbec::manipulator
