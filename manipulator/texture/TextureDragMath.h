// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

#include <array>
#include <optional>

namespace nbec::manipulator::texture {

// Arithmetic of the texture gizmos: where the pointer has gone gives drag parameters, and these
// with the values of a projection at the drag's start give the values that are sent. Nothing is
// accumulated.

/// Pairs (u, v) of the three projections along x, y and z: that along x shows (y, z), that along y
/// (x, z), that along z (x, y).
using TriplanarPairs = std::array<osg::Vec2f, 3>;

/// Offsets after a shift of the two projections that contain an axis.
/// @param shift  along the axis, units of the frame; a hundred of them are an offset of 1
TriplanarPairs shiftedOffsets(const TriplanarPairs& start, osg::UInt32 axis, float shift);

/// Scales after a drag along an axis, of the two projections that contain it; for axis 3 all.
TriplanarPairs scaledAlong(const TriplanarPairs& start, osg::UInt32 axis, float factor);

/// Ratio of two coordinates, never below 0.001. Deliberate: a start of 0 gives an infinite or an
/// undefined factor, which is answered as it is.
float axisScaleFactor(float current, float start);

/// 1 + 0.01 (r - 1) of the ratio r of two coordinates, never below 0.001. Deliberate: a hundred
/// times gentler than the factor of an axis.
float uniformScaleFactor(float current, float start);

/// Turn about an axis, by the right hand, that takes the direction of one point to that of another,
/// -180 to 180 degrees; nothing where it is undefined.
/// @param from, to  in the frame. A vector shorter than 1e-6 counts as it is, not as a direction
/// @param axis      0, 1 or 2
std::optional<double> turnAbout(const osg::Vec3f& from, const osg::Vec3f& to, osg::UInt32 axis);

/// Rotation of the triplanar projection after a turn. Deliberate: one about y is subtracted, unlike
/// those about x and z.
/// @param start  angles about x, y and z when the drag began, radians
osg::Vec3f turnedTriplanar(const osg::Vec3f& start, osg::UInt32 axis, double turnDeg);

/// Turn of the frame that a rotation of the triplanar projection stands for, and the other way
/// round; radians. Deliberate: as in turnedTriplanar() the angle about y runs the other way.
osg::Quaternion triplanarTurn(const osg::Vec3f& rotation);
osg::Vec3f triplanarRotation(const osg::Quaternion& turn);

/// Offset of a projection along all three axes: across its plane it has the mean of the others'.
/// @param projection  3 for the mean of all
osg::Vec3f triplanarOffset(const TriplanarPairs& offsets, osg::UInt32 projection);

/// Shift of all offsets, units of the frame, with which a place keeps its texel while the frame
/// turns and its pictures grow. @param place  from where the picture begins, same units
/// @param growth  factors of the scales along the axes of the frame
osg::Vec3f shiftKeeping(const osg::Vec3f& place, const osg::Quaternion& before,
                        const osg::Quaternion& after, const osg::Vec3f& growth);

/// How a picture lies in the texture coordinates.
struct UVPlacing
{
    osg::Vec2f offset;
    osg::Vec2f scale { 1.0F, 1.0F };
    float rotateDeg = 0.0F;  ///< clockwise, about the middle of the unit square
};

/// Offset with which a place keeps its texel while the picture takes another turn and scale.
osg::Vec2f offsetKeeping(const osg::Vec2f& place, const UVPlacing& before, const UVPlacing& after);

/// The axes of a matrix, each of unit length, and the given origin. A mirrored or skewed matrix has
/// mirrored or skewed axes.
/// @return  4x4, column vectors; with the axes of orthonormalised() if one has no length
osg::Matrix unitFrame(const osg::Matrix& matrix, const osg::Pnt3f& origin);

/// Counter-clockwise turn (y up) from one direction on screen to another, -180 to 180 degrees;
/// nothing for a direction shorter than 1e-6 or where it is undefined.
/// @param from, to  from the centre
std::optional<float> turnOnScreen(const osg::Vec2f& from, const osg::Vec2f& to);

/// Ratio of two ways from the centre along an axis, 0 or 1, or for kNoAxis the greater of the
/// ratios. Deliberate: neither limited nor kept from being infinite or undefined.
float pictureFactor(const osg::Vec2f& from, const osg::Vec2f& to, unsigned axis);

/// Scale of a picture on screen along an axis, for kNoAxis along both.
/// @param isProportional  the other component goes along
osg::Vec2f scaledPicture(const osg::Vec2f& start, float factor, unsigned axis, bool isProportional);

/// Part of a tire's circumference after a drag about its axle: an end of the picture goes with the
/// pointer, the other one the opposite way. Never below 0.001.
/// @param turnRad  of the pointer, whole turns counted
float grownCircumferencePart(float start, double turnRad);

}  // namespace nbec::manipulator::texture
