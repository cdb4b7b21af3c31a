// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/CameraManipulator.h"
#include "manipulator/PerspectiveMatchManipulator.h"
#include "manipulator/PlanarTextureManipulator.h"
#include "manipulator/TireProjectionManipulator.h"
#include "manipulator/TriplanarTextureManipulator.h"
#include "manipulator/UVTextureManipulator.h"
#include "manipulator/UniversalTransformManipulator2.h"
#include "manipulator/nbSceneplateManipulator.h"
#include "manipulator/nbSceneplatePickTool.h"
#include "modules/textureplacement/TexturePlacementPickTool.h"
#include "tests/fuzz/Stage.h"

namespace nbec::manipulator::test {

using modules::textureplacement::TexturePlacementPickTool;
using Transform = UniversalTransformManipulator2;
using Planar = PlanarTextureManipulator;
using Triplanar = TriplanarTextureManipulator;
using UV = UVTextureManipulator;
using Tire = TireProjectionManipulator;
using Plate = nbSceneplateManipulator;
using Match = PerspectiveMatchManipulator;

// What hosts give each kind of manipulator so that it is of use on a stage.
void equip(NodeManipulator& gizmo, Stage& stage);
void equip(PlanarTextureManipulator& gizmo, Stage& stage);
void equip(AnchoredTextureManipulator& gizmo, Stage& stage);
void equip(nbSceneplateManipulator& gizmo, Stage& stage);
void equip(PerspectiveMatchManipulator& gizmo, Stage& stage);

// What hosts do with each beside the common interface.
void configure(UniversalTransformManipulator2& gizmo, Stage& stage, Bytes& bytes);
void configure(CameraManipulator& gizmo, Stage& stage, Bytes& bytes);
void configure(PlanarTextureManipulator& gizmo, Stage& stage, Bytes& bytes);
void configure(TriplanarTextureManipulator& gizmo, Stage& stage, Bytes& bytes);
void configure(UVTextureManipulator& gizmo, Stage& stage, Bytes& bytes);
void configure(TireProjectionManipulator& gizmo, Stage& stage, Bytes& bytes);
void configure(PerspectiveMatchManipulator& gizmo, Stage& stage, Bytes& bytes);
void configure(nbSceneplateManipulator& gizmo, Stage& stage, Bytes& bytes);
void configure(nbSceneplatePickTool& tool, Stage& stage, Bytes& bytes);
void configure(TexturePlacementPickTool& tool, Stage& stage, Bytes& bytes);

/// A place on a manipulator where there may be something to grab.
template <class Gizmo>
osg::Pnt2f aimAt(Gizmo& gizmo, const Stage& stage, Bytes& bytes)
{
    return stage.aimAt(gizmo.getCollider(), bytes);
}

/// The lines of the view's camera, which the collider does not show.
osg::Pnt2f aimAt(PerspectiveMatchManipulator& gizmo, const Stage& stage, Bytes& bytes);

/// Calls an operation without arguments that the bytes choose from a table.
template <class Gizmo, class Table>
void callOneOf(Gizmo& gizmo, const Table& table, Bytes& bytes)
{
    (gizmo.*bytes.oneOf(table))();
}

}  // namespace nbec::manipulator::test
