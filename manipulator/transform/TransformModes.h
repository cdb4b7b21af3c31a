// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>

namespace nbec::manipulator::transform {

/// Which handles of the transform gizmo are shown.
enum class ManipulatorMode : osg::UInt32
{
    Universal = 0,  ///< all but the markers
    Translate = 1,  ///< arrows and planes
    Scale = 2,  ///< scale handles and the cube "grid"
    Rotate = 3,  ///< rings
    RotatePivot = 4,  ///< arrows, planes, rings and the sphere
    ScalePivot = 5,  ///< arrows, planes and the purple cube
    Clipping = 6,  ///< arrows, planes and rings
    TranslateRotate = 7,  ///< arrows, planes and rings
    TranslateRotateYZ = 8,  ///< arrows, planes, y and z ring
    TranslateRotateScale = 9  ///< arrows, planes, rings and the scale handles of the axes
};

/// The handle of the transform gizmo that is hovered or grabbed.
enum class ActiveMode : osg::UInt32
{
    None = 0,
    RotateX = 1,
    RotateY = 2,
    RotateZ = 3,
    TranslateX = 4,
    TranslateY = 5,
    TranslateZ = 6,
    TranslateXY = 7,
    TranslateXZ = 8,
    TranslateYZ = 9,
    ScaleX = 10,
    ScaleY = 11,
    ScaleZ = 12,
    ScaleUniform = 13
};

constexpr bool isRing(ActiveMode handle)
{
    return handle >= ActiveMode::RotateX && handle <= ActiveMode::RotateZ;
}

constexpr bool isTranslation(ActiveMode handle)
{
    return handle >= ActiveMode::TranslateX && handle <= ActiveMode::TranslateYZ;
}

constexpr bool isScale(ActiveMode handle)
{
    return handle >= ActiveMode::ScaleX && handle <= ActiveMode::ScaleUniform;
}

/// What axisOf() and planeNormalAxis() answer for handles that have none.
constexpr osg::UInt32 kNoAxis = 3;

/// Axis of a handle of one axis, 0, 1 or 2.
constexpr osg::UInt32 axisOf(ActiveMode handle)
{
    const auto number = static_cast<osg::UInt32>(handle);
    if (isRing(handle)) {
        return number - static_cast<osg::UInt32>(ActiveMode::RotateX);
    }
    if (isTranslation(handle) && handle <= ActiveMode::TranslateZ) {
        return number - static_cast<osg::UInt32>(ActiveMode::TranslateX);
    }
    if (isScale(handle) && handle <= ActiveMode::ScaleZ) {
        return number - static_cast<osg::UInt32>(ActiveMode::ScaleX);
    }
    return kNoAxis;
}

/// Axis at right angles to a plane handle: z of xy, y of xz, x of yz.
constexpr osg::UInt32 planeNormalAxis(ActiveMode handle)
{
    switch (handle) {
    case ActiveMode::TranslateXY:
        return 2;
    case ActiveMode::TranslateXZ:
        return 1;
    case ActiveMode::TranslateYZ:
        return 0;
    default:
        return kNoAxis;
    }
}

}  // namespace nbec::manipulator::transform
