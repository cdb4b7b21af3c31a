// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGStateChunk.h>

namespace osg {

OSG_CONTAINER_POINTER(TextureChunk, StateChunkPtr);

#define OSG_TEXTURE_CHUNK_FIELDS(VALUE, OWNED, LINK)                                               \
    OWNED(Image, image, ImagePtr)                                                                  \
    VALUE(InternalFormat, internalFormat, GLenum, GL_NONE)                                         \
    VALUE(ExternalFormat, externalFormat, GLenum, GL_NONE)                                         \
    VALUE(Scale, scale, bool, true)                                                                \
    VALUE(Frame, frame, UInt32, 0)                                                                 \
    VALUE(MinFilter, minFilter, GLenum, GL_LINEAR_MIPMAP_LINEAR)                                   \
    VALUE(MagFilter, magFilter, GLenum, GL_LINEAR)                                                 \
    VALUE(WrapS, wrapS, GLenum, GL_REPEAT)                                                         \
    VALUE(WrapT, wrapT, GLenum, GL_REPEAT)                                                         \
    VALUE(WrapR, wrapR, GLenum, GL_REPEAT)                                                         \
    VALUE(EnvMode, envMode, GLenum, GL_REPLACE)                                                    \
    VALUE(EnvColor, envColor, Color4f, Color4f(0.0F, 0.0F, 0.0F, 0.0F))                            \
    VALUE(LodBias, lodBias, Real32, 0.0F)                                                          \
    VALUE(Target, target, GLenum, GL_NONE)

/// An image on a surface, with its filters, its wrapping and how it mixes with the surface's
/// colour. Formats and target GL_NONE: chosen from the image. The chunk counts its image; an edit
/// of the image shows in the image's own change counter. Never transparent, whatever the image.
/// Left out of OpenSG's class: combiners, texture shaders, point sprites, GL names, priorities.
class TextureChunk : public StateChunk
{
    OSG_STATE_CHUNK(TextureChunk, StateChunk, OSG_TEXTURE_CHUNK_FIELDS);

public:
    /// Deliberate: only a named variable is taken, as by OpenSG, whose parameter is a non-const
    /// reference: code that passes NullFC, a RefPtr or a call's result here would not build there.
    void setImage(ImagePtr&& image) = delete;
    void setImage(const ImagePtr&& image) = delete;

    /// Most textures that a state holds side by side.
    static constexpr UInt32 kMaxTextures = 8;
};

}  // namespace osg
