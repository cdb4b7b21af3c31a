// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>

namespace nbec::manipulator::texture {

/// Which handles of the UV gizmo are shown.
enum class UVMode : osg::Int32
{
    Hidden = -1,
    Universal = 0,
    Translate = 1,
    Scale = 2,
    Rotate = 3,
    RotateScale = 4
};

/// The handle of the UV gizmo that is hovered or grabbed.
enum class UVHandle : osg::UInt32
{
    None = 0,
    Rotate = 1,
    TranslateU = 2,
    TranslateV = 3,
    TranslateUV = 4,
    ScaleU = 5,
    ScaleV = 6,
    ScaleUniform = 7
};

}  // namespace nbec::manipulator::texture
