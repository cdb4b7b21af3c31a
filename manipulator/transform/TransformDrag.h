// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/course/View.h"
#include "manipulator/drag/DragParameters.h"
#include "manipulator/drag/RingDrag.h"
#include "manipulator/transform/TransformModes.h"

#include <nbOpenSGUtils/nbEulerUtils.h>

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGPlane.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

#include <array>
#include <vector>

/// Starts, frames and plane of a drag of the transform gizmo, and the five transformations: each a
/// function from where the pointer is to drag parameters, and one from drag parameters to a
/// target's new value. No widget, and no node but in the two functions that capture.
namespace nbec::manipulator::transform {

/// A place in two frames.
struct Place
{
    osg::Vec3f local;  ///< frame of the parent
    osg::Vec3f world;
};

/// What a drag keeps of one target from its first step; every later step computes from this.
struct TransformStart
{
    Place translation;
    osg::Vec3f scale;
    Place pivot;  ///< rotate or scale pivot, as the mode moves
    osg::Pnt3f anchor;  ///< pivot of turns, or of scales for a scale handle; world
    osg::Quaternion rotation;  ///< without the rotation orientation
    nbEulerAngles anglesRad;  ///< of the same, in the node's order
    nbQuaterniond quaternion;  ///< of these angles
    bool isLocked = false;  ///< the target is left alone
    nbQuaterniond halfTurned;  ///< the same after a half turn about the grabbed ring's axis
    std::array<osg::Vec3f, 2> screenAxes;  ///< those of a free turn, in the frame of the parent
};

/// The gizmo when a handle was grabbed.
struct GrabbedGizmo
{
    HandleAction action;
    ManipulatorMode mode = ManipulatorMode::Translate;
    bool isLocal = false;  ///< in the node's own space
    osg::Matrix frame;  ///< world from the axes of the handle's family, of unit length
    float unit = 1.0F;  ///< world units of the handles' unit frame
    osg::Pnt3f grabbedPoint;  ///< world
    osg::Quaternion axes {};  ///< turn of the handle's axes in the world
};

/// State of one drag. Nothing of it changes after the first step.
struct TransformDrag
{
    HandleAction action;
    float unit = 1.0F;  ///< world units of the handles' unit frame
    RingDrag path;  ///< the grabbed ring, or the plane in which the pointer is followed
    osg::Matrix inverseDragFrame;  ///< world to the frame of translate and rotate
    osg::Matrix inverseScaleFrame;  ///< world to the frame of scale
    osg::Quaternion axes;  ///< along which offsets are counted outside local space
    /// Of a plane handle at right angles to it; world, unit length; zero of a handle without one.
    osg::Vec3f handleAxis;
    osg::Pnt3f center;  ///< of the gizmo, world
    osg::Pnt3f dragStartWorld;
    osg::Pnt3f dragStartLocal;  ///< in the drag frame
    osg::Vec3f scaleAnchor;  ///< start in the scale frame
    std::vector<TransformStart> starts;  ///< of the dragged node and the further ones
};

// == Capturing

/// Captures a target's values. @param node  null leaves all at zero
TransformStart captureStart(const osg::NodePtr& node, const GrabbedGizmo& grabbed);

/// Chooses plane and frames for the dragged node and captures its start.
/// @param track  with which the drag begins
TransformDrag prepareManipulator(const osg::NodePtr& node, const GrabbedGizmo& grabbed,
                                 const View& view, DragTrack& track);

// == From a point in the drag's plane to drag parameters

/// The way from a point to another along the axes of the drag's handle: world units, in local space
/// those of the node's own frame, scale left out. @param from, to  world
osg::Vec3f offsetBetween(const TransformDrag& drag, const osg::Pnt3f& from, const osg::Pnt3f& to,
                         bool isLocal);

/// Where the first target stands, or its pivot, counted along the axes of an offset.
osg::Vec3f startPlace(const TransformDrag& drag, bool isLocal, bool ofPivot);

/// An offset after which the first target stands at multiples of a step along the handle's axes.
osg::Vec3f withSnappedPlace(const TransformDrag& drag, const osg::Vec3f& offset, double step,
                            bool isLocal);

/// An offset whose length is a multiple of a step, see snapped().
osg::Vec3f withSnappedLength(const osg::Vec3f& offset, double step);

/// Signed angle between two points about an axis, radians. @param from, to  in a frame that has the
/// axis @param axis  0, 1 or 2
double computeRotation(const osg::Pnt3f& from, const osg::Pnt3f& to, osg::UInt32 axis);

/// How far a target is turned about the grabbed ring's axis when a drag starts, in the frame of its
/// parent, radians: its rotation is that turn after one at right angles to the axis.
double turnAtStart(const TransformStart& start);

/// Radius of the trackball, in gizmo units.
constexpr float kTrackballRadius = 1.5F;

/// A free turn to a point: how far its ball has rolled about the screen's axes to the right and up,
/// radians. Both together are one turn about the axis between them.
osg::Vec2d screenTurnAt(const TransformDrag& drag, const osg::Pnt3f& point);

/// Factor of a scale handle at a point: the ratio of its distances from the centre along the
/// handle's axis, or in its plane along the way to where it was grabbed, at least 0.01; for the
/// uniform one a tenth of the ratio's way from 1, at least 0.1. 1 where the start is too near the
/// centre to divide by.
/// @param upAxis  along which the uniform one is measured, 1 or 2
double factorAt(const TransformDrag& drag, const osg::Pnt3f& point, osg::UInt32 upAxis);

// == From drag parameters to a target's value

/// Translation or pivot after an offset. @param isLocal  the space of the offset and of the answer:
/// own frame and parent's, or world
osg::Vec3f moved(const TransformStart& start, const Place& place, const osg::Vec3f& offset,
                 bool isLocal);

/// World translation of a target after a turn about the drag's center. @param turnRad  as
/// screenTurnAt(); of a ring (turn, 0)
osg::Vec3f turnedTranslation(const TransformDrag& drag, const TransformStart& start,
                             const osg::Vec2d& turnRad);
/// The same after a scale to and from it.
osg::Vec3f scaledTranslation(const TransformDrag& drag, const TransformStart& start, float factor);

/// A turn for all targets of a step: half its angle as sine and cosine.
struct HalfTurn
{
    explicit HalfTurn(double turnRad);

    double sine;
    double cosine;
};

/// Captures the rotation that a ring turns. @param ringAxis  in the frame of the parent, unit
/// length; zero turns nothing
void captureRotation(TransformStart& start, const nbEulerAngles& anglesRad,
                     const osg::Vec3f& ringAxis);

/// Angles after a turn about the ring's axis. Of all angles for that rotation they are those
/// nearest to the ones before, so that values go on smoothly past whole turns.
nbEulerAngles turnedAngles(const TransformStart& start, const HalfTurn& turn,
                           const nbEulerAngles& before);

/// The same after a free turn, see screenTurnAt().
nbEulerAngles turnedFreely(const TransformStart& start, const osg::Vec2d& turnRad,
                           const nbEulerAngles& before);

/// Scale times a factor along a set of axes; these components are snapped to a step.
osg::Vec3f scaledBy(const TransformStart& start, unsigned axes, float factor, double step,
                    SnapRule rule);

}  // namespace nbec::manipulator::transform
