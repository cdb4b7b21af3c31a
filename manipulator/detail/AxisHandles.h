// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/detail/HandleSet.h"

namespace nbec::manipulator::detail {

/// Materials of gizmos with handles along three axes, in the order of makeAxisMaterials().
enum AxisMaterial : std::size_t
{
    RedMaterial,
    GreenMaterial,
    BlueMaterial,
    YellowMaterial,
    HighlightMaterial,
    LightRedMaterial,
    LightGreenMaterial,
    LightBlueMaterial,
    RedLineMaterial,
    GreenLineMaterial,
    BlueLineMaterial
};

/// Makes the eleven materials. The last three are for lines of 4 px, not smooth.
/// @param hasWideHighlight  whether highlighted lines are as wide, too; otherwise they are thin
HandleSet::Materials makeAxisMaterials(bool hasWideHighlight);

/// The row of an arrow from the origin along a positive axis, in that axis' colour.
/// @param axis  0, 1 or 2
HandleRow axisArrow(const char* name, int activeMode, int group, std::size_t axis);

}  // namespace nbec::manipulator::detail
