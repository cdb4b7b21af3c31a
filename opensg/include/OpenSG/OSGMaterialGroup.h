// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGNodePtr.h>

namespace osg {

OSG_CONTAINER_POINTER(MaterialGroup, GroupPtr);

#define OSG_MATERIAL_GROUP_FIELDS(VALUE, OWNED, LINK) OWNED(Material, material, MaterialPtr)

/// Everything below is drawn with this core's material (counted, may be null) instead of its own;
/// of several such cores on the way down the outermost one wins.
class MaterialGroup : public Group
{
    OSG_CONTAINER(MaterialGroup, Group, OSG_MATERIAL_GROUP_FIELDS);
};

typedef CoredNodePtr<MaterialGroup> MaterialGroupNodePtr;

}  // namespace osg
