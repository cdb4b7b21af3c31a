// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGStateChunk.h>

namespace osg {
OSG_DECLARED_POINTER(State, FieldContainerPtr);

class State : public FieldContainer
{
    OSG_DECLARED_CLASS(State, FieldContainer)

    enum
    {
        AutoSlot = -1,
        AutoSlotReplace = -2
    };
};
}  // namespace osg
