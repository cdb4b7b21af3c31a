// SPDX-License-Identifier: MIT
#pragma once

#include <nbInteraction/SnapSearch.h>

#include <OpenSG/OSGVector.h>

#include <array>
#include <cstddef>
#include <optional>

// Of X11's headers.
#pragma push_macro("None")
#undef None

namespace nbec::manipulator {

/// What a drag has come to, as a person would say or type it: up to three numbers of one kind,
/// always counted from the drag's start. They are all that an edit needs to know of the pointer, so
/// that a value that is typed, shown or taken back goes the same way as one that is dragged.
struct DragParameters
{
    /// What the numbers are.
    enum class Kind
    {
        None,
        Offset,  ///< three: how far along each axis, 0 along those that the handle leaves alone;
                 ///< units of the gizmo's space
        Angle,  ///< one, degrees, whole turns counted
        Factor,  ///< one, resulting size by the size at the start
        HalfSizes,  ///< half the sides of a rectangle or box, as they become
        Length,  ///< one, as it becomes
        Pixels,  ///< how far on screen, device pixels, x to the right, y as the gizmo says
        Turns  ///< two: about the screen's axes to the right and up, degrees; together one turn
               ///< about the axis between them
    };

    static constexpr std::size_t kMostValues = 3;

    DragParameters() = default;

    DragParameters(Kind ofKind, double value)
        : kind(ofKind)
        , count(1)
        , values { value, 0.0, 0.0 }
    { }

    DragParameters(Kind ofKind, const osg::Vec2f& two)
        : kind(ofKind)
        , count(2)
        , values { two.x(), two.y(), 0.0 }
    { }

    DragParameters(Kind ofKind, const osg::Vec3f& three)
        : kind(ofKind)
        , count(kMostValues)
        , values { three.x(), three.y(), three.z() }
    { }

    /// The first number, in the precision of the scene.
    float first() const { return static_cast<float>(values[0]); }

    osg::Vec2f vec2() const { return { first(), static_cast<float>(values[1]) }; }

    osg::Vec3f vec3() const
    {
        return { first(), static_cast<float>(values[1]), static_cast<float>(values[2]) };
    }

    Kind kind = Kind::None;
    std::size_t count = 0;  ///< of the numbers that mean something
    std::array<double, kMostValues> values {};
    /// Typed or taken back, not dragged: to be taken as it is, never snapped.
    bool isExact = false;
};

constexpr unsigned kAllAxes = 7;
/// What is answered for an axis where there is none.
constexpr unsigned kNoAxis = 3;

/// The set of one axis. @param axis  0, 1 or 2
constexpr unsigned axisBit(std::size_t axis)
{
    return 1U << axis;
}

constexpr bool hasAxis(unsigned axes, std::size_t axis)
{
    return (axes >> axis & 1U) != 0;
}

/// The only axis of a set; kNoAxis of a set with none or several.
constexpr unsigned onlyAxis(unsigned axes)
{
    return axes == 1 || axes == 2 ? axes - 1 : axes == 4 ? 2 : kNoAxis;
}

/// The first axis of a set; 2 of an empty one.
constexpr unsigned firstAxis(unsigned axes)
{
    return hasAxis(axes, 0) ? 0 : hasAxis(axes, 1) ? 1 : 2;
}

/// What a handle changes.
struct HandleAction
{
    using Kind = DragParameters::Kind;

    Kind kind = Kind::None;
    /// Bit i for axis i: along it, or about it of a turn. All three for a change of all sides.
    unsigned axes = 0;
    bool isOfView = false;  ///< the axes are those of the screen: to the right, up, to the viewer

    bool isTurn() const { return kind == Kind::Angle || kind == Kind::Turns; }

    /// The one axis along or about which it works, or kNoAxis.
    unsigned axis() const { return onlyAxis(axes); }

    /// The axis at right angles to the plane in which it moves or scales, or kNoAxis.
    unsigned planeNormal() const
    {
        return kind == Kind::Offset || kind == Kind::Factor ? onlyAxis(kAllAxes & ~axes) : kNoAxis;
    }

    bool isPlane() const { return planeNormal() != kNoAxis; }
};

/// What a step of a drag hands on to the next one. Everything else of a drag is captured at its
/// start and stays.
struct DragTrack
{
    std::optional<osg::Pnt3f> start;  ///< where the pointer met the drag's plane first
    std::optional<osg::Pnt3f> grabbed;  ///< the same before a bead was followed from there
    osg::Pnt3f last;  ///< where a turn was measured last
    double bead = 0.0;  ///< where the pointer is on a ring seen edge-on, see RingDrag; radians
    double turned = 0.0;  ///< since the start, whole turns counted; radians or degrees
    /// Place in the scene to which the last step has snapped.
    std::optional<interaction::SnapSearch::Target> target;
};

/// What the pointer has come to in one step.
struct DragStep
{
    enum class Outcome
    {
        Missed,  ///< the pointer met nothing to measure by
        Waiting,  ///< it has moved by less than a step of snapping
        Moved
    };

    /// A step that missed.
    DragStep() = default;

    /// One that waits, or goes on later.
    explicit DragStep(Outcome what, const DragTrack& next)
        : outcome(what)
        , track(next)
    { }

    DragStep(const DragParameters& comeTo, const DragTrack& next)
        : outcome(Outcome::Moved)
        , parameters(comeTo)
        , track(next)
    { }

    Outcome outcome = Outcome::Missed;
    DragParameters parameters;  ///< of one that moved
    DragTrack track;  ///< for the next step; of one that missed nothing
};

}  // namespace nbec::manipulator

#pragma pop_macro("None")
