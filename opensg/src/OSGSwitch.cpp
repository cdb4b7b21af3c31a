// SPDX-License-Identifier: MIT
#include <OpenSG/OSGSwitch.h>

namespace osg {

OSG_CONTAINER_TYPE(Switch, Group);

}  // namespace osg
