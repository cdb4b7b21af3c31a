// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGAction.h>
#include <OpenSG/OSGFieldContainerType.h>

namespace osg {
class DrawAction : public Action
{
public:
    static void registerEnterDefault(const FieldContainerType& type, const Functor& functor);
    static void registerLeaveDefault(const FieldContainerType& type, const Functor& functor);
};
}  // namespace osg
