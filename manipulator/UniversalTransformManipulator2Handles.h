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

}  // namespace nbec::manipulator
