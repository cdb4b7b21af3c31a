// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGVolume.h>

namespace osg {

/// Box along the axes.
class BoxVolume : public Volume
{
public:
    /// Empty, at the origin.
    BoxVolume() = default;

    BoxVolume(Real32 minX, Real32 minY, Real32 minZ, Real32 maxX, Real32 maxY, Real32 maxZ)
    {
        setBounds(minX, minY, minZ, maxX, maxY, maxZ);
    }

    BoxVolume(const Pnt3f& minimum, const Pnt3f& maximum) { setBounds(minimum, maximum); }

    const Pnt3f& getMin() const { return low; }

    const Pnt3f& getMax() const { return high; }

    void getBounds(Pnt3f& minimum, Pnt3f& maximum) const override;
    void getCenter(Pnt3f& center) const override;
    Real32 getScalarVolume() const override;

    void getSize(Vec3f& size) const { size = high - low; }

    /// A box set by its corners is valid and not empty.
    void setBounds(const Pnt3f& minimum, const Pnt3f& maximum);
    void setBounds(Real32 minX, Real32 minY, Real32 minZ, Real32 maxX, Real32 maxY, Real32 maxZ);

    /// Grows to hold a point; an empty box becomes the point, an infinite or static one, or one
    /// that is neither valid nor empty, stays.
    void extendBy(const Pnt3f& point) override;

    /// Grows to hold another volume; empty ones add nothing, an infinite one makes this infinite.
    void extendBy(const Volume& other) override;

    bool intersect(const Pnt3f& point) const override;
    bool intersect(const Line& line) const override;
    bool intersect(const Line& line, Real32& enter, Real32& exit) const override;
    bool intersect(const Volume& other) const override;

    /// Becomes the box around the transformed box; empty and infinite ones stay. The last row is
    /// ignored.
    void transform(const Matrix& matrix) override;

private:
    Pnt3f low;
    Pnt3f high;
};

}  // namespace osg
