// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbPerspectiveSolver.h>
#include <nbKernelServices/nbdPerspectiveMatch.h>
#include <nbOpenSGUberCamera/UberCamera.h>

#include <optional>

/// Size of a camera's view in reference sizes: one of the sides is 1.
struct ViewShape
{
    double width = 1.0;
    double height = 1.0;

    static ViewShape of(const osg::UberCamera& camera);
};

/// Lines and camera when a drag of lines began.
struct MatchDrag
{
    PerspectiveLines lines;
    CameraPose pose;
};

/// What the perspective match of a camera holds.
struct MatchState
{
    PerspectiveLines lines;
    nbCameraTypes::VanishingLinesType type = nbCameraTypes::XYZLines;
    float magnifyFactor = nbdPerspectiveMatch::kDefaultMagnifyFactor;
    nbCameraTypes::FovMode fovMode = nbCameraTypes::SolvedFov;
    bool anchoredToCentre = false;
    /// The view that the lines were last brought in line with.
    ViewShape shape;
    /// Nobody has set or laid a line.
    bool isFresh = true;
    /// The camera whose signs are taken: as it stood when lines were laid, or when a drag began and
    /// it was no longer where the match had placed it.
    std::optional<CameraPose> reference;
    /// As the match has placed or found it last.
    CameraPose placed;
    std::optional<MatchDrag> drag;

    /// Whether a line is the same, bit for bit.
    bool isLineSame(const MatchState& other, int line) const;

    /// Whether all that a person sets is the same, bit for bit.
    bool isSame(const MatchState& other) const;

    /// Whether a drag has led the lines back to its start, but for what is lost on their way
    /// through single precision.
    bool isBackAtDragStart() const;

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
