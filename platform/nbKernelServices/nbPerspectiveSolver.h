// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbCameraTypes.h>
#include <nbKernelServices/nbdPerspectiveMatch.h>
#include <nbOpenSGUberCamera/nbCameraNavigation.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGVector.h>

#include <QtCore/QLineF>

#include <array>
#include <optional>

/// How a camera looks: orientation and opening, as values in double precision.
struct PerspectiveAim
{
    /// Axes of the camera in the world, orthonormal; back points from the scene to the eye.
    osg::Vec3d right { 1.0, 0.0, 0.0 };
    osg::Vec3d up { 0.0, 1.0, 0.0 };
    osg::Vec3d back { 0.0, 0.0, 1.0 };
    /// Distance of eye and picture in reference sizes of the picture: 0.5 / tan(fov / 2) with the
    /// opening angle across the reference size. > 0
    double focalLength = 1.0;
};

/// Two lines for each of x, y and z, as in nbdPerspectiveMatch: reference sizes, y up.
using PerspectiveLines = std::array<QLineF, nbdPerspectiveMatch::kLineCount>;

/// What is known of a picture whose camera is looked for.
struct PerspectiveProblem
{
    PerspectiveLines lines;
    nbCameraTypes::VanishingLinesType type = nbCameraTypes::XYZLines;
    nbCameraTypes::FovMode fovMode = nbCameraTypes::SolvedFov;
    /// Size of the picture in reference sizes; one of them is 1. The view axis meets its middle.
    double width = 1.0;
    double height = 1.0;
    /// The camera as it stands, whose field of view is kept where the lines do not tell it.
    PerspectiveAim start;
    /// The camera whose signs are taken, see nbPerspectiveSolver; nothing: start.
    std::optional<PerspectiveAim> reference;
};

/// What came of it; aim is that of the problem's start unless isSolved(result).
struct PerspectiveSolution
{
    nbCameraTypes::MatchResult result = nbCameraTypes::NoCamera;
    PerspectiveAim aim;
};

/// Why lines hardly tell, or do not tell, the field of view.
enum class PerspectiveDoubt
{
    NoDoubt,
    ParallelLines,  ///< fewer than two vanishing points: a level camera, or one along an axis
    AlmostParallelLines,  ///< solved, but with a deviation above kDoubtfulFovDeg
    NoFieldOfViewFits,  ///< two vanishing points that no right angle shows
};

/// How well lines determine the camera that was solved from them.
struct PerspectiveQuality
{
    /// How far the ends of each line must move across it, root mean square of both, to be that of
    /// the camera; reference sizes, 0 for lines that are not used.
    std::array<double, nbdPerspectiveMatch::kLineCount> residuals {};
    /// Standard deviations to first order, degrees; infinite if the lines do not determine it. The
    /// field of view is that across the height, 0 where it is kept.
    double fovDeg = 0.0;
    double rotationDeg = 0.0;
    PerspectiveDoubt doubt = PerspectiveDoubt::NoDoubt;
    /// The used axis whose lines are most nearly parallel; -1 without a doubt.
    int doubtfulAxis = -1;
};

