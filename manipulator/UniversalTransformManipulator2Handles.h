// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/UniversalTransformManipulator2.h"

namespace nbec::manipulator {

/// Colours of handles. Order of the material arrays; grey exists as a line material only.
enum class HandleColor : std::size_t
{
    Red,
    Green,
    Blue,
    Yellow,
    Purple,
    Orange,
    Grey
};

/// What a handle belongs to; markers belong to no family.
enum class HandleFamily
{
    Translate,
    Rotate,
    Scale,
    Marker
};

/// How a handle is built.
enum class HandleKind
{
    Arrow,
    ScaleHandle,
    Ring,
    PlaneHandle,
    CentreSphere,
    PivotCube
};

/// One row of the handle table. The order of rows is that of the tree and of the comparison of
/// names.
struct UniversalTransformManipulator2::HandleRow
{
    const char* name;  ///< name of the handle's nodes; null for a marker, which is never hit
    ActiveMode activeMode;
    HandleKind kind;
    std::size_t axis;  ///< 0 x, 1 y, 2 z; for planes 0 xy, 1 xz, 2 yz; for the scale handles 3 is
                       ///< the uniform one
    HandleFamily family;
    std::array<HandleColor, kMaxParts> idle;  ///< idle colour of each part
    unsigned visibleIn;  ///< bit i: shown in the mode of value i
};

inline bool isRing(UniversalTransformManipulator2::ActiveMode handle)
{
    return handle >= UniversalTransformManipulator2::ActiveMode::RotateX &&
        handle <= UniversalTransformManipulator2::ActiveMode::RotateZ;
}

inline bool isTranslation(UniversalTransformManipulator2::ActiveMode handle)
{
    return handle >= UniversalTransformManipulator2::ActiveMode::TranslateX &&
        handle <= UniversalTransformManipulator2::ActiveMode::TranslateYZ;
}

inline bool isScale(UniversalTransformManipulator2::ActiveMode handle)
{
    return handle >= UniversalTransformManipulator2::ActiveMode::ScaleX &&
        handle <= UniversalTransformManipulator2::ActiveMode::ScaleUniform;
}

/// Axis of a handle of one axis: 0, 1, 2; 3 for all others.
inline osg::UInt32 axisOf(UniversalTransformManipulator2::ActiveMode handle)
{
    const auto value = static_cast<osg::UInt32>(handle);
    if (isRing(handle)) {
        return value -
            static_cast<osg::UInt32>(UniversalTransformManipulator2::ActiveMode::RotateX);
    }
    if (value >= static_cast<osg::UInt32>(UniversalTransformManipulator2::ActiveMode::TranslateX) &&
        value <= static_cast<osg::UInt32>(UniversalTransformManipulator2::ActiveMode::TranslateZ)) {
        return value -
            static_cast<osg::UInt32>(UniversalTransformManipulator2::ActiveMode::TranslateX);
    }
    if (value >= static_cast<osg::UInt32>(UniversalTransformManipulator2::ActiveMode::ScaleX) &&
        value <= static_cast<osg::UInt32>(UniversalTransformManipulator2::ActiveMode::ScaleZ)) {
        return value - static_cast<osg::UInt32>(UniversalTransformManipulator2::ActiveMode::ScaleX);
    }
    return 3;
}

/// Axis at right angles to a plane handle: z of xy, y of xz, x of yz; 3 for all others.
inline osg::UInt32 planeNormalAxis(UniversalTransformManipulator2::ActiveMode handle)
{
    switch (handle) {
    case UniversalTransformManipulator2::ActiveMode::TranslateXY:
        return 2;
    case UniversalTransformManipulator2::ActiveMode::TranslateXZ:
        return 1;
    case UniversalTransformManipulator2::ActiveMode::TranslateYZ:
        return 0;
    default:
        return 3;
    }
}

}  // namespace nbec::manipulator
