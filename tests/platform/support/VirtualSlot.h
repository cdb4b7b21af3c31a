// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <type_traits>

namespace nbtest {

/// Slot of a virtual operation in its class's table, counted from 0, read from the pointer to
/// member as the Itanium C++ ABI lays it out: a virtual one holds 1 + the byte offset of its slot
/// (on Arm the offset itself, with the mark in the second word).
/// @param member  such as &Class::operation; must not be an overload set
/// @return the slot; -1 for an operation that is not virtual
template <class Member>
std::ptrdiff_t virtualSlot(Member member)
{
    static_assert(std::is_member_function_pointer_v<Member>, "give a pointer to an operation");
    std::ptrdiff_t words[2] = {};
    static_assert(sizeof(member) == sizeof(words), "not the Itanium C++ ABI");
    std::memcpy(words, &member, sizeof(words));
#if defined(__arm__) || defined(__aarch64__)
    const bool isVirtual = words[1] & 1;
    const std::ptrdiff_t offset = words[0];
#else
    const bool isVirtual = words[0] & 1;
    const std::ptrdiff_t offset = words[0] - 1;
#endif
    return isVirtual ? offset / static_cast<std::ptrdiff_t>(sizeof(void*)) : -1;
}

/// Operations that stand one behind the other in their table.
template <class... Members>
void expectSlotsFrom(std::ptrdiff_t first, Members... members)
{
    for (const std::ptrdiff_t slot : { virtualSlot(members)... }) {
        EXPECT_EQ(slot, first++);
    }
}

}  // namespace nbtest
