// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGColor.h>

namespace osg {
OSG_DECLARED_POINTER(SimpleMaterial, ChunkMaterialPtr);

class SimpleMaterial : public ChunkMaterial
{
    OSG_DECLARED_CLASS(SimpleMaterial, ChunkMaterial)
    OSG_DECLARED_VALUE(Ambient, Color3f)
    OSG_DECLARED_VALUE(Diffuse, Color3f)
    OSG_DECLARED_VALUE(Specular, Color3f)
    OSG_DECLARED_VALUE(Shininess, Real32)
    OSG_DECLARED_VALUE(Emission, Color3f)
    OSG_DECLARED_VALUE(Transparency, Real32)
    OSG_DECLARED_VALUE(Lit, bool)
    OSG_DECLARED_VALUE(ColorMaterial, GLenum)
};
}  // namespace osg
