// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGVector.h>

namespace osg {
class BoxVolume;

class Line
{
public:
    Line();
    Line(const Pnt3f& from, const Pnt3f& to);
    Line(const Pnt3f& position, const Vec3f& direction);
    void setValue(const Pnt3f& from, const Pnt3f& to);
    void setValue(const Pnt3f& position, const Vec3f& direction);
    const Pnt3f& getPosition() const;
    const Vec3f& getDirection() const;
    Real32 distance(const Pnt3f& point) const;
    Pnt3f getClosestPoint(const Pnt3f& point) const;
    bool getClosestPoints(const Line& other, Pnt3f& onThis, Pnt3f& onOther) const;
    bool intersect(const Pnt3f& a, const Pnt3f& b, const Pnt3f& c, Real32& t,
                   Vec3f* normal = nullptr) const;
    bool intersect(const BoxVolume& volume, Real32& enter, Real32& exit) const;
};
}  // namespace osg
