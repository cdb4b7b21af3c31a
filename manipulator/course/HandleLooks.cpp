// SPDX-License-Identifier: MIT
#include "manipulator/course/HandleLooks.h"

#include "manipulator/course/HandleFading.h"
#include "manipulator/handles/HandlePalette.h"

namespace nbec::manipulator {

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

bool HandleLooks::adapt(HandleSet& handles, const View& view, int mode, int held)
{
    const HandleFading& fading = getHandleFading();
    const bool isTurned = handles.isTurned() || getHandlePalette().hasLetters;
    if ((!fading.isInForce() && !isAnyFaded && !isTurned) || !view.exists()) {
        return false;
    }
    const osg::Vec3f sight = view.sightAt(handles.centre());
    bool hasOther = false;
    isAnyFaded = false;
    const std::vector<HandleRow>& rows = handles.getTable().rows;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const bool isFree = rows[i].handle != 0 && rows[i].handle != held;
        const float opacity = isFree
            ? fading.opacity(rows[i].action, handles.openness(rows[i], sight), handles.hasFront(i))
            : 1.0F;
        hasOther = handles.setOpacity(i, opacity, mode) || hasOther;
        isAnyFaded = isAnyFaded || opacity < 1.0F;
    }
    if (isAnyFaded || isTurned) {
        handles.face(sight, view.facing(), mode);
    }
    return hasOther;
}

}  // namespace nbec::manipulator
