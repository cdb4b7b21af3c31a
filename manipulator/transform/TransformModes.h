// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>

// Of X11's headers.
#pragma push_macro("None")
#undef None

namespace nbec::manipulator::transform {

/// Which handles of the transform gizmo are shown.
enum class ManipulatorMode : osg::UInt32
{
    Universal = 0,  ///< all but the markers
    Translate = 1,  ///< arrows and planes
    Scale = 2,  ///< scale handles and the cube "grid"
    Rotate = 3,  ///< rings
    RotatePivot = 4,  ///< arrows, planes, rings and the sphere
    ScalePivot = 5,  ///< arrows, planes and the purple cube
    Clipping = 6,  ///< arrows, planes and rings
    TranslateRotate = 7,  ///< arrows, planes and rings
    TranslateRotateYZ = 8,  ///< arrows, planes, y and z ring
    TranslateRotateScale = 9  ///< arrows, planes, rings and the scale handles of the axes
};

/// The handle of the transform gizmo that is hovered or grabbed.
enum class ActiveMode : osg::UInt32
{
    None = 0,
    RotateX = 1,
    RotateY = 2,
    RotateZ = 3,
    TranslateX = 4,
    TranslateY = 5,
    TranslateZ = 6,
    TranslateXY = 7,
    TranslateXZ = 8,
    TranslateYZ = 9,
    ScaleX = 10,
    ScaleY = 11,
    ScaleZ = 12,
    ScaleUniform = 13,
    // Those of FurtherHandles
    TranslateView = 14,
    RotateView = 15,
    RotateFree = 16,
    ScaleXY = 17,
    ScaleXZ = 18,
    ScaleYZ = 19
};

/// Handles of a transform gizmo beside the usual ones, and where these stand. Modes that move a
/// pivot by turning it have no further rings.
struct FurtherHandles
{
    /// "vaShape": the square in the middle moves in the plane of the screen; not in mode Universal.
    bool centre = false;
    bool viewRing = false;  ///< "rvShape": the outer ring turns about the view axis
    bool trackball = false;  ///< "rtShape": the disc in the rings turns about any axis; it is hit
                             ///< where nothing else is, and seen while it is hovered or held
    bool planeScales = false;  ///< "xysShape", "xzsShape", "yzsShape": in mode Scale the plane
                               ///< handles scale along two axes
    /// Arrows, planes and scale handles stand on the viewer's side of their axes; not changed while
    /// a handle is held.
    bool facesViewer = false;

    bool isAny() const { return centre || viewRing || trackball || planeScales || facesViewer; }
};

/// What snapping makes of turns and scales.
enum class SnapRule
{
    /// A turn advances by the rounded angle since it last did, and goes on from the pointer: it can
    /// run ahead of it. A scale may become 0, from which no drag leads back.
    Gathered,
    /// A turn is what was swept since the start, rounded. A scale that would become 0 becomes one
    /// step, with the sign that it had.
    Exact
};

/// Along which axes a transform gizmo stands and moves, turns and moves pivots. Scale handles
/// always lie along the node's own: nothing can be scaled along others.
enum class GizmoAxes
{
    Shared,  ///< as all gizmos, see setLocalSpaceManipulator()
    World,
    Own,  ///< of the node's pivots
    Parent,  ///< of the frame above the node
    View,  ///< x to the right, y up on the screen, as the camera stands when it is placed
    Given  ///< of any frame
};

/// About which point turns and scales of a transform gizmo go, at which it then stands. About a
/// point that is not a node's own pivot the node also moves: around it, or along the handle's axis
/// (of the uniform handle in all directions) to and from it.
enum class GizmoPivot
{
    Own,  ///< each node about its own pivot
    First,  ///< that of the first node
    Common,  ///< mean of all nodes' pivots
    Given  ///< any point
};

/// To what snapping brings what is dragged, beside the steps of a transform model; all in force
/// only while snapping is.
struct SnapSettings
{
    /// Steps are counted from the origin and not from the drag's start: the translation becomes a
    /// multiple of its step along each axis of the handle by itself, a turn about a ring's axis
    /// that of its step, counted from the node as it is without rotation.
    bool isAbsolute = false;

    /// Kinds of places under the pointer, interaction::SnapSearch::Kind, to be joined with |; 0 for
    /// none. Arrows and planes take the gizmo's centre there, or as near as they can; where nothing
    /// is near the steps hold. Pivots, which no step holds, are taken there, too, also to places on
    /// their own object; what is moved is never its own target.
    unsigned geometry = 0;

    float reachPx = 12.0F;  ///< how near on screen such a place has to be, device pixels, >= 0
};

constexpr bool movesPivot(ManipulatorMode mode)
{
    return mode == ManipulatorMode::RotatePivot || mode == ManipulatorMode::ScalePivot;
}

}  // namespace nbec::manipulator::transform

#pragma pop_macro("None")
