// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/handles/HandleSet.h"
#include "manipulator/plates/PlateFrame.h"

namespace nbec::manipulator::plates {

/// Length of a guide's line, along y, before it is placed.
constexpr float kShaftLength = 2.0F;

/// Places of the rows after those of the four boxes, which stand in the order of their corners.
enum Row : std::size_t
{
    ArmRow = kPlateCornerCount,
    BodyRow,
    VerticalRow,
    HorizontalRow
};

/// The handles and guides of the scene-plate gizmo. Boxes are of size 1, the body has sides of 1;
/// of the arm a unit is one of handle sizes, see PlateFrame.h, and its origin the knob. Of two
/// handles at one place the first is hit.
const HandleTable& handleTable();

/// Their materials, in the order that the table counts in.
HandleSet::Materials makeMaterials();

}  // namespace nbec::manipulator::plates
