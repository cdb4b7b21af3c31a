// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGConfig.h>

#include <cstddef>
#include <cstdint>
#include <string>

namespace osg {
typedef std::int8_t Int8;
typedef std::uint8_t UInt8;
typedef std::int16_t Int16;
typedef std::uint16_t UInt16;
typedef std::int32_t Int32;
typedef std::uint32_t UInt32;
typedef std::int64_t Int64;
typedef std::uint64_t UInt64;
typedef float Real32;
typedef double Real64;
typedef char Char8;
typedef unsigned char UChar8;
typedef UInt64 BitVector;
typedef double Time;
extern const Real32 Eps;
extern const Real32 Pi;
extern const Real32 Inf;
extern const Real32 NegInf;

template <class Value>
struct TypeTraits
{
    static const Value One;
};
}  // namespace osg
