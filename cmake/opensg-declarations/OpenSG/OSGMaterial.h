// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGAttachmentContainer.h>

namespace osg {
OSG_DECLARED_POINTER(Material, AttachmentContainerPtr);

class Material : public AttachmentContainer
{
    OSG_DECLARED_TYPE(Material, AttachmentContainer)

    enum
    {
        NoStateSorting = 0x7fffffff
    };

    enum
    {
        TransparencyAutoDetection,
        TransparencyForceTransparent,
        TransparencyForceOpaque
    };
    OSG_DECLARED_VALUE(SortKey, Int32)
    OSG_DECLARED_VALUE(TransparencyMode, Int32)
    virtual bool isTransparent() const;
};
}  // namespace osg
