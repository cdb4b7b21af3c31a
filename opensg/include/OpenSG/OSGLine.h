// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGVector.h>

namespace osg {

class BoxVolume;

/// Ray with a start and a unit direction; a zero direction stays zero.
class Line
{
public:
    Line() = default;

    Line(const Pnt3f& p0, const Pnt3f& p1) { setValue(p0, p1); }

    Line(const Pnt3f& start, const Vec3f& along) { setValue(start, along); }

    /// From p0 towards p1.
    void setValue(const Pnt3f& p0, const Pnt3f& p1) { setValue(p0, p1 - p0); }

    /// The direction is normalised.
    void setValue(const Pnt3f& start, const Vec3f& along)
    {
        position = start;
        direction = along;
        direction.normalize();
    }

    const Pnt3f& getPosition() const { return position; }

    const Vec3f& getDirection() const { return direction; }

    /// Distance of a point from the infinite line.
    Real32 distance(const Pnt3f& point) const { return point.dist(getClosestPoint(point)); }

    /// Foot of the perpendicular from a point on the infinite line.
    Pnt3f getClosestPoint(const Pnt3f& point) const
    {
        return position + direction * direction.dot(point - position);
    }

    /// Ends of the common perpendicular of two infinite lines.
    /// @return false if the lines are parallel, with the points unchanged
    bool getClosestPoints(const Line& other, Pnt3f& onThis, Pnt3f& onOther) const;

    /// Meets a triangle from either side: position + t * direction lies in it.
    /// @param t      may be negative: the triangle is then behind the start
    /// @param normal unit normal, counter-clockwise side; may be null
    /// @return false if missed, parallel or without area, with t and normal unchanged
    bool intersect(const Pnt3f& v0, const Pnt3f& v1, const Pnt3f& v2, Real32& t,
                   Vec3f* normal = nullptr) const;

    /// Meets a box as a ray.
    /// @param enter where the ray comes in, 0 if it starts inside
    /// @param exit  where it leaves
    /// @return false if missed or behind the start, with both unchanged
    bool intersect(const BoxVolume& box, Real32& enter, Real32& exit) const;

private:
    Pnt3f position;
    Vec3f direction;
};

}  // namespace osg
