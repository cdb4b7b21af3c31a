// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGGroup.h>

namespace osg {
OSG_DECLARED_POINTER(Switch, GroupPtr);

class Switch : public Group
{
    OSG_DECLARED_CLASS(Switch, Group)

    enum
    {
        ALL = -2,
        NONE = -1
    };
    OSG_DECLARED_VALUE(Choice, Int32)
};
}  // namespace osg
