// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbCameraTypes.h>
#include <nbKernelServices/nbPerspectiveSolver.h>
#include <nbKernelServices/nbdNode.h>
#include <nbKernelServices/nbdPerspectiveMatch.h>
#include <nbOpenSGUberCamera/UberCamera.h>

/// Refers to a camera by its internal parent node (osg::UberCamera::getInternalParentNode).
class NB_PLATFORM_API nbdCameraNode : public nbdNode
{
public:
    /// A null camera.
    nbdCameraNode() = default;

    /// @param nodeId  container id of a camera's internal parent node; other ids make a null camera
    explicit nbdCameraNode(osg::UInt32 nodeId)
        : nbdNode(Kind::CameraNode, nodeId)
    { }

    /// The camera that an object is, or whose internal parent node it is; else null.
    explicit nbdCameraNode(const nbdObject& object);

    /// The camera itself; null for a null object.
    osg::UberCameraPtr getCamera() const;

    /// The camera's perspective match, which every camera has; null for a null camera.
    nbdPerspectiveMatch getPerspectiveMatch() const;

    /// What the match does to the field of view; SolvedFov for a null camera. Property "fovMode".
    nbCameraTypes::FovMode getFovMode() const;
    /// Numbers that are no mode are ignored.
    void setFovMode(nbCameraTypes::FovMode mode) const;

    /// Sets the camera's vertical field of view. Property "fov". @param degrees  see CameraPose
    void setFov(double degrees) const;

    /// Turns the camera, and sets its field of view, so that it shows edges along the world's axes
    /// in the directions that the lines of its match have in the picture. Properties "orientation"
    /// and "fov". Asks nobody whether the camera is locked.
    ///
    /// The pivot stays where it is in the camera's frame: eye and centre turn about it at their
    /// distance, so that what stood at the pivot is still in view and as far away. A pivot that is
    /// not before the eye leaves this to the centre. Nothing else moves. Pixels are taken as
    /// square. See nbPerspectiveSolver for which camera is taken where the lines leave a choice;
    /// the reference for that is the camera as it stood when lines were laid or a drag began last,
    /// the present one before.
    /// @return what came of it; where it is not solved the camera is untouched
    nbCameraTypes::MatchResult updateFromPerspectiveMatch() const;

    /// A drag of the match's lines begins. Until endMatchDrag() the camera is worked out from how
    /// it stands now, so that only the lines decide where it goes: lines that are led back to where
    /// they are now bring the camera back, both to the last bit. A camera that somebody else moves
    /// in the drag counts as it stands then.
    void beginMatchDrag() const;
    /// The drag is over; without one nothing happens.
    void endMatchDrag() const;

    /// What updateFromPerspectiveMatch() would answer now, without moving anything.
    nbCameraTypes::MatchResult checkPerspectiveMatch() const;

    /// How well the lines determine that camera.
    /// @param endDeviation  how well ends of lines are placed, reference sizes
    PerspectiveQuality judgePerspectiveMatch(double endDeviation) const;

    /// Gives the lines of two axes to each other, and turns the camera with them by a quarter about
    /// the third one through its pivot, so that both still fit: with turns about x, y and z any
    /// pair of lines comes to any axis, in either direction.
    /// @param axis  0 x, 1 y, 2 z; others are ignored
    void turnMatch(int axis) const;

    /// Moves the camera, without turning it, so that a line of its match begins at the world's
    /// origin and is so long along its axis. Solve first: the camera must show the lines' axes.
    /// @param length  in the world
    /// @return false, nothing moved, where no place fits, see nbPerspectiveSolver::placedBy
    bool placeByLine(nbdPerspectiveMatch::Line line, double length) const;

    /// Lays the lines of the match along the edges of a box at the pivot as the camera sees it now,
    /// so that solving them leaves the camera as it is: a start for laying them elsewhere.
    void layLinesAsSeen() const;

    /// The same for a match of which no line was ever set or laid, and no step of undo.
    void layFreshLines() const;
};
