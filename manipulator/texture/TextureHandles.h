// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/handles/HandleMaterials.h"
#include "manipulator/handles/HandleSet.h"

#include <array>
#include <initializer_list>

namespace nbec::manipulator::texture {

/// Number of a handle or mode, as tables count them.
template <class Enum>
constexpr int number(Enum each)
{
    return static_cast<int>(each);
}

/// Materials that all texture gizmos have. Those up to LightBlueMaterial are the same for all.
enum TextureMaterial : std::size_t
{
    RedMaterial,
    GreenMaterial,
    BlueMaterial,
    LightRedMaterial,
    LightGreenMaterial,
    LightBlueMaterial,
    YellowMaterial,
    HighlightMaterial,
    OwnMaterial,  ///< first of a gizmo's own

    // Of makeAxisMaterials()
    RedLineMaterial = OwnMaterial,
    GreenLineMaterial,
    BlueLineMaterial
};

/// Makes the materials. @param others  from YellowMaterial on
HandleSet::Materials makeTextureMaterials(std::initializer_list<HandleMaterialRow> others);

/// Those of gizmos with handles along three axes: with three for lines of 4 px, not smooth.
/// @param hasWideHighlight  whether highlighted lines are as wide, too; otherwise they are thin
HandleSet::Materials makeAxisMaterials(bool hasWideHighlight);

/// A part in one colour. @param holder, place, turn  of the node that places it
HandlePart handlePart(HandleShape shape, std::size_t color,
                      HandleHolder holder = HandleHolder::None,
                      const std::array<float, 3>& place = {}, Turn turn = Turn::None);

/// A row whose parts lie where they belong.
HandleRow handleRow(const char* name, int handle, int family, const HandleAction& action,
                    std::vector<HandlePart> parts);

/// The row of a solid arrow. @param color  of its axis, RedMaterial for x and so on
/// @param place  of its middle
HandleRow solidArrow(const char* name, int handle, int family, std::size_t color,
                     const std::array<float, 3>& place, Turn turn);

/// The row of the handle that moves along x and y, a square with two bars. @param color  its own
HandleRow solidSquare(const char* name, int handle, int family, std::size_t color);

/// The row of an arrow from the origin along a positive axis, in that axis' colour.
/// @param axis  0, 1 or 2
HandleRow axisArrow(const char* name, int handle, int family, std::size_t axis);

}  // namespace nbec::manipulator::texture
