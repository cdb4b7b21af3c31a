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

bool setHandleFading(const HandleFading& fading)
{
    const bool isRight = isRange(fading.axisGone, fading.axisFull) &&
        isRange(fading.planeGone, fading.planeFull) && fading.ringBack > 0.0F &&
        fading.ringBack <= 1.0F;
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
