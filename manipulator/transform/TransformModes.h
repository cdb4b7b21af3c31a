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
    ScaleUniform = 13
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

constexpr bool isRing(ActiveMode handle)
{
    return handle >= ActiveMode::RotateX && handle <= ActiveMode::RotateZ;
}

constexpr bool isTranslation(ActiveMode handle)
{
    return handle >= ActiveMode::TranslateX && handle <= ActiveMode::TranslateYZ;
}

constexpr bool isScale(ActiveMode handle)
{
    return handle >= ActiveMode::ScaleX && handle <= ActiveMode::ScaleUniform;
}

/// What axisOf() and planeNormalAxis() answer for handles that have none.
constexpr osg::UInt32 kNoAxis = 3;

/// Axis of a handle of one axis, 0, 1 or 2.
constexpr osg::UInt32 axisOf(ActiveMode handle)
{
    const bool hasAxis = isRing(handle) ||
        (isTranslation(handle) && handle <= ActiveMode::TranslateZ) ||
        (isScale(handle) && handle <= ActiveMode::ScaleZ);
    return hasAxis ? (static_cast<osg::UInt32>(handle) - 1) % 3 : kNoAxis;
}

/// Axis at right angles to a plane handle: z of xy, y of xz, x of yz.
constexpr osg::UInt32 planeNormalAxis(ActiveMode handle)
{
    const bool isPlane = isTranslation(handle) && handle >= ActiveMode::TranslateXY;
    return isPlane
        ? static_cast<osg::UInt32>(ActiveMode::TranslateYZ) - static_cast<osg::UInt32>(handle)
        : kNoAxis;
}

}  // namespace nbec::manipulator::transform

#pragma pop_macro("None")
