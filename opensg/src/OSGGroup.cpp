// SPDX-License-Identifier: MIT
/// @file
/// The groups that are little more than their fields.
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGSwitch.h>

namespace osg {

OSG_CONTAINER_TYPE(Group, NodeCore);
OSG_CONTAINER_TYPE(MaterialGroup, Group);
OSG_CONTAINER_TYPE(Switch, Group);

}  // namespace osg
