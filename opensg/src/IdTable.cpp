// SPDX-License-Identifier: MIT
#include "IdTable.h"

#include <algorithm>
#include <cassert>
#include <numeric>

namespace osg {

std::size_t IdTable::size() const
{
    return std::accumulate(counts.begin(), counts.end(), std::size_t(0));
}

void IdTable::place(UInt32 id, FieldContainer* container)
{
    std::size_t at = home(id);
    while (slots[at].container != nullptr) {
        at = next(at);
    }
    slots[at].container = container;
    slots[at].id = id;
}

void IdTable::rehash(std::size_t slotCount)
{
    std::vector<Slot> old(slotCount);
    old.swap(slots);
    shift = 32;
    for (std::size_t n = slotCount / kLanes; n > 1; n /= 2) {
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
    std::size_t& count = counts[id % kLanes];
    if (4 * (count + 1) > 3 * (slots.size() / kLanes)) {
        rehash(2 * slots.size());
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
        hole = next(hole);
    }
    for (std::size_t at = next(hole); slots[at].container != nullptr; at = next(at)) {
        const std::size_t wanted = home(slots[at].id);
        const bool reachableFromHole = ((at - wanted) & mask) >= ((at - hole) & mask);
        if (reachableFromHole) {
            slots[hole] = slots[at];
            hole = at;
        }
    }
    slots[hole] = Slot();
    --counts[id % kLanes];
    if (slots.size() > kFewestSlots &&
        8 * *std::max_element(counts.begin(), counts.end()) < slots.size() / kLanes) {
        rehash(std::max(slots.size() / 4, kFewestSlots));
    }
}

}  // namespace osg
