// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGStateChunk.h>

namespace osg {
OSG_DECLARED_POINTER(LineChunk, StateChunkPtr);

class LineChunk : public StateChunk
{
    OSG_DECLARED_CLASS(LineChunk, StateChunk)
    static const StateChunkClass* getStaticClass();
    static UInt32 getStaticClassId();
    OSG_DECLARED_VALUE(Width, Real32)
    OSG_DECLARED_VALUE(Smooth, bool)
    OSG_DECLARED_VALUE(StipplePattern, UInt16)
    OSG_DECLARED_VALUE(StippleRepeat, Int32)
};
}  // namespace osg
