// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

#include <string>

/// Euler angles of any of the six axis orders, in degrees, to and from quaternions.
/// An order is written as three letters: "xyz" turns about x first, then y, then z, each about the
/// fixed axes, so that the matrix is Rz Ry Rx. Anything that is not a permutation of x, y and z
/// (upper case counts as lower case) reads as "xyz".
class NB_PLATFORM_API nbEulerRotation
{
public:
    /// The rotation that turns by the three angles in the given order.
    /// @param anglesDeg  angle about x, y, z in degrees, whatever the order
    static osg::Quaternion toQuaternion(const osg::Vec3f& anglesDeg, const std::string& order);

    /// Angles in degrees about x, y, z that give the rotation in the given order.
    /// The middle angle lies in -90 .. 90. Where it is within 1e-6 of the ends (cosine), the last
    /// angle is 0 and the first one takes the whole turn. q and -q give the same angles.
    /// @param rotation  unit quaternion; a zero one gives zero angles
    static osg::Vec3f fromQuaternion(const osg::Quaternion& rotation, const std::string& order);
};
