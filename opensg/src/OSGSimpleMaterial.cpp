// SPDX-License-Identifier: MIT
#include <OpenSG/OSGSimpleMaterial.h>

namespace osg {

OSG_CONTAINER_TYPE(SimpleMaterial, ChunkMaterial);

bool SimpleMaterial::isTransparent() const
{
    return getTransparency() > Eps || Inherited::isTransparent();
}

}  // namespace osg
