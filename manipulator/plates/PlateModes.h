// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>

// Of X11's headers.
#pragma push_macro("None")
#undef None

namespace nbec::manipulator::plates {

/// The handle of the scene-plate gizmo that is hovered or grabbed; first the boxes of the corners,
/// in their order; last those of the sides.
enum class ActiveMode : osg::UInt32
{
    None = 0,
    ScaleLowerLeft = 1,
    ScaleUpperLeft = 2,
    ScaleLowerRight = 3,
    ScaleUpperRight = 4,
    Rotate = 5,
    Move = 6,
    SizeLeft = 7,
    SizeUpper = 8,
    SizeLower = 9,
    SizeRight = 10
};

}  // namespace nbec::manipulator::plates

#pragma pop_macro("None")
