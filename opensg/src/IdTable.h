// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <array>
#include <cstddef>
#include <vector>

namespace osg {

class FieldContainer;

/// Finds living containers by id. Open addressing with linear probing; entries are moved up when
/// one is taken out, so that nothing marks the dead, and the table grows and shrinks with its
/// contents.
///
/// Ids that follow each other lie side by side, eight at a time: what was made together is mostly
/// looked up together. So there are eight lanes, by the id's last three bits, and an entry is only
/// ever moved along its lane.
class IdTable
{
public:
    IdTable() { rehash(kFewestSlots); }

    /// @param id  not 0, not in the table
    void insert(UInt32 id, FieldContainer* container);

    /// @param id  in the table
    void erase(UInt32 id);

    /// Null if it is not there.
    FieldContainer* find(UInt32 id) const
    {
        // No container has the id 0, and no slot with one.
        std::size_t at = home(id);
        while (slots[at].container != nullptr && slots[at].id != id) {
            at = next(at);
        }
        return slots[at].container;
    }

    std::size_t size() const;

private:
    struct Slot
    {
        FieldContainer* container = nullptr;
        UInt32 id = 0;
    };

    static constexpr UInt32 kLanes = 8;
    /// 16 KiB: room for some gizmos, so that making and destroying one does not rebuild the table.
    static constexpr std::size_t kFewestSlots = 1024;
    /// 2^32 divided by the golden ratio: spreads numbers that follow each other evenly.
    static constexpr UInt32 kSpread = 2654435769u;

    std::size_t home(UInt32 id) const
    {
        return (static_cast<UInt32>(id / kLanes * kSpread) >> shift) * kLanes + id % kLanes;
    }

    std::size_t next(std::size_t at) const { return (at + kLanes) & (slots.size() - 1); }

    void place(UInt32 id, FieldContainer* container);
    void rehash(std::size_t slotCount);

    std::vector<Slot> slots;  ///< a power of two, at least two to a lane
    std::array<std::size_t, kLanes> counts {};  ///< of entries in each lane
    UInt32 shift = 0;
};

}  // namespace osg
