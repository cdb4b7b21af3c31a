// SPDX-License-Identifier: MIT
#include <OpenSG/OSGComponentTransform.h>

namespace osg {

OSG_CONTAINER_TYPE(ComponentTransform, Transform);

void ComponentTransform::changed(BitVector whichField, UInt32 origin)
{
    constexpr BitVector kParts = CenterFieldMask | RotationFieldMask | ScaleFieldMask |
        ScaleOrientationFieldMask | TranslationFieldMask;
    if (whichField & kParts) {
        getMatrix().setTransform(getTranslation(), getRotation(), getScale(), getScaleOrientation(),
                                 getCenter());
        whichField |= MatrixFieldMask;
    }
    Inherited::changed(whichField, origin);
}

}  // namespace osg
