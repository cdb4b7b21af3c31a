// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGVector.h>

namespace osg {

/// Line segment in a plane between two points; a value. Its unit is its user's.
class Line2D
{
public:
    /// The empty line: both ends at (0, 0).
    Line2D() = default;

    Line2D(const Pnt2f& first, const Pnt2f& second)
        : firstPoint(first)
        , secondPoint(second)
    { }

    const Pnt2f& getFirst() const { return firstPoint; }

    const Pnt2f& getSecond() const { return secondPoint; }

    /// From the first point to the second.
    Vec2f getDirection() const { return secondPoint - firstPoint; }

    Real32 getLength() const { return getDirection().length(); }

    /// Whether both ends are the same point, so that the line has no direction.
    bool isEmpty() const
    {
        return firstPoint.x() == secondPoint.x() && firstPoint.y() == secondPoint.y();
    }

    /// Exactly the same numbers, unlike the comparison of points.
    bool operator==(const Line2D& other) const
    {
        return firstPoint.x() == other.firstPoint.x() && firstPoint.y() == other.firstPoint.y() &&
            secondPoint.x() == other.secondPoint.x() && secondPoint.y() == other.secondPoint.y();
    }

    bool operator!=(const Line2D& other) const { return !(*this == other); }

private:
    Pnt2f firstPoint;
    Pnt2f secondPoint;
};

}  // namespace osg
