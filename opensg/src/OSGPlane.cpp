// SPDX-License-Identifier: MIT
#include <OpenSG/OSGLine.h>
#include <OpenSG/OSGPlane.h>

namespace osg {

Plane::Plane(const Vec3f& planeNormal, Real32 distanceFromOrigin)
    : normal(planeNormal)
    , offsetAlong(distanceFromOrigin)
{
    normal.normalize();
}

Plane::Plane(const Vec3f& planeNormal, const Pnt3f& point)
    : normal(planeNormal)
{
    normal.normalize();
    offsetAlong = normal.dot(point);
}

Plane::Plane(const Pnt3f& p0, const Pnt3f& p1, const Pnt3f& p2)
    : Plane((p1 - p0).cross(p2 - p0), p0)
{ }

void Plane::set(const Vec3f& planeNormal, Real32 distanceFromOrigin)
{
    normal = planeNormal;
    offsetAlong = distanceFromOrigin;
}

void Plane::set(Real32 x, Real32 y, Real32 z, Real32 distanceFromOrigin)
{
    set(Vec3f(x, y, z), distanceFromOrigin);
}

void Plane::set(const Vec4f& normalAndDistance)
{
    set(Vec3f(normalAndDistance), normalAndDistance[3]);
}

bool Plane::intersectInfinite(const Line& line, Real32& t) const
{
    const Real32 approach = normal.dot(line.getDirection());
    const Real32 height = distance(line.getPosition());
    if (approach == 0.0F) {
        if (height != 0.0F) {
            return false;
        }
        t = 0.0F;
        return true;
    }
    t = -height / approach;
    return true;
}

bool Plane::intersectInfinite(const Line& line, Pnt3f& point) const
{
    Real32 t = 0.0F;
    if (!intersectInfinite(line, t)) {
        return false;
    }
    point = line.getPosition() + line.getDirection() * t;
    return true;
}

bool Plane::intersect(const Line& ray, Real32& t) const
{
    return intersectInfinite(ray, t) && t >= 0.0F;
}

bool Plane::intersect(const Line& ray, Pnt3f& point) const
{
    Real32 t = 0.0F;
    return intersect(ray, t) && intersectInfinite(ray, point);
}

bool Plane::intersect(const Plane& other, Line& common) const
{
    const Vec3f along = normal.cross(other.normal);
    const Real32 square = along.squareLength();
    if (square < Eps * Eps) {
        return false;
    }
    // The point of both planes that is nearest to the origin.
    const Vec3f foot =
        (other.normal.cross(along) * offsetAlong + along.cross(normal) * other.offsetAlong) *
        (1.0F / square);
    common.setValue(foot.addToZero(), along);
    return true;
}

void Plane::transform(const Matrix& matrix)
{
    matrix.multMatrixVec(normal);
    normal.normalize();
    offsetAlong -= normal.dot(Vec3f(matrix[3]));
}

}  // namespace osg
