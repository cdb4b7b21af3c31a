// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGAttachmentContainer.h>

namespace osg {
OSG_DECLARED_POINTER(Background, AttachmentContainerPtr);

class Background : public AttachmentContainer
{
    OSG_DECLARED_TYPE(Background, AttachmentContainer)
};
}  // namespace osg
