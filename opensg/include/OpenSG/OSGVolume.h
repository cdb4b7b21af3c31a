// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGVector.h>

namespace osg {

class Line;

/// Region of space that encloses something, with what is known about it.
/// There are boxes and frusta; left out are spheres, cylinders, and points on the surface.
class Volume
{
public:
    virtual ~Volume() = default;

    bool isValid() const { return valid; }

    bool isEmpty() const { return empty; }

    /// Encloses everything.
    bool isInfinite() const { return infinite; }

    /// Keeps its extent whatever the contents.
    bool isStatic() const { return constant; }

    void setValid(bool value = true) { valid = value; }

    void setEmpty(bool value = true) { empty = value; }

    void setInfinite(bool value = true) { infinite = value; }

    void setStatic(bool value = true) { constant = value; }

    virtual void getCenter(Pnt3f& center) const = 0;
    virtual Real32 getScalarVolume() const = 0;
    /// Corners of the smallest box around the volume; an empty volume has the corners it was left
    /// with.
    virtual void getBounds(Pnt3f& minimum, Pnt3f& maximum) const = 0;
    virtual void extendBy(const Pnt3f& point) = 0;
    virtual void extendBy(const Volume& other) = 0;
    virtual bool intersect(const Pnt3f& point) const = 0;
    virtual bool intersect(const Line& line) const = 0;
    virtual bool intersect(const Line& line, Real32& enter, Real32& exit) const = 0;
    virtual bool intersect(const Volume& other) const = 0;
    virtual void transform(const Matrix& matrix) = 0;

protected:
    Volume() = default;
    Volume(const Volume&) = default;
    Volume& operator=(const Volume&) = default;

private:
    bool valid = true;
    bool empty = true;
    bool infinite = false;
    bool constant = false;
};

}  // namespace osg
