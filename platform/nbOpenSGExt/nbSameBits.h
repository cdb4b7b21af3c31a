// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

#include <cstring>

/// Whether the three numbers are the same bit for bit; zeros of both signs differ.
inline bool nbSameBits(const osg::Vec3f& a, const osg::Vec3f& b)
{
    return std::memcmp(a.getValues(), b.getValues(), 3 * sizeof(osg::Real32)) == 0;
}

/// The same of four numbers. A quaternion of a real OpenSG is larger than these.
inline bool nbSameBits(const osg::Quaternion& a, const osg::Quaternion& b)
{
    return std::memcmp(a.getValues(), b.getValues(), 4 * sizeof(osg::Real32)) == 0;
}

/// Whether the three numbers of points or vectors have the same values; their operators allow for a
/// tolerance, which small scenes feel.
template <class Triple>
bool nbSameValues(const Triple& a, const Triple& b)
{
    return a[0] == b[0] && a[1] == b[1] && a[2] == b[2];
}

/// The same of two numbers.
inline bool nbSameValues(const osg::Vec2f& a, const osg::Vec2f& b)
{
    return a[0] == b[0] && a[1] == b[1];
}
