// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>

/// Whether all numbers of a vector, point or quaternion are finite.
template <class Vector>
bool nbIsFinite(const Vector& vector)
{
    const auto* const numbers = vector.getValues();
    return std::all_of(numbers, numbers + sizeof(Vector) / sizeof(*numbers),
                       [](auto number) { return std::isfinite(number); });
}
