// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGStateChunk.h>

namespace osg {

OSG_CONTAINER_POINTER(PolygonChunk, StateChunkPtr);

#define OSG_POLYGON_CHUNK_FIELDS(VALUE, OWNED, LINK)                                               \
    VALUE(CullFace, cullFace, GLenum, GL_NONE)                                                     \
    VALUE(FrontFace, frontFace, GLenum, GL_CCW)                                                    \
    VALUE(FrontMode, frontMode, GLenum, GL_FILL)                                                   \
    VALUE(BackMode, backMode, GLenum, GL_FILL)                                                     \
    VALUE(Smooth, smooth, bool, false)                                                             \
    VALUE(OffsetFactor, offsetFactor, Real32, 0.0F)                                                \
    VALUE(OffsetBias, offsetBias, Real32, 0.0F)                                                    \
    VALUE(OffsetPoint, offsetPoint, bool, false)                                                   \
    VALUE(OffsetLine, offsetLine, bool, false)                                                     \
    VALUE(OffsetFill, offsetFill, bool, false)

/// How polygons are drawn: which side counts as front, which side is left out (GL_NONE: neither),
/// filled or as lines or points, and the depth offset of each of these.
/// Left out of OpenSG's class: the stipple pattern.
class PolygonChunk : public StateChunk
{
    OSG_STATE_CHUNK(PolygonChunk, StateChunk, OSG_POLYGON_CHUNK_FIELDS);
};

}  // namespace osg
