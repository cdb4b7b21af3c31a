// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGVector.h>

namespace osg {

class Line;

/// Plane of a normal n and a distance d: the points p with n . p = d.
class Plane
{
public:
    /// Zero normal, distance 0: an undefined plane.
    Plane() = default;

    /// The normal is made unit, the distance taken as it is.
    Plane(const Vec3f& planeNormal, Real32 distanceFromOrigin);

    /// Through a point; the normal is made unit.
    Plane(const Vec3f& planeNormal, const Pnt3f& point);

    /// Through three points, normal (p1 - p0) x (p2 - p0), made unit.
    Plane(const Pnt3f& p0, const Pnt3f& p1, const Pnt3f& p2);

    /// Deliberate: unlike the constructors these do not normalise.
    void set(const Vec3f& planeNormal, Real32 distanceFromOrigin);
    void set(Real32 x, Real32 y, Real32 z, Real32 distanceFromOrigin);
    void set(const Vec4f& normalAndDistance);

    const Vec3f& getNormal() const { return normal; }

    Real32 getDistanceFromOrigin() const { return offsetAlong; }

    /// Signed distance, positive on the normal's side.
    Real32 distance(const Pnt3f& point) const { return normal.dot(point) - offsetAlong; }

    bool isInHalfSpace(const Pnt3f& point) const { return distance(point) >= 0.0F; }

    /// Within Eps of the plane.
    bool isOnPlane(const Pnt3f& point) const { return osgabs(distance(point)) < Eps; }

    /// Moves the plane along its normal.
    void offset(Real32 by) { offsetAlong += by; }

    /// Meets a ray, t >= 0.
    /// Deliberate: parallel means that n . direction is exactly 0; a ray in the plane, or any ray
    /// on a plane without normal, meets it at its start.
    /// @param t written unless parallel, also when negative
    bool intersect(const Line& ray, Real32& t) const;

    /// @param point unchanged if the ray does not meet the plane
    bool intersect(const Line& ray, Pnt3f& point) const;

    /// The same for the infinite line: t may be negative.
    bool intersectInfinite(const Line& line, Real32& t) const;
    bool intersectInfinite(const Line& line, Pnt3f& point) const;

    /// Line common to two planes. @return false if they are parallel, with the line unchanged
    bool intersect(const Plane& other, Line& common) const;

    /// Turns the normal by the 3x3 and makes it unit.
    /// Deliberate: the translation's part along the new normal is taken off the distance, not
    /// added.
    void transform(const Matrix& matrix);

private:
    Vec3f normal;
    Real32 offsetAlong = 0.0F;
};

}  // namespace osg
