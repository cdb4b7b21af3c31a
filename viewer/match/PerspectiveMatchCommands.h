// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbCameraTypes.h>

#include <array>

namespace viewer {

class PerspectiveMatchTool;
class Stage;

/// Words of commands for the vanishing-lines types, by their numbers.
constexpr std::array<const char*, nbCameraTypes::kVanishingLinesTypeCount> kLinesTypeNames {
    "xyz", "xy", "xz", "yz"
};
/// The same for nbCameraTypes::FovMode.
constexpr std::array<const char*, 2> kFovModeNames { "solved", "fixed" };

/// Gives a perspective match its commands and values, all of which begin with "match.":
///
/// | command | value |
/// |---|---|
/// | setPhotograph | file name, "" for none |
/// | setVeil | how much the photograph covers the models in match mode, 0 to 1 |
/// | setActive | true or false; null changes to the other |
/// | showLines, setLocked | true or false |
/// | setLinesType | "xyz", "xy", "xz" or "yz" |
/// | setFovMode | "solved" or "fixed" |
/// | setMagnifyFactor | number from 1 to 32 |
/// | setLine | {"line": "x1", "ends": [x1, y1, x2, y2]}, reference sizes from the lower left |
/// | layLines, solve | none |
/// | turn | "x", "y" or "z": the lines of the other two axes change places, the camera follows |
/// | placeByLine | {"line": "x1", "length": 2.5}: it begins at the origin and is so long |
/// | setLens | {"focalLength": 35, "sensorWidth": 36}, any unit |
/// | setEdgeSnapping | true or false |
///
/// Values: photograph, veil, active, linesShown, locked, linesType, fovMode, magnifyFactor, lines,
/// result, quality, residuals (device pixels by lines), edgeSnapping, fov (degrees), and corners:
/// the corners of the selected object's bounds as [x, y], device pixels from the upper left, in the
/// order of x, then y, then z, small before large.
void addPerspectiveMatchCommands(PerspectiveMatchTool& tool, Stage& stage);

}  // namespace viewer
