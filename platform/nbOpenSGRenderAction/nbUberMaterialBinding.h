// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/nbGpuTextures.h>
#include <nbOpenSGRenderAction/nbUberMaterialState.h>

#include <OpenSG/OSGMatrix.h>

namespace nbrender {

/// Binds the pictures of an UberMaterial to texture units of their own and sets what
/// shaders::uberMaterialFunctions() wants. Leaves texture unit 0 active.
/// @param program            in use
/// @param surfaceFromObject  from the item's space to that of the projections, 4x4, column vectors
void bindUberMaterial(Gl& gl, GpuTextures& textures, GlProgram& program,
                      const UberMaterialState& state, const osg::Matrix& surfaceFromObject);

/// Puts the texture units back that bindUberMaterial uses.
void unbindUberMaterial(Gl& gl);

}  // namespace nbrender
