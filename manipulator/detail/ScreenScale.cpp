// SPDX-License-Identifier: MIT
#include "manipulator/detail/ScreenScale.h"

namespace nbec::manipulator::detail {

namespace {

constexpr double kSizeLimit = 200.0;
constexpr double kReference = 800.0;
constexpr float kViewsPerDiagonal = 20.0F;

}  // namespace

float perspectiveScale(double distance, float fovDeg, float size)
{
    const double sizeFactor = (kSizeLimit - static_cast<double>(size)) / kSizeLimit;
    return static_cast<float>(distance / (sizeFactor * kReference / static_cast<double>(fovDeg)));
}

float orthographicScale(float diagonal)
{
    return diagonal / kViewsPerDiagonal;
}

}  // namespace nbec::manipulator::detail
