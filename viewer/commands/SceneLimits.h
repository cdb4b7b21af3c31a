// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>

namespace viewer {

/// What a number of a scene, a model or a command may be, so that places, distances and rays that
/// are worked out of it are finite.
constexpr float kLargestNumber = 1e15F;
constexpr float kSmallestScale = 1e-15F;

/// Whether a scale leaves something to be seen, and to be scaled back.
inline bool isScale(float factor)
{
    return std::abs(factor) >= kSmallestScale && std::abs(factor) <= kLargestNumber;
}

/// A number that is not finite is none.
template <class Number>
bool isSceneNumber(Number number)
{
    return std::abs(number) <= Number(kLargestNumber);
}

/// The nearest number and scale that a scene can have, 0 for none: what models and drags add up to
/// beyond the limits is saved at the limit, as otherwise nothing could be saved.
template <class Number>
Number nearestSceneNumber(Number number)
{
    const Number most(kLargestNumber);
    return std::isnan(number) ? Number(0) : std::clamp(number, -most, most);
}

inline float nearestScale(float factor)
{
    return std::copysign(std::max(kSmallestScale, std::abs(factor)), factor);
}

}  // namespace viewer
