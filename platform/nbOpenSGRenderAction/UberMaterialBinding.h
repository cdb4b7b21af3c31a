// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/GpuTextures.h>
#include <nbOpenSGRenderAction/ItemList.h>
#include <nbOpenSGRenderAction/UberMaterialShader.h>
#include <nbOpenSGRenderAction/UberMaterialState.h>

namespace nbrender {

/// The pictures of a material that a geometry shows.
/// @param hasTexCoords  whether it has texture coordinates
shaders::PictureKinds pictureKinds(const UberMaterialState& state, bool hasTexCoords);

/// Binds the pictures of an UberMaterial to texture units of their own and sets what
/// shaders::uberMaterialFunctions() wants. Leaves texture unit 0 active.
/// @param program  in use, for pictureKinds()
/// @param space    of the projections
/// @param viewFromWorld  4x4, column vectors
void bindUberMaterial(Gl& gl, GpuTextures& textures, GlProgram& program,
                      const UberMaterialState& state, const SurfaceSpace& space,
                      const osg::Matrix& viewFromWorld);

/// Puts the texture units back that bindUberMaterial uses.
void unbindUberMaterial(Gl& gl);

}  // namespace nbrender
