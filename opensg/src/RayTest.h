// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGVector.h>

namespace osg::detail {

/// start + t * direction; the direction need not be unit, so a ray may be moved into a scaled frame
/// with its t kept.
struct Ray
{
    Pnt3f start;
    Vec3f direction;
};

/// Point of a triangle that a ray's infinite line meets, from either side.
/// Barycentric coordinates by Cramer's rule. Parallel is judged relative to the lengths, so that
/// small triangles and long rays do as well as others.
/// @param t written only if met; may be negative
/// @return false if missed, parallel or without area
inline bool meetsTriangle(const Ray& ray, const Pnt3f& v0, const Pnt3f& v1, const Pnt3f& v2,
                          Real32& t)
{
    const Vec3f edge1 = v1 - v0;
    const Vec3f edge2 = v2 - v0;
    const Vec3f p = ray.direction.cross(edge2);
    const Real32 det = edge1.dot(p);
    if (det * det <= Eps * Eps * edge1.squareLength() * p.squareLength()) {
        return false;
    }
    const Real32 inverse = 1.0F / det;
    const Vec3f offset = ray.start - v0;
    const Real32 u = offset.dot(p) * inverse;
    if (!(u >= 0.0F && u <= 1.0F)) {
        return false;
    }
    const Vec3f q = offset.cross(edge1);
    const Real32 v = ray.direction.dot(q) * inverse;
    if (!(v >= 0.0F && u + v <= 1.0F)) {
        return false;
    }
    t = edge2.dot(q) * inverse;
    return true;
}

/// Part of a ray that lies in a box, within from .. to, which are narrowed down.
/// @return false if nothing is left; from and to are then undefined
inline bool meetsBox(const Ray& ray, const Pnt3f& low, const Pnt3f& high, Real32& from, Real32& to)
{
    for (UInt32 i = 0; i < 3; ++i) {
        const Real32 toLow = low[i] - ray.start[i];
        const Real32 toHigh = high[i] - ray.start[i];
        if (ray.direction[i] == 0.0F) {
            if (toLow > 0.0F || toHigh < 0.0F) {
                return false;
            }
            continue;
        }
        const Real32 a = toLow / ray.direction[i];
        const Real32 b = toHigh / ray.direction[i];
        from = osgMax(from, osgMin(a, b));
        to = osgMin(to, osgMax(a, b));
    }
    return from <= to;
}

}  // namespace osg::detail
