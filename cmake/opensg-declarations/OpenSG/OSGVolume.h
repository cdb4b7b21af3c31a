// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGVector.h>

namespace osg {
class Volume
{
public:
    virtual ~Volume();
    bool isValid() const;
    bool isEmpty() const;
    bool isInfinite() const;
    void setValid(bool value = true);
    void setEmpty(bool value = true);
    void setInfinite(bool value = true);
    virtual void getCenter(Pnt3f& center) const = 0;
    virtual void getBounds(Pnt3f& min, Pnt3f& max) const = 0;
    virtual void extendBy(const Pnt3f& point) = 0;
};
}  // namespace osg
