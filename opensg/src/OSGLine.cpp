// SPDX-License-Identifier: MIT
#include <OpenSG/OSGBoxVolume.h>
#include <OpenSG/OSGLine.h>

#include <utility>

namespace osg {

bool Line::getClosestPoints(const Line& other, Pnt3f& onThis, Pnt3f& onOther) const
{
    // The vector between the two points is at right angles to both directions: two linear
    // equations.
    const Vec3f between = other.position - position;
    const Real32 cosine = direction.dot(other.direction);
    const Real32 sineSquare = direction.cross(other.direction).squareLength();
    if (sineSquare < Eps * Eps) {
        return false;
    }
    const Real32 along = between.dot(direction);
    const Real32 alongOther = between.dot(other.direction);
    const Real32 t = (along - cosine * alongOther) / sineSquare;
    const Real32 tOther = (cosine * along - alongOther) / sineSquare;
    onThis = position + direction * t;
    onOther = other.position + other.direction * tOther;
    return true;
}

bool Line::intersect(const Pnt3f& v0, const Pnt3f& v1, const Pnt3f& v2, Real32& t,
                     Vec3f* normal) const
{
    // Barycentric coordinates u, v of the point by Cramer's rule; their limits need no division.
    const Vec3f edge1 = v1 - v0;
    const Vec3f edge2 = v2 - v0;
    const Vec3f p = direction.cross(edge2);
    const Real32 det = edge1.dot(p);
    // Relative to the edges: small triangles are met as well as large ones.
    if (det * det <= Eps * Eps * edge1.squareLength() * p.squareLength()) {
        return false;
    }
    const Vec3f offset = position - v0;
    const Real32 inverse = 1.f / det;
    const Real32 u = offset.dot(p) * inverse;
    if (!(u >= 0.f && u <= 1.f)) {
        return false;
    }
    const Vec3f q = offset.cross(edge1);
    const Real32 v = direction.dot(q) * inverse;
    if (!(v >= 0.f && u + v <= 1.f)) {
        return false;
    }
    t = edge2.dot(q) * inverse;
    if (normal != nullptr) {
        *normal = edge1.cross(edge2);
        // Not normalize(): the product of short edges may be below its threshold.
        *normal *= 1.f / normal->length();
    }
    return true;
}

bool Line::intersect(const BoxVolume& box, Real32& enter, Real32& exit) const
{
    if (box.isEmpty()) {
        return false;
    }
    Real32 from = 0.f;
    Real32 to = Inf;
    for (UInt32 i = 0; i < 3; ++i) {
        const Real32 low = box.getMin()[i] - position[i];
        const Real32 high = box.getMax()[i] - position[i];
        if (direction[i] == 0.f) {
            if (low > 0.f || high < 0.f) {
                return false;
            }
            continue;
        }
        Real32 first = low / direction[i];
        Real32 last = high / direction[i];
        if (first > last) {
            std::swap(first, last);
        }
        from = osgMax(from, first);
        to = osgMin(to, last);
    }
    if (from > to) {
        return false;
    }
    enter = from;
    exit = to;
    return true;
}

}  // namespace osg
