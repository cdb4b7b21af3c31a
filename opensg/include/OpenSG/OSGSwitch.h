// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGSFSysTypes.h>
#include <OpenSG/OSGSwitchFields.h>

namespace osg {

#define OSG_SWITCH_FIELDS(VALUE, OWNED, LINK) VALUE(Choice, choice, Int32, Switch::NONE)

/// Of the children one, all or none is shown. The volume is that of all children.
class Switch : public Group
{
public:
    /// Choices besides the index of a child.
    enum
    {
        ALL = -2,
        NONE = -1
    };

    OSG_CONTAINER(Switch, Group, OSG_SWITCH_FIELDS);
};

typedef CoredNodePtr<Switch> SwitchNodePtr;

}  // namespace osg
