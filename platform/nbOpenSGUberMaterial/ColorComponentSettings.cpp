// SPDX-License-Identifier: MIT
#include "ColorComponentSettings.h"

#include <nbOpenSGExt/nbContainerId.h>

#include "ColorComponent.h"

namespace osg {

NB_CONTAINER_TYPE(ColorComponent, AttachmentContainer, NB_COLOR_COMPONENT_FIELDS);
NB_CONTAINER_TYPE(ColorComponentSettings, AttachmentContainer, NB_COLOR_COMPONENT_SETTINGS_FIELDS);

Transform3DPtr ColorComponentSettings::getShownProjection() const
{
    const auto placing = resolveContainer<Transform3DPtr>(getPlacingId());
    return placing != NullFC ? placing : getPlanarProjection();
}

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
