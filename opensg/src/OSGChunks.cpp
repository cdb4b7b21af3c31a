// SPDX-License-Identifier: MIT
/// @file
/// The base of chunks, and those that are little more than their fields.
#include <OpenSG/OSGBlendChunk.h>
#include <OpenSG/OSGDepthChunk.h>
#include <OpenSG/OSGLineChunk.h>
#include <OpenSG/OSGMaterialChunk.h>
#include <OpenSG/OSGPolygonChunk.h>
#include <OpenSG/OSGTextureChunk.h>

namespace osg {

OSG_ABSTRACT_CONTAINER_TYPE(StateChunk, Attachment);

StateChunkClass::StateChunkClass(const Char8* /*name*/, UInt32 slots)
{
    static UInt32 usedIds = 0;
    id = usedIds;
    usedIds += slots;
}

bool StateChunk::isTransparent() const
{
    return false;
}

OSG_STATE_CHUNK_TYPE(BlendChunk, StateChunk);
OSG_STATE_CHUNK_TYPE(DepthChunk, StateChunk);
OSG_STATE_CHUNK_TYPE(LineChunk, StateChunk);
OSG_STATE_CHUNK_TYPE(MaterialChunk, StateChunk);
OSG_STATE_CHUNK_TYPE(PolygonChunk, StateChunk);

OSG_CONTAINER_TYPE(TextureChunk, StateChunk);
StateChunkClass TextureChunk::chunkClass("TextureChunk", TextureChunk::kMaxTextures);

bool BlendChunk::isTransparent() const
{
    return getDestFactor() != GL_ZERO;
}

}  // namespace osg
