// SPDX-License-Identifier: MIT
#include "viewer/commands/JsonNumbers.h"

#include <QByteArray>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace viewer {

QJsonValue exactJson(float value)
{
    constexpr std::size_t kMostDigits = 64;
    std::array<char, kMostDigits> digits {};
    char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    const double found =
        QByteArray(digits.data(), static_cast<int>(end - digits.data())).toDouble();
    // What is read in double precision first may be rounded the other way, or be out of range.
    const bool isGivenBack = std::abs(found) <= double(std::numeric_limits<float>::max()) &&
        static_cast<float>(found) == value;
    return exactJson(isGivenBack ? found : static_cast<double>(value));
}

QJsonValue exactJson(double value)
{
    return value == 0.0 && std::signbit(value) ? QJsonValue("-0") : QJsonValue(value);
}

}  // namespace viewer
