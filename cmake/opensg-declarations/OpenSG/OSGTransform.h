// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGMatrix.h>

namespace osg {
OSG_DECLARED_POINTER(Transform, GroupPtr);

class Transform : public Group
{
    OSG_DECLARED_CLASS(Transform, Group)
    OSG_DECLARED_VALUE(Matrix, TransformationMatrix<Real32>)

protected:
    Action::ResultE drawEnter(Action* action);
    Action::ResultE drawLeave(Action* action);
    Action::ResultE renderEnter(Action* action);
    Action::ResultE renderLeave(Action* action);
    Action::ResultE intersectEnter(Action* action);
    Action::ResultE intersectLeave(Action* action);
};
}  // namespace osg
