// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGFieldContainerPtr.h>

#include <cstddef>
#include <cstring>

#include <ChangeCount.h>

namespace osg {

/// Tells whether anything about a container and its parts changed since somebody looked: a number
/// mixed from their ids and change counters. Equal stamps: nothing changed; otherwise something
/// did. Stamps have no order. Ids are never reused, so a part that was replaced shows as well as
/// one that was edited. A setter shows when its edit ends.
class ContentStamp
{
public:
    /// Of nothing yet.
    ContentStamp() = default;

    explicit ContentStamp(const FieldContainerPtr& container) { add(container); }

    void add(UInt64 number)
    {
        // Multiplication spreads low bits upwards, the shift brings high ones down again.
        constexpr UInt64 kOdd = 0x9e3779b97f4a7c15ull;
        constexpr UInt32 kHalf = 32;
        value = (value ^ number) * kOdd;
        value ^= value >> kHalf;
    }

    /// The bits count: zeros of both signs differ.
    void add(Real32 number)
    {
        UInt32 bits = 0;
        std::memcpy(&bits, &number, sizeof(bits));
        add(UInt64(bits));
    }

    /// @param numbers  as many as count
    void add(const Real32* numbers, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i) {
            add(numbers[i]);
        }
    }

    /// Null counts as a part, too.
    void add(const FieldContainerPtr& container)
    {
        constexpr UInt32 kIdShift = 32;
        const UInt64 id = container != NullFC ? container.getFieldContainerId() : 0;
        add((id << kIdShift) | getChangeCount(container));
    }

    UInt64 get() const { return value; }

private:
    UInt64 value = 1;
};

}  // namespace osg
