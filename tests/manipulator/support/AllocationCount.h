// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace nbec::manipulator::test {

/// How often memory was taken by operator new since the program began.
std::size_t allocationCount();

}  // namespace nbec::manipulator::test