/// Arithmetic of a perspective match: which camera shows edges along the world's axes in given
/// directions of its picture. Knows no camera and no view.
///
/// With the middle of the picture as origin, focal length f and homogeneous coordinates (x, y, w),
/// the two lines of an axis meet in its vanishing point v = l1 x l2, and the axis has the direction
/// (x, y, -f w) in the camera's frame, or the opposite one. Axes are perpendicular, so two of them
/// give f^2 = -(x1 x2 + y1 y2) / (w1 w2), and the directions, brought to the nearest rotation, the
/// orientation. From there a Gauss-Newton iteration with damping finds the least squares of how far
/// the ends of the lines must move across them to point at the vanishing points of one camera: with
/// exact lines that changes nothing, with three axes it is the best fit to all six lines, and with
/// ends that err alike and independently nothing else is more accurate to first order.
///
/// Which camera is taken where the lines leave a choice:
/// - Lines do not tell an axis from its opposite: of the orientations that fit, right-handed all of
///   them, the one with the smallest turn from the problem's reference is taken. Steps of a drag
///   have one reference: if each took the camera that the last has left, signs would change on the
///   way.
/// - The field of view is kept, and the orientation is the best fit to it, if it is fixed; if fewer
///   than two vanishing points lie within kFarthestVanishingPoint of the middle, since lines that
///   are parallel in the picture say nothing about it; or if no opening angle from kSmallestFovDeg
///   to kLargestFovDeg fits (perpendicular axes are never seen at an acute angle from the middle).
class NB_PLATFORM_API nbPerspectiveSolver
{
public:
    /// Vanishing points beyond count as infinitely far, reference sizes.
    static constexpr double kFarthestVanishingPoint = 200.0;
    /// Opening angles that are taken from lines, across the reference size, degrees.
    static constexpr double kSmallestFovDeg = 0.25;
    static constexpr double kLargestFovDeg = 170.0;
    /// Shorter lines have no direction, reference sizes.
    static constexpr double kShortestLine = 1e-4;
    /// Lines of an axis, all of whose ends are nearer than this to the other line, are identical,
    /// reference sizes.
    static constexpr double kIdenticalDistance = 1e-5;
    /// Ends of lines farther from the lower left corner are not used, reference sizes.
    static constexpr double kFarthestEnd = 1e4;
    /// Axes whose directions differ by less, or by less from opposite ones, contradict each other;
    /// sine of the angle.
    static constexpr double kSmallestAxisSine = 1e-3;

    /// Standard deviation of the field of view from which on it is doubtful.
    static constexpr double kDoubtfulFovDeg = 3.0;

    static PerspectiveSolution solve(const PerspectiveProblem& problem);

    /// Judges a camera that was solved.
    /// @param solution  of this problem; nothing is said about one that is not solved
    /// @param endDeviation  how well ends of lines are placed, reference sizes; taken larger where
    ///                      the lines themselves miss by more
    static PerspectiveQuality judge(const PerspectiveProblem& problem,
                                    const PerspectiveSolution& solution, double endDeviation);

    /// How a pose of a perspective camera looks at a picture of a height in reference sizes.
    static PerspectiveAim aimOf(const CameraPose& pose, double height);

    /// A pose that is turned and opened so that it looks as given. The point that it turns about,
    /// the pivot or else, if that is not before the eye, at, keeps its place in the camera's frame;
    /// at lies on the new view axis at its old distance.
    /// @param height  of the picture, reference sizes
    static CameraPose turned(const CameraPose& start, const PerspectiveAim& aim, double height);

    /// A pose that is moved, and not turned, so that a line of its picture which runs along an axis
    /// of the world begins at the world's origin and has a length: what tells place and scale.
    /// @param axis    0 x, 1 y, 2 z
    /// @param length  in the world, > 0
    /// @param width, height  of the picture, reference sizes
    /// @return nothing if there is no such place: the line points at the axis' vanishing point from
    ///         beyond, has no length in the picture, or numbers are not finite
    static std::optional<CameraPose> placedBy(const CameraPose& pose, const QLineF& line, int axis,
                                              double length, double width, double height);

    /// A pose that sees the world turned by a quarter about an axis through its pivot, so that what
    /// ran along one of the other axes runs along the third one.
    /// @param axis  0 x, 1 y, 2 z
    static CameraPose turnedByQuarter(const CameraPose& pose, int axis);

    /// Lines along edges of a box about the pivot (or at, as above) as a pose sees it, of each axis
    /// the two edges that are farthest apart in the picture. Solving them gives the pose back,
    /// unless it looks along an axis.
    static PerspectiveLines linesOf(const CameraPose& pose, double width, double height);
};
