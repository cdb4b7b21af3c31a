// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGFieldContainer.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGStateChunk.h>

#include <vector>

namespace osg {

OSG_CONTAINER_POINTER(State, FieldContainerPtr);

/// The chunks in force: at most one for each slot of each kind. The state counts them.
/// Left out of OpenSG's class: everything that drives OpenGL; the renderer looks chunks up, as in
/// `LineChunkPtr::dcast(state->getChunk(LineChunk::getStaticClassId()))`.
class State : public FieldContainer
{
    OSG_CONTAINER(State, FieldContainer, OSG_NO_FIELDS);

public:
    /// Slots of addChunk that are no slot numbers.
    enum
    {
        AutoSlot = -1,  ///< the first free slot of the chunk's kind
        AutoSlotReplace = -2  ///< slot 0; what is there gives way
    };

    /// Puts a chunk in force.
    /// @param slot  0 .. slots of the kind - 1: replaces what is there; or one of the constants
    /// @return false, and a warning, if the chunk is null, the slot does not exist or none is free
    bool addChunk(StateChunkPtr chunk, Int32 slot = AutoSlotReplace);

    /// Takes a chunk out. @return false, and a warning, if it is not in force
    bool subChunk(StateChunkPtr chunk);

    /// Takes all chunks out.
    void clearChunks();

    /// The chunk in force for a kind's slot; null if there is none.
    /// @param classId  StateChunkClass::getId() + slot, as from LineChunk::getStaticClassId()
    StateChunkPtr getChunk(UInt32 classId) const;

    /// Whether there is such a chunk.
    bool chunkPresent(UInt32 classId) const;

    /// Whether a chunk in force is transparent.
    bool isTransparent() const;

private:
    // Indexed by class id; as long as the highest one in use asks for.
    std::vector<RefPtr<StateChunkPtr>> chunks;
};

}  // namespace osg
