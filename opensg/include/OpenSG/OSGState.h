// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>

namespace osg {

/// Where a chunk goes that is added to a material. Left out of OpenSG's class: the state itself,
/// with which it drives OpenGL; the renderer reads the materials' chunks instead.
class State
{
public:
    /// Slots that are no slot numbers.
    enum
    {
        AutoSlot = -1,  ///< the first free slot of the chunk's kind
        AutoSlotReplace = -2  ///< slot 0; what is there gives way
    };
};

}  // namespace osg
