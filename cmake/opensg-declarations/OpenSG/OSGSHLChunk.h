// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGShaderChunk.h>

namespace osg {
OSG_DECLARED_POINTER(SHLChunk, ShaderChunkPtr);

class SHLChunk : public ShaderChunk
{
    OSG_DECLARED_CLASS(SHLChunk, ShaderChunk)
    static const StateChunkClass* getStaticClass();
    static UInt32 getStaticClassId();
};
}  // namespace osg
