// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGStateChunk.h>

namespace osg {

OSG_CONTAINER_POINTER(MaterialChunk, StateChunkPtr);

#define OSG_MATERIAL_CHUNK_FIELDS(VALUE, OWNED, LINK)                                              \
    VALUE(Diffuse, diffuse, Color4f, Color4f(0.0F, 0.0F, 0.0F, 0.0F))                              \
    VALUE(Ambient, ambient, Color4f, Color4f(0.0F, 0.0F, 0.0F, 0.0F))                              \
    VALUE(Specular, specular, Color4f, Color4f(0.0F, 0.0F, 0.0F, 0.0F))                            \
    VALUE(Emission, emission, Color4f, Color4f(0.0F, 0.0F, 0.0F, 0.0F))                            \
    VALUE(Shininess, shininess, Real32, 0.0F)                                                      \
    VALUE(Lit, lit, bool, true)                                                                    \
    VALUE(ColorMaterial, colorMaterial, GLenum, GL_DIFFUSE)

/// Colours of a surface under light; without Lit the diffuse colour alone is shown. ColorMaterial
/// names the colour that a geometry's own colours replace. Colours 0 .. 1, shininess 0 .. 128.
/// Left out of OpenSG's class: other colours for back faces.
class MaterialChunk : public StateChunk
{
    OSG_STATE_CHUNK(MaterialChunk, StateChunk, OSG_MATERIAL_CHUNK_FIELDS);
};

}  // namespace osg
