// SPDX-License-Identifier: MIT
#include "ColorComponent.h"

namespace osg {

NB_CONTAINER_TYPE(ColorComponent, AttachmentContainer, NB_COLOR_COMPONENT_FIELDS);

}  // namespace osg
