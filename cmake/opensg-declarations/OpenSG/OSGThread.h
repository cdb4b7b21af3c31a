// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGBaseTypes.h>

namespace osg {
class ChangeList;

class Thread
{
public:
    static ChangeList* getCurrentChangeList();
};
}  // namespace osg
