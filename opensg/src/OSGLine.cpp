// SPDX-License-Identifier: MIT
#include <OpenSG/OSGBoxVolume.h>
#include <OpenSG/OSGLine.h>

#include "RayTest.h"

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
    if (!detail::meetsTriangle({ position, direction }, v0, v1, v2, t)) {
        return false;
    }
    if (normal != nullptr) {
        *normal = (v1 - v0).cross(v2 - v0);
        // Not normalize(): the product of short edges may be below its threshold.
        *normal /= normal->length();
    }
    return true;
}

bool Line::intersect(const BoxVolume& box, Real32& enter, Real32& exit) const
{
    Real32 from = 0.0F;
    Real32 to = Inf;
    if (box.isEmpty() ||
        !detail::meetsBox({ position, direction }, box.getMin(), box.getMax(), from, to)) {
        return false;
    }
    enter = from;
    exit = to;
    return true;
}

}  // namespace osg
