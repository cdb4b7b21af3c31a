// SPDX-License-Identifier: MIT
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGState.h>

#include <algorithm>

namespace osg {

OSG_CONTAINER_TYPE(State, FieldContainer);

bool State::addChunk(StateChunkPtr chunk, Int32 slot)
{
    if (chunk == NullFC) {
        SWARNING << "State::addChunk: the chunk is null" << std::endl;
        return false;
    }
    const UInt32 first = chunk->getClassId();
    const Int32 slots = StateChunkClass::getNumSlots(first);
    Int32 target = slot == AutoSlotReplace ? 0 : slot;
    if (slot == AutoSlot) {
        target = 0;
        while (target < slots && chunkPresent(first + static_cast<UInt32>(target))) {
            ++target;
        }
    }
    if (target < 0 || target >= slots) {
        SWARNING << "State::addChunk: " << chunk->getTypeName() << " has " << slots
                 << " slots, none for slot " << slot << std::endl;
        return false;
    }
    const std::size_t index = first + static_cast<UInt32>(target);
    if (index >= chunks.size()) {
        chunks.resize(index + 1);
    }
    chunks[index] = chunk;
    return true;
}

bool State::subChunk(StateChunkPtr chunk)
{
    const auto found = std::find_if(chunks.begin(), chunks.end(),
                                    [&](const auto& entry) { return entry == chunk; });
    if (chunk == NullFC || found == chunks.end()) {
        SWARNING << "State::subChunk: the chunk is not in force" << std::endl;
        return false;
    }
    *found = NullFC;
    return true;
}

void State::clearChunks()
{
    chunks.clear();
}

StateChunkPtr State::getChunk(UInt32 classId) const
{
    return classId < chunks.size() ? chunks[classId].get() : StateChunkPtr();
}

bool State::chunkPresent(UInt32 classId) const
{
    return getChunk(classId) != NullFC;
}

bool State::isTransparent() const
{
    return std::any_of(chunks.begin(), chunks.end(),
                       [](const auto& entry) { return entry != NullFC && entry->isTransparent(); });
}

}  // namespace osg
