// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/handles/HandleSet.h"

namespace nbec::manipulator::transform {

/// The handles of the transform gizmo, in the unit frame. @param hasFurther  with those of
/// FurtherHandles after them
HandleTable makeTable(bool hasFurther);

/// Their materials, in the order that the table counts in: six solid ones, seven for lines, and
/// a clear and a faint one.
HandleSet::Materials makeMaterials();

/// Places of materials for lines.
extern const std::size_t kYellowLine;
extern const std::size_t kOrangeLine;

}  // namespace nbec::manipulator::transform
