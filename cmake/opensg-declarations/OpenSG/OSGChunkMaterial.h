// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGState.h>
#include <OpenSG/OSGStateChunk.h>

namespace osg {
OSG_DECLARED_POINTER(ChunkMaterial, MaterialPtr);

class ChunkMaterial : public Material
{
    OSG_DECLARED_CLASS(ChunkMaterial, Material)
    OSG_DECLARED_VALUES(Chunks, StateChunkPtr)
    OSG_DECLARED_VALUES(Slots, Int32)
    bool addChunk(StateChunkPtr chunk, Int32 slot = State::AutoSlotReplace);
    bool subChunk(StateChunkPtr chunk, Int32 slot = State::AutoSlotReplace);
    Int32 find(StateChunkPtr chunk);
    StateChunkPtr find(const FieldContainerType& type, Int32 slot = State::AutoSlotReplace);
    void clearChunks();
    bool isTransparent() const override;
};
}  // namespace osg
