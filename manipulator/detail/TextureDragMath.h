// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGVector.h>

#include <array>

namespace nbec::manipulator::detail {

// Arithmetic of the texture gizmos: values of a projection at a drag's start and where the pointer
// has gone give the values that are sent. Nothing is accumulated.

/// Pairs (u, v) of the three projections along x, y and z.
using TriplanarPairs = std::array<osg::Vec2f, 3>;

/// Which half of a projection's pair a frame axis is: 0 for u, 1 for v. The projection along x
/// shows (y, z), that along y (x, z), that along z (x, y).
/// @param projection, axis  0, 1 or 2, different
osg::UInt32 triplanarComponent(osg::UInt32 projection, osg::UInt32 axis);

/// Offsets after a shift of the two projections that contain an axis.
/// @param shift  along the axis, units of the frame; a hundred of them are an offset of 1
TriplanarPairs shiftedOffsets(const TriplanarPairs& start, osg::UInt32 axis, float shift);

/// Scales after a drag along an axis: of the two projections that contain it.
/// @param factor  of axisScaleFactor()
TriplanarPairs scaledAlong(const TriplanarPairs& start, osg::UInt32 axis, float factor);

/// Scales after a uniform drag.
TriplanarPairs scaledUniformly(const TriplanarPairs& start, float factor);

/// Ratio of two coordinates, never below 0.001. Deliberate: a start of 0 gives an infinite or an
/// undefined factor, which is answered as it is.
float axisScaleFactor(float current, float start);

/// 1 + 0.01 (r - 1) of the ratio r of two coordinates, never below 0.001. Deliberate: a hundred
/// times gentler than the factor of an axis.
float uniformScaleFactor(float current, float start);

/// Rotation of the triplanar projection after a drag of a ring. The angle between the directions of
/// two points, 0 .. pi, is subtracted for a turn that the right hand makes from the current to the
/// start point, else added. Deliberate: about y it is the other way around.
/// @param start     angles about x, y and z when the drag began, radians
/// @param previous  what is answered if the angle is not finite
/// @param from, to  in the frame. A vector shorter than 1e-6 counts as it is, not as a direction
/// @param axis      0, 1 or 2
osg::Vec3f turnedTriplanar(const osg::Vec3f& start, const osg::Vec3f& previous,
                           const osg::Vec3f& from, const osg::Vec3f& to, osg::UInt32 axis);

/// The axes of a matrix, each of unit length, and the given origin. A mirrored or skewed matrix has
/// mirrored or skewed axes.
/// @return  4x4, column vectors; with the axes of orthonormalised() if one has no length
osg::Matrix unitFrame(const osg::Matrix& matrix, const osg::Pnt3f& origin);

/// Offset of a picture that is moved on screen: a pixel is 1/512.
/// @param motionPx  0 in a component that does not move
osg::Vec2f movedOffset(const osg::Vec2f& start, const osg::Vec2f& motionPx);

/// Turn of a picture on screen, degrees: less the angle between two directions if the way from the
/// first to the second is counter-clockwise (y up), else plus.
/// @param from, to  from the centre
/// @param result    untouched for a direction shorter than 1e-6 or an angle that is not finite
void turnPicture(float startDeg, const osg::Vec2f& from, const osg::Vec2f& to, float& result);

/// Axes that a picture on screen is scaled along.
enum class ScreenScaling
{
    U,
    V,
    Both
};

/// Scale of a picture on screen: times the ratio of two ways from the centre along an axis, or for
/// both the greater of the ratios. Deliberate: neither limited nor kept from being infinite or
/// undefined.
/// @param isProportional  the other component goes along
osg::Vec2f scaledPicture(const osg::Vec2f& start, const osg::Vec2f& from, const osg::Vec2f& to,
                         ScreenScaling axes, bool isProportional);

/// Part of a tire's circumference after a drag about its axle: an end of the picture goes with the
/// pointer, the other one the opposite way. Never below 0.001.
/// @param from, to  radians from the picture's middle; the difference counts within half a turn
float grownCircumferencePart(float start, double from, double to);

}  // namespace nbec::manipulator::detail
