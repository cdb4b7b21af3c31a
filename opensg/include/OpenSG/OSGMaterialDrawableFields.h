// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGDrawableFields.h>

namespace osg {

OSG_CONTAINER_POINTER(MaterialDrawable, DrawablePtr);

}  // namespace osg
