// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGroupFields.h>

namespace osg {

OSG_CONTAINER_POINTER(Transform, GroupPtr);

}  // namespace osg
