// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/handles/HandleSet.h"
#include "manipulator/texture/TextureModes.h"

#include <array>
#include <optional>

namespace nbec::manipulator::texture {

/// Which end of each extent a tab of the planar gizmo stands at, -1, 0 or 1; 0 the centre.
using PlanarSide = std::array<int, 3>;

/// The handles of the planar gizmo.
const HandleTable& planarHandleTable();

/// Their materials, in the order that the table counts in.
HandleSet::Materials makePlanarMaterials();

/// The axis along which a handle moves or scales; nothing for the others.
std::optional<osg::UInt32> planarAxisOf(PlanarActiveMode handle);

/// The side of a handle; that of handles which stay at the centre is all 0.
PlanarSide planarSideOf(PlanarActiveMode handle);

}  // namespace nbec::manipulator::texture
