// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGAction.h>
#include <OpenSG/OSGNodeCore.h>

namespace osg {
OSG_DECLARED_POINTER(Group, NodeCorePtr);

class Group : public NodeCore
{
    OSG_DECLARED_CLASS(Group, NodeCore)
protected:
    Action::ResultE drawEnter(Action* action);
    Action::ResultE drawLeave(Action* action);
    Action::ResultE renderEnter(Action* action);
    Action::ResultE renderLeave(Action* action);
    Action::ResultE intersect(Action* action);
};
}  // namespace osg
