// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGConfig.h>

#include <cstdint>

/// @file
/// Numbers of fixed size and the constants that go with them.

namespace osg {

using Int8 = std::int8_t;
using UInt8 = std::uint8_t;
using Int16 = std::int16_t;
using UInt16 = std::uint16_t;
using Int32 = std::int32_t;
using UInt32 = std::uint32_t;
using Int64 = std::int64_t;
using UInt64 = std::uint64_t;
using Real32 = float;
using Real64 = double;
using Real128 = long double;
using Char8 = char;
using UChar8 = unsigned char;

/// Set of fields, one bit each.
using BitVector = UInt64;
/// Seconds.
using Time = Real64;

/// Tolerance of comparisons and threshold of lengths.
inline constexpr Real32 Eps = 1e-6F;
inline constexpr Real32 Pi = 3.14159265358979323846F;
/// "Far away"; a finite number, not IEEE infinity.
inline constexpr Real32 Inf = 1e30F;
inline constexpr Real32 NegInf = -Inf;

}  // namespace osg
