// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>

namespace nbec::manipulator::texture {

/// Which handles of the triplanar gizmo are shown.
enum class TriplanarMode : osg::Int32
{
    Hidden = -1,
    Universal = 0,
    Initial = 1,  ///< after construction: what is shown is left as it is
    Rotate = 3,
    RotateScale = 4
};

/// The handle of the triplanar gizmo that is hovered or grabbed.
enum class TriplanarHandle : osg::UInt32
{
    None = 0,
    RotateX = 1,
    RotateY = 2,
    RotateZ = 3,
    TranslateX = 4,
    TranslateY = 5,
    TranslateZ = 6,
    ScaleX = 7,
    ScaleY = 8,
    ScaleZ = 9,
    ScaleUniform = 10
};

}  // namespace nbec::manipulator::texture
