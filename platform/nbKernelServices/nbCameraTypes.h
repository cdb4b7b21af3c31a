// SPDX-License-Identifier: MIT
#pragma once

/// Settings of cameras that a perspective match knows.
namespace nbCameraTypes {

/// Which axes' lines of a perspective match are used, by the axes of the world. Lines of an axis
/// that is not used are kept but mean nothing; a display may leave them out or show them faintly.
enum VanishingLinesType : int
{
    XYZLines = 0,  ///< all six: three vanishing points, the best fit to all of them
    XYLines = 1,  ///< X and Y: two vanishing points
    XZLines = 2,  ///< X and Z: two vanishing points, the ground axes of a world with y up
    YZLines = 3,  ///< Y and Z: two vanishing points
};

/// Numbers of VanishingLinesType lie from 0 to below this.
inline constexpr int kVanishingLinesTypeCount = 4;

/// What a perspective match does to the camera's field of view.
enum FovMode : int
{
    SolvedFov = 0,  ///< derived from the lines where they determine it, else kept
    FixedFov = 1,  ///< always kept; the lines give the orientation alone
};

/// What came of solving a camera from the lines of its perspective match.
enum MatchResult : int
{
    Solved = 0,  ///< orientation and field of view are those of the lines
    SolvedWithKeptFov = 1,  ///< only the orientation: the field of view is fixed or undetermined
    NoCamera = 2,  ///< there is none, or its own numbers are not finite
    OrthographicCamera = 3,  ///< parallel projections have no vanishing points
    UnusableLine = 4,  ///< a used line has no length, or numbers that are not finite or beyond use
    IdenticalLines = 5,  ///< two lines of an axis lie on each other, so they do not meet anywhere
    ContradictingLines = 6,  ///< two axes meet in the same point, or nothing fits the lines
};

/// Whether the camera was set.
constexpr bool isSolved(MatchResult result)
{
    return result == Solved || result == SolvedWithKeptFov;
}

/// Whether lines of an axis are used by a type.
/// @param axis  0 X, 1 Y, 2 Z
constexpr bool usesAxis(VanishingLinesType type, int axis)
{
    switch (type) {
    case XYLines:
        return axis == 0 || axis == 1;
    case XZLines:
        return axis == 0 || axis == 2;
    case YZLines:
        return axis == 1 || axis == 2;
    case XYZLines:
        break;
    }
    return axis >= 0 && axis <= 2;
}

}  // namespace nbCameraTypes
