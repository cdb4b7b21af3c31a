// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGChunkMaterial.h>
#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGGL.h>

namespace osg {

OSG_CONTAINER_POINTER(SimpleMaterial, ChunkMaterialPtr);

#define OSG_SIMPLE_MATERIAL_FIELDS(VALUE, OWNED, LINK)                                             \
    VALUE(Ambient, ambient, Color3f, Color3f(0.0F, 0.0F, 0.0F))                                    \
    VALUE(Diffuse, diffuse, Color3f, Color3f(0.0F, 0.0F, 0.0F))                                    \
    VALUE(Specular, specular, Color3f, Color3f(0.0F, 0.0F, 0.0F))                                  \
    VALUE(Shininess, shininess, Real32, 1.0F)                                                      \
    VALUE(Emission, emission, Color3f, Color3f(0.0F, 0.0F, 0.0F))                                  \
    VALUE(Transparency, transparency, Real32, 0.0F)                                                \
    VALUE(Lit, lit, bool, true)                                                                    \
    VALUE(ColorMaterial, colorMaterial, GLenum, GL_DIFFUSE)

/// A material of a few colours, each 0 .. 1. Transparency 0 is opaque, 1 invisible; shininess
/// 0 .. 128. Chunks of the list replace what these fields say.
class SimpleMaterial : public ChunkMaterial
{
    OSG_CONTAINER(SimpleMaterial, ChunkMaterial, OSG_SIMPLE_MATERIAL_FIELDS);

public:
    /// Deliberate: TransparencyForceOpaque does not override a transparency above Eps.
    bool isTransparent() const override;
};

}  // namespace osg
