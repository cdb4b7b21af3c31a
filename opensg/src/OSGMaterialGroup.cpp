// SPDX-License-Identifier: MIT
#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGMaterialGroup.h>

namespace osg {

OSG_CONTAINER_TYPE(MaterialGroup, Group);

}  // namespace osg
