// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGShaderChunk.h>

namespace osg {

OSG_CONTAINER_POINTER(SHLChunk, ShaderChunkPtr);

/// A shader in the OpenGL Shading Language.
/// Left out of OpenSG's class: compiling, parameter callbacks, geometry shader settings.
class SHLChunk : public ShaderChunk
{
    OSG_STATE_CHUNK(SHLChunk, ShaderChunk, OSG_NO_FIELDS);
};

}  // namespace osg
