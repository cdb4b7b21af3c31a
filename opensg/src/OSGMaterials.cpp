// SPDX-License-Identifier: MIT
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGSimpleTexturedMaterial.h>

#include <algorithm>

namespace osg {

OSG_ABSTRACT_CONTAINER_TYPE(Material, AttachmentContainer);

bool Material::isTransparent() const
{
    return getTransparencyMode() == TransparencyForceTransparent;
}

OSG_CONTAINER_TYPE(ChunkMaterial, Material);

bool ChunkMaterial::addChunk(StateChunkPtr chunk, Int32 slot)
{
    if (chunk == NullFC) {
        SWARNING << "ChunkMaterial::addChunk: the chunk is null" << std::endl;
        return false;
    }
    if (slot != State::AutoSlotReplace || !mfSlots.empty()) {
        mfSlots.resize(mfChunks.size(), State::AutoSlotReplace);
        mfSlots.push_back(slot);
    }
    addOwned(mfChunks, chunk, *this);
    return true;
}

bool ChunkMaterial::subChunk(StateChunkPtr chunk, Int32 slot)
{
    for (UInt32 i = 0; i < mfChunks.getSize(); ++i) {
        if (mfChunks[i] != chunk || (slot != State::AutoSlotReplace && slotOf(i) != slot)) {
            continue;
        }
        if (i < mfSlots.getSize()) {
            mfSlots.erase(mfSlots.begin() + i);
        }
        eraseOwned(mfChunks, i, *this);
        return false;
    }
    SWARNING << "ChunkMaterial::subChunk: the chunk is not in the material, slot " << slot
             << std::endl;
    return true;
}

Int32 ChunkMaterial::find(StateChunkPtr chunk) const
{
    const auto found = mfChunks.find(chunk);
    return found != mfChunks.end() ? static_cast<Int32>(found - mfChunks.begin()) : -1;
}

StateChunkPtr ChunkMaterial::find(const FieldContainerType& type, Int32 slot) const
{
    for (UInt32 i = 0; i < mfChunks.getSize(); ++i) {
        if (mfChunks[i]->getType() == type &&
            (slot == State::AutoSlotReplace || slotOf(i) == slot)) {
            return mfChunks[i];
        }
    }
    return NullFC;
}

void ChunkMaterial::clearChunks()
{
    mfSlots.clear();
    clearOwned(mfChunks, *this);
}

bool ChunkMaterial::isTransparent() const
{
    if (getTransparencyMode() != TransparencyAutoDetection) {
        return Inherited::isTransparent();
    }
    return std::any_of(mfChunks.begin(), mfChunks.end(), [](const StateChunkPtr& chunk) {
        return chunk != NullFC && chunk->isTransparent();
    });
}

Int32 ChunkMaterial::slotOf(UInt32 index) const
{
    return index < mfSlots.getSize() ? mfSlots[index] : Int32(State::AutoSlotReplace);
}

OSG_CONTAINER_TYPE(SimpleMaterial, ChunkMaterial);
OSG_CONTAINER_TYPE(SimpleTexturedMaterial, SimpleMaterial);

bool SimpleMaterial::isTransparent() const
{
    return getTransparency() > Eps || Inherited::isTransparent();
}

}  // namespace osg
