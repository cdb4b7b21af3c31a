// SPDX-License-Identifier: MIT
#include "IdTable.h"

#include <cassert>

namespace osg {

namespace {

/// 16 KiB: room for some gizmos, so that making and destroying one does not rebuild the table.
constexpr std::size_t kFewestSlots = 1024;
/// 2^32 divided by the golden ratio: spreads ids that follow each other evenly.
constexpr UInt32 kSpread = 2654435769u;

}  // namespace

std::size_t IdTable::home(UInt32 id) const
{
    return static_cast<UInt32>(id * kSpread) >> shift;
}

void IdTable::place(UInt32 id, FieldContainer* container)
{
    const std::size_t mask = slots.size() - 1;
    std::size_t at = home(id);
    while (slots[at].container != nullptr) {
        at = (at + 1) & mask;
    }
    slots[at].container = container;
    slots[at].id = id;
}

void IdTable::rehash(std::size_t slotCount)
{
    std::vector<Slot> old(slotCount);
    old.swap(slots);
    shift = 32;
    for (std::size_t n = slotCount; n > 1; n /= 2) {
        --shift;
    }
    for (const Slot& slot : old) {
        if (slot.container != nullptr) {
            place(slot.id, slot.container);
        }
    }
}

void IdTable::insert(UInt32 id, FieldContainer* container)
{
    assert(id != 0 && container != nullptr);
    if (4 * (count + 1) > 3 * slots.size()) {
        rehash(slots.empty() ? kFewestSlots : 2 * slots.size());
    }
    place(id, container);
    ++count;
}

void IdTable::erase(UInt32 id)
{
    const std::size_t mask = slots.size() - 1;
    std::size_t hole = home(id);
    while (slots[hole].id != id) {
        assert(slots[hole].container != nullptr);
        hole = (hole + 1) & mask;
    }
    for (std::size_t at = (hole + 1) & mask; slots[at].container != nullptr; at = (at + 1) & mask) {
        const std::size_t wanted = home(slots[at].id);
        const bool reachableFromHole = ((at - wanted) & mask) >= ((at - hole) & mask);
        if (reachableFromHole) {
            slots[hole] = slots[at];
            hole = at;
        }
    }
    slots[hole] = Slot();
    --count;
    if (slots.size() > kFewestSlots && 8 * count < slots.size()) {
        rehash(slots.size() / 4 < kFewestSlots ? kFewestSlots : slots.size() / 4);
    }
}

FieldContainer* IdTable::find(UInt32 id) const
{
    if (slots.empty() || id == 0) {
        return nullptr;
    }
    const std::size_t mask = slots.size() - 1;
    std::size_t at = home(id);
    while (slots[at].container != nullptr && slots[at].id != id) {
        at = (at + 1) & mask;
    }
    return slots[at].container;
}

}  // namespace osg
