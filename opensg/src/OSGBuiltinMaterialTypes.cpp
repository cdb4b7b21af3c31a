// SPDX-License-Identifier: MIT
#include "OSGBuiltinTypes.h"

namespace osg {

void referenceMaterialTypes() { }

}  // namespace osg
