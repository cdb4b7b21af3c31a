// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonValue>

namespace viewer {

/// What gives a number back, bit for bit, when it is read in double precision and brought back to
/// this type, written with the fewest digits. JSON knows no negative zero: it becomes the text
/// "-0".
/// @param value  finite
QJsonValue exactJson(float value);
QJsonValue exactJson(double value);

/// The number of double precision that is written with the fewest digits that give a number of
/// single precision back, such as 0.1 for the nearest float to it.
/// @param value  finite
double shortDouble(float value);

}  // namespace viewer
