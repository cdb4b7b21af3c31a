// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGShaderParameterChunk.h>

#include <string>

namespace osg {

OSG_CONTAINER_POINTER(ShaderChunk, ShaderParameterChunkPtr);

#define OSG_SHADER_CHUNK_FIELDS(VALUE, OWNED, LINK)                                                \
    VALUE(VertexProgram, vertexProgram, std::string, std::string())                                \
    VALUE(FragmentProgram, fragmentProgram, std::string, std::string())                            \
    VALUE(GeometryProgram, geometryProgram, std::string, std::string())

/// Texts of the programs of a shader; an empty one stands for the renderer's own.
/// Left out of OpenSG's class: reading the texts from files.
class ShaderChunk : public ShaderParameterChunk
{
    OSG_ABSTRACT_CONTAINER(ShaderChunk, ShaderParameterChunk, OSG_SHADER_CHUNK_FIELDS);
};

}  // namespace osg
