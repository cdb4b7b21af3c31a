// SPDX-License-Identifier: MIT
#include <OpenSG/OSGContentStamp.h>
#include <OpenSG/OSGMaterial.h>

namespace osg {

OSG_ABSTRACT_CONTAINER_TYPE(Material, AttachmentContainer);

bool Material::isTransparent() const
{
    return getTransparencyMode() == TransparencyForceTransparent;
}

UInt64 Material::getContentStamp() const
{
    return ContentStamp(*this).get();
}

}  // namespace osg
