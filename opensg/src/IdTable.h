// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <cstddef>
#include <vector>

namespace osg {

class FieldContainer;

/// Finds living containers by id. Open addressing with linear probing; entries are moved up when
/// one is taken out, so that nothing marks the dead, and the table grows and shrinks with its
/// contents.
class IdTable
{
public:
    /// @param id  not 0, not in the table
    void insert(UInt32 id, FieldContainer* container);

    /// @param id  in the table
    void erase(UInt32 id);

    /// Null if it is not there.
    FieldContainer* find(UInt32 id) const;

    std::size_t size() const { return count; }

    std::size_t bytes() const { return slots.capacity() * sizeof(Slot); }

    template <class Visitor>
    void forEach(Visitor visit) const
    {
        for (const Slot& slot : slots) {
            if (slot.container != nullptr) {
                visit(slot.container);
            }
        }
    }

private:
    struct Slot
    {
        FieldContainer* container = nullptr;
        UInt32 id = 0;
    };

    std::size_t home(UInt32 id) const;
    void place(UInt32 id, FieldContainer* container);
    void rehash(std::size_t slotCount);

    std::vector<Slot> slots;
    std::size_t count = 0;
    UInt32 shift = 0;
};

}  // namespace osg
