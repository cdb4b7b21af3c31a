// SPDX-License-Identifier: MIT
#include <OpenSG/OSGMaterial.h>

namespace osg {

OSG_ABSTRACT_CONTAINER_TYPE(Material, AttachmentContainer);

bool Material::isTransparent() const
{
    return getTransparencyMode() == TransparencyForceTransparent;
}

}  // namespace osg
