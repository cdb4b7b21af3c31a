// SPDX-License-Identifier: MIT
#include <OpenSG/OSGBoxVolume.h>
#include <OpenSG/OSGLine.h>

namespace osg {

void BoxVolume::getBounds(Pnt3f& minimum, Pnt3f& maximum) const
{
    minimum = low;
    maximum = high;
}

void BoxVolume::getCenter(Pnt3f& center) const
{
    center = low + (high - low) * 0.5F;
}

Real32 BoxVolume::getScalarVolume() const
{
    const Vec3f size = high - low;
    return isEmpty() ? 0.0F : size[0] * size[1] * size[2];
}

void BoxVolume::setBounds(const Pnt3f& minimum, const Pnt3f& maximum)
{
    low = minimum;
    high = maximum;
    setEmpty(false);
    setValid();
}

void BoxVolume::setBounds(Real32 minX, Real32 minY, Real32 minZ, Real32 maxX, Real32 maxY,
                          Real32 maxZ)
{
    setBounds(Pnt3f(minX, minY, minZ), Pnt3f(maxX, maxY, maxZ));
}

void BoxVolume::extendBy(const Pnt3f& point)
{
    if (isInfinite() || isStatic() || (!isValid() && !isEmpty())) {
        return;
    }
    if (isEmpty()) {
        setBounds(point, point);
        return;
    }
    for (UInt32 i = 0; i < 3; ++i) {
        // In this order of the arguments a coordinate that is no number changes nothing.
        low[i] = osgMin(point[i], low[i]);
        high[i] = osgMax(high[i], point[i]);
    }
}

void BoxVolume::extendBy(const Volume& other)
{
    if (!other.isValid() || other.isEmpty()) {
        return;
    }
    if (other.isInfinite()) {
        setInfinite();
        setEmpty(false);
        return;
    }
    Pnt3f otherLow;
    Pnt3f otherHigh;
    other.getBounds(otherLow, otherHigh);
    extendBy(otherLow);
    extendBy(otherHigh);
}

bool BoxVolume::intersect(const Pnt3f& point) const
{
    if (isEmpty() || !isValid()) {
        return false;
    }
    for (UInt32 i = 0; i < 3 && !isInfinite(); ++i) {
        if (point[i] < low[i] || point[i] > high[i]) {
            return false;
        }
    }
    return true;
}

bool BoxVolume::intersect(const Line& line) const
{
    Real32 enter = 0.0F;
    Real32 exit = 0.0F;
    return intersect(line, enter, exit);
}

bool BoxVolume::intersect(const Line& line, Real32& enter, Real32& exit) const
{
    return line.intersect(*this, enter, exit);
}

bool BoxVolume::intersect(const Volume& other) const
{
    if (isEmpty() || other.isEmpty() || !isValid() || !other.isValid()) {
        return false;
    }
    if (isInfinite() || other.isInfinite()) {
        return true;
    }
    Pnt3f otherLow;
    Pnt3f otherHigh;
    other.getBounds(otherLow, otherHigh);
    for (UInt32 i = 0; i < 3; ++i) {
        if (otherLow[i] > high[i] || otherHigh[i] < low[i]) {
            return false;
        }
    }
    return true;
}

void BoxVolume::transform(const Matrix& matrix)
{
    if (isEmpty() || isInfinite()) {
        return;
    }
    // Each element moves the bounds by its product with one end of the edge: no corners needed.
    Pnt3f newLow(matrix[3]);
    Pnt3f newHigh(newLow);
    for (UInt32 row = 0; row < 3; ++row) {
        for (UInt32 column = 0; column < 3; ++column) {
            const Real32 a = matrix[column][row] * low[column];
            const Real32 b = matrix[column][row] * high[column];
            newLow[row] += osgMin(a, b);
            newHigh[row] += osgMax(a, b);
        }
    }
    low = newLow;
    high = newHigh;
}

}  // namespace osg
