// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGBoxVolume.h>

namespace osg {
class DynamicVolume : public Volume
{
public:
    void getCenter(Pnt3f& center) const override;
    void getBounds(Pnt3f& min, Pnt3f& max) const override;
    void extendBy(const Pnt3f& point) override;
    void extendBy(const Volume& volume);
    Pnt3f getMin() const;
    Pnt3f getMax() const;
    const Volume& getInstance() const;
    Volume& getInstance();
    void transform(const Matrix& matrix);
};
}  // namespace osg
