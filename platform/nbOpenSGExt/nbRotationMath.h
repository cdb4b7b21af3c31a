// SPDX-License-Identifier: MIT
/// @file
/// Turns in double, without the normalising that the scene graph's own quaternions do.
#pragma once

#include <OpenSG/OSGQuaternion.h>

#include <array>

/// A quaternion in double; no scene graph but the bundled one has a name for it.
using nbQuaterniond = osg::QuaternionBase<osg::Real64>;

namespace nbRotationMath {

/// A matrix by its rows, as written on paper.
using Rows = std::array<std::array<double, 3>, 3>;

inline nbQuaterniond toDouble(const osg::Quaternion& q)
{
    nbQuaterniond result;
    result.setValueAsQuat(q.x(), q.y(), q.z(), q.w());
    return result;
}

inline osg::Quaternion toFloat(const nbQuaterniond& q)
{
    osg::Quaternion result;
    result.setValueAsQuat(static_cast<osg::Real32>(q.x()), static_cast<osg::Real32>(q.y()),
                          static_cast<osg::Real32>(q.z()), static_cast<osg::Real32>(q.w()));
    return result;
}

/// a times b: b turns first.
inline nbQuaterniond product(const nbQuaterniond& a, const nbQuaterniond& b)
{
    nbQuaterniond result;
    result.setValueAsQuat(a.w() * b.x() + a.x() * b.w() + a.y() * b.z() - a.z() * b.y(),
                          a.w() * b.y() - a.x() * b.z() + a.y() * b.w() + a.z() * b.x(),
                          a.w() * b.z() + a.x() * b.y() - a.y() * b.x() + a.z() * b.w(),
                          a.w() * b.w() - a.x() * b.x() - a.y() * b.y() - a.z() * b.z());
    return result;
}

/// A quaternion of another length is scaled to unit first; a zero one turns nothing.
inline Rows rotationRows(const nbQuaterniond& q)
{
    const double square = q.x() * q.x() + q.y() * q.y() + q.z() * q.z() + q.w() * q.w();
    // Nearly always of unit length; there 2 - x is 1 / x to the last digits.
    constexpr double kNearUnit = 1e-7;
    const double offUnit = square - 1.0;
    const double s = offUnit < kNearUnit && offUnit > -kNearUnit ? 2.0 - 2.0 * offUnit
        : square > 0.0                                           ? 2.0 / square
                                                                 : 0.0;
    const double xx = s * q.x() * q.x();
    const double yy = s * q.y() * q.y();
    const double zz = s * q.z() * q.z();
    const double xy = s * q.x() * q.y();
    const double xz = s * q.x() * q.z();
    const double yz = s * q.y() * q.z();
    const double wx = s * q.w() * q.x();
    const double wy = s * q.w() * q.y();
    const double wz = s * q.w() * q.z();
    return { { { 1.0 - yy - zz, xy - wz, xz + wy },
               { xy + wz, 1.0 - xx - zz, yz - wx },
               { xz - wy, yz + wx, 1.0 - xx - yy } } };
}

}  // namespace nbRotationMath
