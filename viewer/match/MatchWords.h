// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbdPerspectiveMatch.h>

#include <QString>

#include <array>

namespace viewer {

class PerspectiveMatchTool;

/// Such as "X1".
QString lineTitle(int line);

/// What the lines say about the camera, one line for a person.
QString resultText(const PerspectiveMatchTool& tool);

/// How well the lines tell the camera, for a person; "" for a camera that they do not give.
QString qualityText(const PerspectiveMatchTool& tool);

/// How far each line misses its vanishing point, device pixels, see PerspectiveQuality.
std::array<double, nbdPerspectiveMatch::kLineCount> residualsPx(const PerspectiveMatchTool& tool);

}  // namespace viewer
