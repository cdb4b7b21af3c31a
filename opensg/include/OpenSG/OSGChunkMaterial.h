// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGMaterial.h>
#include <OpenSG/OSGState.h>
#include <OpenSG/OSGStateChunk.h>

namespace osg {

OSG_CONTAINER_POINTER(ChunkMaterial, MaterialPtr);

#define OSG_CHUNK_MATERIAL_FIELDS(VALUE, OWNED, LINK, VALUES, OWNEDS, LINKS)                       \
    OWNEDS(Chunks, chunks, StateChunkPtr)                                                          \
    VALUES(Slots, slots, Int32)

/// A material that is a list of chunks; it counts each entry. The list keeps everything that was
/// added, also several chunks of a kind, of which the last one is drawn. The slot list stays empty
/// as long as all chunks came with AutoSlotReplace.
class ChunkMaterial : public Material
{
    OSG_MULTI_CONTAINER(ChunkMaterial, Material, OSG_CHUNK_MATERIAL_FIELDS);

public:
    /// Appends a chunk for a slot of its kind, see State::addChunk.
    /// @return true; false, and a warning, for a null chunk, which is not added
    bool addChunk(StateChunkPtr chunk, Int32 slot = State::AutoSlotReplace);

    /// Removes the first occurrence of a chunk; it may be destroyed by that.
    /// @param slot  AutoSlotReplace: in any slot; otherwise only one added with this slot
    /// @return Deliberate: false on success, true, and a warning, if it is not there
    bool subChunk(StateChunkPtr chunk, Int32 slot = State::AutoSlotReplace);

    /// Place of a chunk in the list, -1 if it is not there.
    Int32 find(StateChunkPtr chunk) const;

    /// First chunk of exactly a type; null if there is none. Base types find nothing.
    /// @param slot  as for subChunk
    StateChunkPtr find(const FieldContainerType& type, Int32 slot = State::AutoSlotReplace) const;

    /// Removes all chunks.
    void clearChunks();

    /// Whether the mode says so or, with automatic detection, a chunk of the list is transparent.
    bool isTransparent() const override;

private:
    Int32 slotOf(UInt32 index) const;
};

}  // namespace osg
