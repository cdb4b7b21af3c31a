// SPDX-License-Identifier: MIT
#pragma once

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

}  // namespace viewer
