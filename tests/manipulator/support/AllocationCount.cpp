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

// That of the sanitizers would not take back what is freed below.
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    ++count;
    return std::malloc(size != 0 ? size : 1);
}

void* operator new(std::size_t size)
{
    if (void* const memory = operator new(size, std::nothrow)) {
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
