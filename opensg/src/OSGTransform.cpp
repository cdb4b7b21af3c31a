// SPDX-License-Identifier: MIT
#include <OpenSG/OSGComponentTransform.h>

namespace osg {

OSG_CONTAINER_TYPE(Transform, Group);

void Transform::adjustVolume(Volume& volume)
{
    volume.transform(getMatrix());
}

void Transform::changed(BitVector whichField, UInt32 origin)
{
    if (whichField & MatrixFieldMask) {
        invalidateVolume();
    }
    Inherited::changed(whichField, origin);
}

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
