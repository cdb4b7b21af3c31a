// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGExt/nbRotationMath.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

#include <array>
#include <string>

/// Euler angles of any of the six axis orders, to and from quaternions.
/// An order is written as three letters: "xyz" turns about x first, then y, then z, each about the
/// fixed axes, so that the matrix is Rz Ry Rx. Anything that is not a permutation of x, y and z
/// (upper case counts as lower case) reads as "xyz". Orders have numbers too: 0 "xyz", 1 "yzx",
/// 2 "zxy", 3 "xzy", 4 "yxz", 5 "zyx"; any other number counts as 0.
class NB_PLATFORM_API nbEulerRotation
{
public:
    static constexpr int kOrderCount = 6;

    /// The axes, 0 to 2, in the order of turning, and the parity: 1 for the cyclic orders 0 to 2,
    /// otherwise -1.
    struct Order
    {
        std::array<std::size_t, 3> axes;
        double sign;
    };

    static int getOrderNumber(const std::string& order);
    static const char* getOrderName(int order);
    static const Order& getOrder(int order);

    /// The rotation that turns by the three angles in the given order.
    /// @param anglesDeg  angle about x, y, z in degrees, whatever the order
    static osg::Quaternion toQuaternion(const osg::Vec3f& anglesDeg, const std::string& order);

    /// The same in double.
    /// @param anglesRad  angle about x, y, z in radians
    static nbQuaterniond toQuaternion(const std::array<double, 3>& anglesRad, int order);

    /// Angles in degrees about x, y, z that give the rotation in the given order.
    /// The middle angle lies in -90 .. 90. Where it is within 1e-6 of the ends (cosine), the last
    /// angle is 0 and the first one takes the whole turn. q and -q give the same angles.
    /// @param rotation  unit quaternion; a zero one gives zero angles
    static osg::Vec3f fromQuaternion(const osg::Quaternion& rotation, const std::string& order);

    /// The same in double, in radians, with 1e-10 for the ends.
    static std::array<double, 3> fromQuaternion(const nbQuaterniond& rotation, int order);
};
