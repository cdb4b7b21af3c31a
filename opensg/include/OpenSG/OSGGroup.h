// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGroupFields.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodeCore.h>
#include <OpenSG/OSGNodePtr.h>

namespace osg {

/// The core of a node that only has children; base of the cores that children hang below.
class Group : public NodeCore
{
    OSG_CONTAINER(Group, NodeCore, OSG_NO_FIELDS);
};

typedef CoredNodePtr<Group> GroupNodePtr;

}  // namespace osg
