// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGStateChunk.h>

namespace osg {
OSG_DECLARED_POINTER(DepthChunk, StateChunkPtr);

class DepthChunk : public StateChunk
{
    OSG_DECLARED_CLASS(DepthChunk, StateChunk)
    static const StateChunkClass* getStaticClass();
    static UInt32 getStaticClassId();
    OSG_DECLARED_VALUE(Enable, bool)
    OSG_DECLARED_VALUE(Func, GLenum)
    OSG_DECLARED_VALUE(Near, Real32)
    OSG_DECLARED_VALUE(Far, Real32)
    OSG_DECLARED_VALUE(ReadOnly, bool)
};
}  // namespace osg
