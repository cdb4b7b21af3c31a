// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbPerspectiveSolver.h>
#include <nbKernelServices/nbdPerspectiveMatch.h>
#include <nbOpenSGUberCamera/UberCamera.h>

/// Size of a camera's view in reference sizes: one of the sides is 1.
struct ViewShape
{
    double width = 1.0;
    double height = 1.0;

    static ViewShape of(const osg::UberCamera& camera);
};

/// As a new match has them: along the edges of a box with an upright edge in front, within any view
/// that is not narrower than high.
inline constexpr PerspectiveLines kUsualPerspectiveLines {
    QLineF(0.10, 0.70, 0.45, 0.80), QLineF(0.10, 0.30, 0.45, 0.20), QLineF(0.45, 0.80, 0.45, 0.20),
    QLineF(0.90, 0.70, 0.89, 0.30), QLineF(0.45, 0.80, 0.90, 0.70), QLineF(0.45, 0.20, 0.90, 0.30),
};

/// What the perspective match of a camera holds.
struct MatchState
{
    PerspectiveLines lines = kUsualPerspectiveLines;
    nbCameraTypes::VanishingLinesType type = nbCameraTypes::XYZLines;
    float magnifyFactor = nbdPerspectiveMatch::kDefaultMagnifyFactor;
    nbCameraTypes::FovMode fovMode = nbCameraTypes::SolvedFov;
    bool anchoredToCentre = false;
    /// The view that the lines were last brought in line with.
    ViewShape shape;

    /// Whether a line is the same, bit for bit.
    bool isLineSame(const MatchState& other, int line) const;

    /// Whether all that a person sets is the same, bit for bit.
    bool isSame(const MatchState& other) const;

    /// The same, but for what is lost of the lines on their way through single precision; in views
    /// of different shapes never.
    bool isSameInSinglePrecision(const MatchState& other) const;

    /// Brings lines that are anchored to the centre in line with the view as it is now.
    void settle(const ViewShape& now);
};

/// The matches of the cameras that have been asked for theirs.
class MatchTable
{
public:
    /// The match of a living camera, made on first use. Valid until the next call.
    static MatchState& of(const osg::UberCameraPtr& camera);

    /// The match of the camera with an internal parent node of this id; null without the camera.
    static MatchState* find(osg::UInt32 cameraNodeId);
};
