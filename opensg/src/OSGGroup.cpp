// SPDX-License-Identifier: MIT
#include <OpenSG/OSGGroup.h>

namespace osg {

OSG_CONTAINER_TYPE(Group, NodeCore);

}  // namespace osg
