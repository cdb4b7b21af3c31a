// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/AnchoredTextureManipulator.h"
#include "manipulator/PerspectiveMatchManipulator.h"
#include "manipulator/PlanarTextureManipulator.h"
#include "manipulator/nbSceneplateManipulator.h"
#include "tests/fuzz/Stage.h"

namespace nbec::manipulator::test {

// What hosts give each kind of manipulator so that it is of use on a stage.
void equip(NodeManipulator& gizmo, Stage& stage);
void equip(PlanarTextureManipulator& gizmo, Stage& stage);
void equip(AnchoredTextureManipulator& gizmo, Stage& stage);
void equip(nbSceneplateManipulator& gizmo, Stage& stage);
void equip(PerspectiveMatchManipulator& gizmo, Stage& stage);

/// A place on a manipulator where there may be something to grab.
template <class Gizmo>
osg::Pnt2f aimAt(Gizmo& gizmo, const Stage& stage, Bytes& bytes)
{
    return stage.aimAt(gizmo.getCollider(), bytes);
}

/// The lines of the view's camera, which the collider does not show.
osg::Pnt2f aimAt(PerspectiveMatchManipulator& gizmo, const Stage& stage, Bytes& bytes);

}  // namespace nbec::manipulator::test
