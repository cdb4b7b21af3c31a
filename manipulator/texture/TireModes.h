// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>

namespace nbec::manipulator::texture {

/// Which handles of the tire gizmo are shown.
enum class TireMode : osg::Int32
{
    Hidden = -1,
    Universal = 0,
    Translate = 1,
    Scale = 2
};

/// The handle of the tire gizmo that is hovered or grabbed.
enum class TireHandle : osg::UInt32
{
    None = 0,
    TranslateX = 1,
    TranslateY = 2,
    TranslateZ = 3,
    ScaleHeight = 4,
    ScaleRadius = 5,
    ScaleU = 6
};

}  // namespace nbec::manipulator::texture
