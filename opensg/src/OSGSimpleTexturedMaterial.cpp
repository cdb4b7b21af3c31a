// SPDX-License-Identifier: MIT
#include <OpenSG/OSGSimpleTexturedMaterial.h>

namespace osg {

OSG_CONTAINER_TYPE(SimpleTexturedMaterial, SimpleMaterial);

}  // namespace osg
