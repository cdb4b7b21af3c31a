// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGMaterialDrawableFields.h>

namespace osg {

OSG_CONTAINER_POINTER(Geometry, MaterialDrawablePtr);

}  // namespace osg
