// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGStateChunk.h>

namespace osg {

OSG_CONTAINER_POINTER(DepthChunk, StateChunkPtr);

#define OSG_DEPTH_CHUNK_FIELDS(VALUE, OWNED, LINK)                                                 \
    VALUE(Enable, enable, bool, true)                                                              \
    VALUE(Func, func, GLenum, GL_LEQUAL)                                                           \
    VALUE(Near, near, Real32, -1.0F)                                                               \
    VALUE(Far, far, Real32, -1.0F)                                                                 \
    VALUE(ReadOnly, readOnly, bool, false)

/// Depth test: whether it happens, its comparison, the range of depths (0 .. 1; a negative end
/// leaves the range as it is), and whether depth is only compared and never written.
class DepthChunk : public StateChunk
{
    OSG_STATE_CHUNK(DepthChunk, StateChunk, OSG_DEPTH_CHUNK_FIELDS);
};

}  // namespace osg
