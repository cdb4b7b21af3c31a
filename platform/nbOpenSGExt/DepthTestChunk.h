// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGStateChunk.h>

#include <FieldContainerGlue.h>

namespace osg {

class NB_PLATFORM_API DepthTestChunk;
NB_CONTAINER_POINTER(DepthTestChunk, StateChunkPtr);

// clang-format off
#define NB_DEPTH_TEST_CHUNK_FIELDS(VALUE, OWNED, LINK)                                             \
    VALUE(Enable, enable, bool, true)                                                              \
    VALUE(Func, func, GLenum, GL_LEQUAL)                                                           \
    VALUE(ReadOnly, readOnly, bool, false)

// clang-format on

/// How an item is tested against the depth buffer and whether it writes there.
/// Func is an OpenGL comparison (GL_LEQUAL, GL_ALWAYS ...), Enable switches the test, ReadOnly the
/// writing off. The stock DepthChunk is taken as the same kind; of both, the later in a material
/// holds.
class NB_PLATFORM_API DepthTestChunk : public StateChunk
{
    NB_STATE_CHUNK(DepthTestChunk, StateChunk, NB_DEPTH_TEST_CHUNK_FIELDS);
};

}  // namespace osg
