// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGStateChunk.h>

namespace osg {

OSG_CONTAINER_POINTER(LineChunk, StateChunkPtr);

#define OSG_LINE_CHUNK_FIELDS(VALUE, OWNED, LINK)                                                  \
    VALUE(Width, width, Real32, 1.0F)                                                              \
    VALUE(StipplePattern, stipplePattern, UInt16, 0xffff)                                          \
    VALUE(StippleRepeat, stippleRepeat, Int32, 1)                                                  \
    VALUE(Smooth, smooth, bool, false)

/// How lines are drawn. Width in pixels, > 0; a pattern of 16 bits, each of them StippleRepeat
/// pixels long, 0xffff for a solid line. A smooth line does not make its material transparent.
class LineChunk : public StateChunk
{
    OSG_STATE_CHUNK(LineChunk, StateChunk, OSG_LINE_CHUNK_FIELDS);
};

}  // namespace osg
