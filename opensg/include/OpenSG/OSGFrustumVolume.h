// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGPlane.h>
#include <OpenSG/OSGVolume.h>

namespace osg {

/// Region between six planes whose normals point inwards, such as what a camera sees.
/// Points on the planes belong to it. It cannot grow: extendBy changes nothing.
class FrustumVolume : public Volume
{
public:
    /// Empty.
    FrustumVolume() = default;

    FrustumVolume(const Plane& nearPlane, const Plane& farPlane, const Plane& leftPlane,
                  const Plane& rightPlane, const Plane& topPlane, const Plane& bottomPlane)
    {
        setPlanes(nearPlane, farPlane, leftPlane, rightPlane, topPlane, bottomPlane);
    }

    explicit FrustumVolume(const Matrix& clipFromWorld) { setPlanes(clipFromWorld); }

    const Plane& getNear() const { return planes[Near]; }

    const Plane& getFar() const { return planes[Far]; }

    const Plane& getLeft() const { return planes[Left]; }

    const Plane& getRight() const { return planes[Right]; }

    const Plane& getTop() const { return planes[Top]; }

    const Plane& getBottom() const { return planes[Bottom]; }

    /// Planes that enclose no region, because some are parallel that should meet, make it empty.
    void setPlanes(const Plane& nearPlane, const Plane& farPlane, const Plane& leftPlane,
                   const Plane& rightPlane, const Plane& topPlane, const Plane& bottomPlane);

    /// What a matrix takes to -1 .. 1 in all three directions, after the division by w > 0.
    void setPlanes(const Matrix& clipFromWorld);

    /// Mean of the corners.
    void getCenter(Pnt3f& center) const override;
    Real32 getScalarVolume() const override;
    void getBounds(Pnt3f& minimum, Pnt3f& maximum) const override;
    void extendBy(const Pnt3f& point) override;
    void extendBy(const Volume& other) override;
    bool intersect(const Pnt3f& point) const override;
    bool intersect(const Line& line) const override;
    /// As a ray: enter is 0 for a start inside; both are unchanged if it misses.
    bool intersect(const Line& line, Real32& enter, Real32& exit) const override;
    /// False only if the other's box lies wholly behind one of the planes; near the edges it may
    /// be true for boxes that are just outside.
    bool intersect(const Volume& other) const override;
    /// An affine matrix that flattens the region makes it empty.
    void transform(const Matrix& matrix) override;

private:
    enum Side
    {
        Near,
        Far,
        Left,
        Right,
        Top,
        Bottom,
        SideCount
    };

    /// Where three sides meet; false if they do not.
    bool meet(Side a, Side b, Side c, Pnt3f& point) const;

    void findCorners();

    Plane planes[SideCount];
    Pnt3f corners[8];  ///< bits of the index: 1 right, 2 top, 4 far
};

}  // namespace osg
