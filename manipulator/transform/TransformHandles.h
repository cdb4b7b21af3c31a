// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/handles/HandleSet.h"

namespace nbec::manipulator::transform {

/// The handles of the transform gizmo, in the unit frame.
const HandleTable& handleTable();

/// Their materials, in the order that the table counts in: six solid ones, then seven for lines.
HandleSet::Materials makeMaterials();

/// Places of materials for lines.
extern const std::size_t kYellowLine;
extern const std::size_t kOrangeLine;

}  // namespace nbec::manipulator::transform
