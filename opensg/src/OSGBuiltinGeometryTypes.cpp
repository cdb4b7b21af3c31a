// SPDX-License-Identifier: MIT
#include "OSGBuiltinTypes.h"

namespace osg {

void referenceGeometryTypes() { }

}  // namespace osg
