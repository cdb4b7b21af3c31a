// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGStateChunk.h>

namespace osg {
OSG_DECLARED_POINTER(BlendChunk, StateChunkPtr);

class BlendChunk : public StateChunk
{
    OSG_DECLARED_CLASS(BlendChunk, StateChunk)
    static const StateChunkClass* getStaticClass();
    static UInt32 getStaticClassId();
    OSG_DECLARED_VALUE(SrcFactor, GLenum)
    OSG_DECLARED_VALUE(DestFactor, GLenum)
    OSG_DECLARED_VALUE(Color, Color4f)
    OSG_DECLARED_VALUE(AlphaFunc, GLenum)
    OSG_DECLARED_VALUE(AlphaValue, Real32)
    OSG_DECLARED_VALUE(Equation, GLenum)
    OSG_DECLARED_VALUE(AlphaSrcFactor, GLenum)
    OSG_DECLARED_VALUE(AlphaDestFactor, GLenum)
    bool isTransparent() const override;
};
}  // namespace osg
