// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>

// Of X11's headers.
#pragma push_macro("None")
#undef None

namespace nbec::manipulator::plates {

/// The handle of the scene-plate gizmo that is hovered or grabbed; first the boxes, in the order of
/// their corners.
enum class ActiveMode : osg::UInt32
{
    None = 0,
    ScaleLowerLeft = 1,
    ScaleUpperLeft = 2,
    ScaleLowerRight = 3,
    ScaleUpperRight = 4,
    Rotate = 5,
    Move = 6
};

}  // namespace nbec::manipulator::plates

#pragma pop_macro("None")
