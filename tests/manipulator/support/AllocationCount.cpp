// SPDX-License-Identifier: MIT
#include "tests/manipulator/support/AllocationCount.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t count = 0;

}  // namespace

std::size_t nbec::manipulator::test::allocationCount()
{
    return count;
}

void* operator new(std::size_t size)
{
    ++count;
    if (void* const memory = std::malloc(size != 0 ? size : 1)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}
