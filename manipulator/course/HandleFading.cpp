// SPDX-License-Identifier: MIT
#include "manipulator/course/HandleFading.h"

#include <algorithm>

namespace nbec::manipulator {

namespace {

HandleFading& current()
{
    static HandleFading fading;
    return fading;
}

bool isRange(float gone, float full)
{
    return gone >= 0.0F && gone < full && full <= 1.0F;
}

}  // namespace

float HandleFading::opacity(const HandleAction& action, float openness) const
{
    if (!isOn || action.kind == DragParameters::Kind::Angle) {
        return 1.0F;
    }
    const float gone = action.isPlane() ? planeGone : axisGone;
    const float full = action.isPlane() ? planeFull : axisFull;
    return std::clamp((openness - gone) / (full - gone), 0.0F, 1.0F);
}

bool setHandleFading(const HandleFading& fading)
{
    const bool isRight =
        isRange(fading.axisGone, fading.axisFull) && isRange(fading.planeGone, fading.planeFull);
    if (isRight) {
        current() = fading;
    }
    return isRight;
}

const HandleFading& getHandleFading()
{
    return current();
}

}  // namespace nbec::manipulator
