// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGTransformFields.h>

namespace osg {

OSG_CONTAINER_POINTER(ComponentTransform, TransformPtr);

}  // namespace osg
