// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>

namespace nbec::manipulator::texture {

/// The handle of the planar gizmo that is hovered or dragged.
enum class PlanarActiveMode : osg::UInt32
{
    None = 0,
    Rotate = 1,
    TranslateX = 2,
    TranslateY = 3,
    TranslateZ = 4,
    TranslateXY = 5,
    ScaleX = 6,
    ScaleY = 7,
    ScaleZ = 8,
    ScaleUniform = 9,
    ScaleLowerLeft = 10,
    ScaleUpperLeft = 11,
    ScaleLowerRight = 12,
    ScaleUpperRight = 13,
    ScaleLeft = 14,
    ScaleRight = 15,
    ScaleLower = 16,
    ScaleUpper = 17,
    ScaleZPlane = 18
};

/// Which handles of the planar gizmo are shown.
enum class PlanarManipulatorMode : osg::UInt32
{
    Universal = 0,  ///< all
    Translate = 1,  ///< arrows and plane handle
    Scale = 2,  ///< scale axes, edges, corners, grid
    Rotate = 3  ///< ring
};

}  // namespace nbec::manipulator::texture
