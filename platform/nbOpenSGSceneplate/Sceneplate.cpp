// SPDX-License-Identifier: MIT
#include "Sceneplate.h"

namespace osg {

NB_CONTAINER_TYPE(Sceneplate, Group, NB_SCENEPLATE_FIELDS);

}  // namespace osg
