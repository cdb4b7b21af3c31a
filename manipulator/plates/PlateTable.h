// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/handles/HandleSet.h"
#include "manipulator/plates/PlateFrame.h"

namespace nbec::manipulator::plates {

/// Length of a guide's line, along y, before it is placed.
constexpr float kShaftLength = 2.0F;

/// What is seen of the boxes.
enum BoxMode : int
{
    Corners,
    CornersAndSides
};

/// Places of the rows after those of the boxes, which stand in their order.
enum Row : std::size_t
{
    ArmRow = kPlateBoxCount,
    BodyRow,
    VerticalRow,
    HorizontalRow
};

/// The handles and guides of the scene-plate gizmo. Boxes are of size 1, the body has sides of 1;
/// of the arm a unit is one of handle sizes, see PlateFrame.h, and its origin the knob. Of two
/// handles at one place the first is hit.
HandleTable makeTable();

/// Their materials, in the order that the table counts in.
HandleSet::Materials makeMaterials();

}  // namespace nbec::manipulator::plates
