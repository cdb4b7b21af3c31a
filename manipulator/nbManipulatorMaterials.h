// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/nbManipulatorExport.h"

#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGSimpleMaterial.h>

/// Materials with which handle geometry is drawn. Nothing is cached: two calls give two materials.
/// Both results carry one reference that belongs to the caller (subRefCP gives it back).
///
/// Sort keys of handles lie in the 64000 range, after the scene's 0; a larger key draws later.
namespace nbManipulatorMaterials {

/// A flat colour without lighting.
/// Diffuse takes the colour; emission, ambient and specular are black, shininess is 10,
/// transparency is 1 - alpha.
/// @param color    red, green, blue, alpha, each 0..1
/// @param sortKey  written unchanged
/// @return the material with one reference; null if the scene graph cannot make one
NB_MANIPULATOR_API osg::SimpleMaterialPtr createUnlitMaterial(const osg::Color4f& color,
                                                              int sortKey);

/// A shader material that writes a constant colour into the colour buffer (output 0) and zero into
/// the effect buffer (output 1), so that handles leave no trace in effects. Its uniforms are, in
/// this order, "color" (Vec4f) and "viewProjectionMatrix" (4x4, column vectors, applied to
/// positions that the model matrix has brought to the world); the latter is the identity until a
/// caller sets it.
/// @param color    red, green, blue, alpha, each 0..1
/// @param sortKey  written unchanged
/// @return the material with one reference
NB_MANIPULATOR_API osg::ChunkMaterialPtr createProjectionMaterial(const osg::Color4f& color,
                                                                  int sortKey);

}  // namespace nbManipulatorMaterials
