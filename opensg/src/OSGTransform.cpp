// SPDX-License-Identifier: MIT
#include <OpenSG/OSGTransform.h>

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

}  // namespace osg
