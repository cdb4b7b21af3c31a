// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNodeCoreFields.h>

namespace osg {

OSG_CONTAINER_POINTER(Drawable, NodeCorePtr);

}  // namespace osg
