// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGExt/nbEulerRotation.h>
#include <nbOpenSGExt/nbRotationMath.h>
#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

#include <string>

/// Angles about x, y and z, whatever the order in which they turn; radians unless said.
struct nbEulerAngles
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    /// Number of the order, see nbEulerUtils.
    int order = 0;
};

/// Euler angles of all six orders, in double.
/// Order numbers and names: 0 "xyz", 1 "yzx", 2 "zxy", 3 "xzy", 4 "yxz", 5 "zyx". "xyz" turns about
/// x first, then y, then z, about fixed axes: matrix Rz Ry Rx. Other numbers count as 0.
class NB_PLATFORM_API nbEulerUtils
{
public:
    static constexpr int kOrderCount = nbEulerRotation::kOrderCount;

    /// Number of an order; 0 for a text that is no permutation of x, y, z. Upper case counts as
    /// lower case.
    static int getOrderFromString(const std::string& order);

    // NOLINTBEGIN(readability-identifier-naming): names that hosts know

    /// Angles of a rotation. The middle angle of the order lies in -90 .. 90 degrees; where it is
    /// within 1e-10 of the ends (cosine), the last angle is 0 and the first takes the whole turn.
    /// @param rotation  any length but 0, which gives zero angles
    static nbEulerAngles EulFromQuat(const nbQuaterniond& rotation, int order);

    static nbEulerAngles EulFromQuat(const osg::Quaternion& rotation, int order)
    {
        return EulFromQuat(nbRotationMath::toDouble(rotation), order);
    }

    /// Unit quaternion of the angles.
    static nbQuaterniond QuatFromEul(const nbEulerAngles& angles);

    // NOLINTEND(readability-identifier-naming)

    /// Of all angles that give the same rotation in the same order, those nearest to the others:
    /// values go on smoothly past the middle angle's ends and past whole turns.
    static nbEulerAngles nearest(const nbEulerAngles& angles, const nbEulerAngles& reference);

    static nbEulerAngles toDegrees(const nbEulerAngles& anglesRad)
    {
        return scaled(anglesRad, kDegPerRad);
    }

    static nbEulerAngles toRadians(const nbEulerAngles& anglesDeg)
    {
        return scaled(anglesDeg, 1.0 / kDegPerRad);
    }

    /// The three angles as floats, in the unit they have.
    static osg::Vec3f toVec3f(const nbEulerAngles& angles)
    {
        return { static_cast<osg::Real32>(angles.x), static_cast<osg::Real32>(angles.y),
                 static_cast<osg::Real32>(angles.z) };
    }

    /// Angles from degrees as nodes have them.
    static nbEulerAngles fromDegrees(const osg::Vec3f& anglesDeg, int order)
    {
        return toRadians({ anglesDeg[0], anglesDeg[1], anglesDeg[2], order });
    }

private:
    static constexpr double kDegPerRad = 180.0 / 3.14159265358979323846;

    static nbEulerAngles scaled(const nbEulerAngles& angles, double factor)
    {
        return { angles.x * factor, angles.y * factor, angles.z * factor, angles.order };
    }
};
