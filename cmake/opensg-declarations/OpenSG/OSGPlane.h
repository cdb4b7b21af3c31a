// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGVector.h>

namespace osg {
class Line;

class Plane
{
public:
    Plane();
    Plane(const Vec3f& normal, Real32 distance);
    Plane(const Vec3f& normal, const Pnt3f& point);
    Plane(const Pnt3f& a, const Pnt3f& b, const Pnt3f& c);
    void set(const Vec3f& normal, Real32 distance);
    void set(Real32 x, Real32 y, Real32 z, Real32 distance);
    void set(const Vec4f& plane);
    const Vec3f& getNormal() const;
    Real32 getDistanceFromOrigin() const;
    Real32 distance(const Pnt3f& point) const;
    bool isInHalfSpace(const Pnt3f& point) const;
    bool isOnPlane(const Pnt3f& point) const;
    void offset(Real32 distance);
    bool intersect(const Line& line, Pnt3f& point) const;
    bool intersect(const Line& line, Real32& t) const;
    bool intersectInfinite(const Line& line, Pnt3f& point) const;
    bool intersectInfinite(const Line& line, Real32& t) const;
    bool intersect(const Plane& plane, Line& line) const;
    void transform(const Matrix& matrix);
};
}  // namespace osg
