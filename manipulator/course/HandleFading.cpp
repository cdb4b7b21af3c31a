// SPDX-License-Identifier: MIT
#include "manipulator/course/HandleFading.h"

#include "manipulator/handles/HandlePalette.h"

#include <algorithm>

namespace nbec::manipulator {

namespace {

HandleFading fading;

/// Openness of a ring from which on its back half is drawn more and more as the front.
constexpr float kBackShown = 0.75F;
constexpr float kBackFading = 0.2F;

bool isRange(float gone, float full)
{
    return gone >= 0.0F && gone < full && full <= 1.0F;
}

}  // namespace

float HandleFading::opacity(const HandleAction& action, float openness, bool hasFront) const
{
    if (hasFront) {
        return std::clamp((openness - kBackShown) / kBackFading, ringBack, 1.0F);
    }
    if (!isOn || action.kind == DragParameters::Kind::Angle) {
        return 1.0F;
    }
    const float gone = action.isPlane() ? planeGone : axisGone;
    const float full = action.isPlane() ? planeFull : axisFull;
    return std::clamp((openness - gone) / (full - gone), 0.0F, 1.0F);
}

bool setHandleFading(const HandleFading& wanted)
{
    const bool isRight = isRange(wanted.axisGone, wanted.axisFull) &&
        isRange(wanted.planeGone, wanted.planeFull) && wanted.ringBack > 0.0F &&
        wanted.ringBack <= 1.0F;
    if (isRight) {
        fading = wanted;
    }
    return isRight;
}

const HandleFading& getHandleFading()
{
    return fading;
}

int rankSeen(const HandleSet& handles, const osg::NodePtr& part, const View& view)
{
    using Kind = DragParameters::Kind;
    constexpr float kLeastOpenness = 0.1F;
    constexpr float kLeastOpennessOfPlane = 0.175F;
    const HandleRow* const row = handles.findRow(part);
    if (row == nullptr || !view.exists()) {
        return 0;
    }
    if (row->action.kind == Kind::Turns) {
        return 3;
    }
    const float openness = handles.openness(*row, view.sightAt(handles.centre()));
    if (row->action.kind == Kind::Angle) {
        return openness < kLeastOpenness ? 2 : 0;
    }
    return openness < (row->action.isPlane() ? kLeastOpennessOfPlane : kLeastOpenness) ? 1 : 0;
}

bool adaptToView(HandleSet& handles, const View& view, int mode, int held)
{
    const bool isTurned = handles.isTurned() || getHandlePalette().hasLetters;
    if ((!fading.isInForce() && !handles.isFaded() && !isTurned) || !view.exists()) {
        return false;
    }
    const osg::Vec3f sight = view.sightAt(handles.centre());
    bool hasOther = false;
    const std::vector<HandleRow>& rows = handles.getTable().rows;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const bool isFree = rows[i].handle != 0 && rows[i].handle != held;
        const float opacity = isFree
            ? fading.opacity(rows[i].action, handles.openness(rows[i], sight), handles.hasFront(i))
            : 1.0F;
        hasOther = handles.setOpacity(i, opacity, mode) || hasOther;
    }
    if (isTurned || handles.isFaded()) {
        handles.face(sight, view.facing(), mode);
    }
    return hasOther;
}

}  // namespace nbec::manipulator
