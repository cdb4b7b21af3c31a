// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGVolume.h>

namespace osg {
class BoxVolume : public Volume
{
public:
    void getCenter(Pnt3f& center) const override;
    void getBounds(Pnt3f& min, Pnt3f& max) const override;
    void extendBy(const Pnt3f& point) override;
    void extendBy(const Volume& volume);
    BoxVolume();
    BoxVolume(Real32 minX, Real32 minY, Real32 minZ, Real32 maxX, Real32 maxY, Real32 maxZ);
    BoxVolume(const Pnt3f& min, const Pnt3f& max);
    void extendBy(const BoxVolume& volume);
    void setBounds(Real32 minX, Real32 minY, Real32 minZ, Real32 maxX, Real32 maxY, Real32 maxZ);
    void setBounds(const Pnt3f& min, const Pnt3f& max);
    const Pnt3f& getMin() const;
    const Pnt3f& getMax() const;
    void getSize(Vec3f& size) const;
    void transform(const Matrix& matrix);
};
}  // namespace osg
