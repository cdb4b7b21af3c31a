// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/handles/HandleSet.h"

#include <array>

namespace nbec::manipulator::texture {

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

/// A part in one colour. @param holder, place, turn  of the node that places it
HandlePart axisPart(HandleShape shape, std::size_t color, HandleHolder holder = HandleHolder::None,
                    const std::array<float, 3>& place = {}, Turn turn = Turn::None);

/// The row of an arrow from the origin along a positive axis, in that axis' colour.
/// @param axis  0, 1 or 2
HandleRow axisArrow(const char* name, int handle, int family, std::size_t axis);

}  // namespace nbec::manipulator::texture
