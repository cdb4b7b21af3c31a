// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGStateChunk.h>

namespace osg {

OSG_CONTAINER_POINTER(BlendChunk, StateChunkPtr);

#define OSG_BLEND_CHUNK_FIELDS(VALUE, OWNED, LINK)                                                 \
    VALUE(SrcFactor, srcFactor, GLenum, GL_ONE)                                                    \
    VALUE(DestFactor, destFactor, GLenum, GL_ZERO)                                                 \
    VALUE(Color, color, Color4f, Color4f(0.0F, 0.0F, 0.0F, 0.0F))                                  \
    VALUE(AlphaFunc, alphaFunc, GLenum, GL_NONE)                                                   \
    VALUE(AlphaValue, alphaValue, Real32, 0.0F)                                                    \
    VALUE(Equation, equation, GLenum, GL_NONE)                                                     \
    VALUE(AlphaSrcFactor, alphaSrcFactor, GLenum, OSG_GL_UNUSED)                                   \
    VALUE(AlphaDestFactor, alphaDestFactor, GLenum, OSG_GL_UNUSED)

/// How a drawn pixel mixes with what is there: blend factors and equation, and the alpha test.
/// AlphaFunc GL_NONE: no alpha test. AlphaValue 0 .. 1 is what it compares with. Alpha factors
/// OSG_GL_UNUSED: as for the colour. Equation GL_NONE: add.
class BlendChunk : public StateChunk
{
    OSG_STATE_CHUNK(BlendChunk, StateChunk, OSG_BLEND_CHUNK_FIELDS);

public:
    /// True unless DestFactor is GL_ZERO.
    bool isTransparent() const override;
};

}  // namespace osg
