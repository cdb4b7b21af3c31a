// SPDX-License-Identifier: MIT
#include "ColorComponentSettings.h"

#include "ColorComponent.h"

namespace osg {

NB_CONTAINER_TYPE(ColorComponent, AttachmentContainer, NB_COLOR_COMPONENT_FIELDS);
NB_CONTAINER_TYPE(ColorComponentSettings, AttachmentContainer, NB_COLOR_COMPONENT_SETTINGS_FIELDS);

bool ColorComponentSettings::hasPlanarProjectionFlag(PlanarProjectionFlag flag) const
{
    return (getPlanarProjectionFlags() & flag) == flag;
}

void ColorComponentSettings::setPlanarProjectionFlag(PlanarProjectionFlag flag, bool on)
{
    const UInt32 others = getPlanarProjectionFlags() & ~UInt32(flag);
    setPlanarProjectionFlags(on ? others | flag : others);
}

}  // namespace osg
