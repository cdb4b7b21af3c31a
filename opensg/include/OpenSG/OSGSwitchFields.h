// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGroupFields.h>

namespace osg {

OSG_CONTAINER_POINTER(Switch, GroupPtr);

}  // namespace osg
