// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGGroup.h>

namespace osg {
OSG_DECLARED_POINTER(Material, AttachmentContainerPtr);
OSG_DECLARED_POINTER(MaterialGroup, GroupPtr);

class MaterialGroup : public Group
{
    OSG_DECLARED_CLASS(MaterialGroup, Group)
    OSG_DECLARED_VALUE(Material, MaterialPtr)
};
}  // namespace osg
