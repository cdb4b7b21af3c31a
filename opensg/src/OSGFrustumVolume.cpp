// SPDX-License-Identifier: MIT
#include <OpenSG/OSGFrustumVolume.h>
#include <OpenSG/OSGLine.h>

namespace osg {

namespace {

/// Corners of the sides in the order of the sides, once around.
constexpr UInt32 kFaces[6][4] = { { 0, 1, 3, 2 }, { 4, 5, 7, 6 }, { 0, 2, 6, 4 },
                                  { 1, 3, 7, 5 }, { 2, 3, 7, 6 }, { 0, 1, 5, 4 } };

/// The half space in which a row of a clip matrix is positive.
Plane planeOf(const Vec4f& row)
{
    const Vec3f normal(row);
    const Real32 length = normal.length();
    Plane result;
    if (length > 0.0F) {
        result.set(normal * (1.0F / length), -row[3] / length);
    }
    return result;
}

}  // namespace

void FrustumVolume::setPlanes(const Plane& nearPlane, const Plane& farPlane, const Plane& leftPlane,
                              const Plane& rightPlane, const Plane& topPlane,
                              const Plane& bottomPlane)
{
    planes[Near] = nearPlane;
    planes[Far] = farPlane;
    planes[Left] = leftPlane;
    planes[Right] = rightPlane;
    planes[Top] = topPlane;
    planes[Bottom] = bottomPlane;
    findCorners();
}

void FrustumVolume::setPlanes(const Matrix& clipFromWorld)
{
    const auto row = [&clipFromWorld](UInt32 i) {
        return Vec4f(clipFromWorld[0][i], clipFromWorld[1][i], clipFromWorld[2][i],
                     clipFromWorld[3][i]);
    };
    const Vec4f w = row(3);
    setPlanes(planeOf(w + row(2)), planeOf(w - row(2)), planeOf(w + row(0)), planeOf(w - row(0)),
              planeOf(w - row(1)), planeOf(w + row(1)));
}

bool FrustumVolume::meet(Side a, Side b, Side c, Pnt3f& point) const
{
    const Vec3f& na = planes[a].getNormal();
    const Vec3f& nb = planes[b].getNormal();
    const Vec3f& nc = planes[c].getNormal();
    const Real32 det = na.dot(nb.cross(nc));
    if (det == 0.0F) {
        return false;
    }
    const Vec3f sum = nb.cross(nc) * planes[a].getDistanceFromOrigin() +
        nc.cross(na) * planes[b].getDistanceFromOrigin() +
        na.cross(nb) * planes[c].getDistanceFromOrigin();
    point = (sum * (1.0F / det)).addToZero();
    return true;
}

void FrustumVolume::findCorners()
{
    bool closed = true;
    for (UInt32 i = 0; i < 8; ++i) {
        closed = meet((i & 1) != 0 ? Right : Left, (i & 2) != 0 ? Top : Bottom,
                      (i & 4) != 0 ? Far : Near, corners[i]) &&
            closed;
    }
    setEmpty(!closed);
    setValid();
}

void FrustumVolume::getCenter(Pnt3f& center) const
{
    Vec3f sum;
    for (const Pnt3f& corner : corners) {
        sum += corner.subZero();
    }
    center = (sum * 0.125F).addToZero();
}

Real32 FrustumVolume::getScalarVolume() const
{
    if (isEmpty()) {
        return 0.0F;
    }
    // A pyramid from the centre to each side, each of two tetrahedra.
    Pnt3f center;
    getCenter(center);
    Real32 sum = 0.0F;
    for (const auto& face : kFaces) {
        const Vec3f first = corners[face[0]] - center;
        const Vec3f middle = corners[face[2]] - center;
        for (const UInt32 other : { face[1], face[3] }) {
            sum += osgabs(first.dot(middle.cross(corners[other] - center)));
        }
    }
    return sum / 6.0F;
}

void FrustumVolume::getBounds(Pnt3f& minimum, Pnt3f& maximum) const
{
    minimum = corners[0];
    maximum = corners[0];
    for (const Pnt3f& corner : corners) {
        for (UInt32 i = 0; i < 3; ++i) {
            minimum[i] = osgMin(corner[i], minimum[i]);
            maximum[i] = osgMax(maximum[i], corner[i]);
        }
    }
}

void FrustumVolume::extendBy(const Pnt3f&) { }

void FrustumVolume::extendBy(const Volume&) { }

bool FrustumVolume::intersect(const Pnt3f& point) const
{
    bool inside = !isEmpty();
    for (const Plane& plane : planes) {
        inside = inside && plane.isInHalfSpace(point);
    }
    return inside;
}

bool FrustumVolume::intersect(const Line& line) const
{
    Real32 enter = 0.0F;
    Real32 exit = 0.0F;
    return intersect(line, enter, exit);
}

bool FrustumVolume::intersect(const Line& line, Real32& enter, Real32& exit) const
{
    Real32 from = 0.0F;
    Real32 to = Inf;
    for (const Plane& plane : planes) {
        const Real32 approach = plane.getNormal().dot(line.getDirection());
        const Real32 height = plane.distance(line.getPosition());
        if (approach > 0.0F) {
            from = osgMax(from, -height / approach);
        } else if (approach < 0.0F) {
            to = osgMin(to, -height / approach);
        } else if (height < 0.0F) {
            return false;
        }
    }
    if (isEmpty() || from > to) {
        return false;
    }
    enter = from;
    exit = to;
    return true;
}

bool FrustumVolume::intersect(const Volume& other) const
{
    if (isEmpty() || other.isEmpty() || !other.isValid()) {
        return false;
    }
    if (other.isInfinite()) {
        return true;
    }
    Pnt3f low;
    Pnt3f high;
    other.getBounds(low, high);
    for (const Plane& plane : planes) {
        Pnt3f foremost(low);
        for (UInt32 i = 0; i < 3; ++i) {
            foremost[i] = plane.getNormal()[i] > 0.0F ? high[i] : low[i];
        }
        if (!plane.isInHalfSpace(foremost)) {
            return false;
        }
    }
    return true;
}

void FrustumVolume::transform(const Matrix& matrix)
{
    if (isEmpty()) {
        return;
    }
    for (Pnt3f& corner : corners) {
        matrix.multMatrixPnt(corner);
    }
    Pnt3f center;
    getCenter(center);
    for (UInt32 side = 0; side < SideCount; ++side) {
        const UInt32* const face = kFaces[side];
        const Vec3f diagonal = corners[face[2]] - corners[face[0]];
        Vec3f normal = diagonal.cross(corners[face[3]] - corners[face[1]]);
        const Real32 length = normal.length();
        setEmpty(isEmpty() || !(length > 0.0F));
        normal *= length > 0.0F ? 1.0F / length : 0.0F;
        planes[side].set(normal, normal.dot(corners[face[0]]));
        if (!planes[side].isInHalfSpace(center)) {
            planes[side].set(-normal, -normal.dot(corners[face[0]]));
        }
    }
}

}  // namespace osg
