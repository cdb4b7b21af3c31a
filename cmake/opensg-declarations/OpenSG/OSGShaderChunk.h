// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGShaderParameterChunk.h>

namespace osg {
OSG_DECLARED_POINTER(ShaderChunk, ShaderParameterChunkPtr);

class ShaderChunk : public ShaderParameterChunk
{
    OSG_DECLARED_TYPE(ShaderChunk, ShaderParameterChunk)
    OSG_DECLARED_VALUE(VertexProgram, std::string)
    OSG_DECLARED_VALUE(FragmentProgram, std::string)
    OSG_DECLARED_VALUE(GeometryProgram, std::string)
};
}  // namespace osg
