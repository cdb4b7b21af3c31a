// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/handles/HandleSet.h"
#include "manipulator/texture/TextureModes.h"

namespace nbec::manipulator::texture {

/// The handles of the planar gizmo.
HandleTable makePlanarTable();

/// Their materials, in the order that the table counts in.
HandleSet::Materials makePlanarMaterials();

/// Which end of each extent a tab stands at, -1, 0 or 1; of other handles all 0.
osg::Vec3f planarSideOf(const HandleRow& row);

}  // namespace nbec::manipulator::texture
