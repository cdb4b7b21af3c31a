// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGStateChunk.h>

namespace osg {
OSG_DECLARED_POINTER(PolygonChunk, StateChunkPtr);

class PolygonChunk : public StateChunk
{
    OSG_DECLARED_CLASS(PolygonChunk, StateChunk)
    static const StateChunkClass* getStaticClass();
    static UInt32 getStaticClassId();
    OSG_DECLARED_VALUE(FrontMode, GLenum)
    OSG_DECLARED_VALUE(BackMode, GLenum)
    OSG_DECLARED_VALUE(CullFace, GLenum)
    OSG_DECLARED_VALUE(FrontFace, GLenum)
    OSG_DECLARED_VALUE(OffsetFactor, Real32)
    OSG_DECLARED_VALUE(OffsetBias, Real32)
    OSG_DECLARED_VALUE(OffsetPoint, bool)
    OSG_DECLARED_VALUE(OffsetLine, bool)
    OSG_DECLARED_VALUE(OffsetFill, bool)
};
}  // namespace osg
