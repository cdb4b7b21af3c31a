// SPDX-License-Identifier: MIT
#include <OpenSG/OSGMaterialGroup.h>

namespace osg {

OSG_CONTAINER_TYPE(MaterialGroup, Group);

}  // namespace osg
