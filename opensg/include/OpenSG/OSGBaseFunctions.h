// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <cmath>
#include <type_traits>

/// @file
/// Start and end of the scene graph, and arithmetic helpers. Functions of one number answer in the
/// number's own type.

namespace osg {

/// Brings up all container types; to be called before any container is created. Further calls do
/// nothing.
/// @return true
bool osgInit(Int32 argc, Char8** argv, UInt16 major = OSG_MAJOR_VERSION,
             UInt16 minor = OSG_MINOR_VERSION, UInt16 release = OSG_RELEASE_VERSION);

/// Ends the use of the scene graph. @return true
bool osgExit();

template <class Number>
constexpr const Number& osgMin(const Number& a, const Number& b)
{
    return a < b ? a : b;
}

template <class Number>
constexpr const Number& osgMax(const Number& a, const Number& b)
{
    return a < b ? b : a;
}

/// The value, or the limit that it exceeds.
template <class Number>
constexpr const Number& osgClamp(const Number& low, const Number& value, const Number& high)
{
    return value < low ? low : (high < value ? high : value);
}

/// Absolute value, for signed and unsigned numbers.
template <class Number>
constexpr Number osgabs(Number value)
{
    return value < Number(0) ? static_cast<Number>(-value) : value;
}

template <class Number>
Number osgsqrt(Number value)
{
    return static_cast<Number>(std::sqrt(value));
}

template <class Number>
Number osgpow(Number base, Number exponent)
{
    return static_cast<Number>(std::pow(base, exponent));
}

template <class Number>
Number osgsin(Number radians)
{
    return static_cast<Number>(std::sin(radians));
}

template <class Number>
Number osgcos(Number radians)
{
    return static_cast<Number>(std::cos(radians));
}

template <class Number>
Number osgtan(Number radians)
{
    return static_cast<Number>(std::tan(radians));
}

/// @return radians, 0 to pi
template <class Number>
Number osgacos(Number value)
{
    return static_cast<Number>(std::acos(value));
}

/// @return radians, -pi/2 to pi/2
template <class Number>
Number osgasin(Number value)
{
    return static_cast<Number>(std::asin(value));
}

/// @return radians, -pi to pi
template <class Number>
Number osgatan2(Number y, Number x)
{
    return static_cast<Number>(std::atan2(y, x));
}

template <class Number>
Number osgfloor(Number value)
{
    return static_cast<Number>(std::floor(value));
}

template <class Number>
Number osgceil(Number value)
{
    return static_cast<Number>(std::ceil(value));
}

/// @return 1 for a finite number, 0 for an infinite one or none at all
inline Int32 osgfinite(Real64 value)
{
    return std::isfinite(value) ? 1 : 0;
}

template <class Number>
constexpr Number osgdegree2rad(Number degrees)
{
    static_assert(std::is_floating_point_v<Number>);
    return degrees * Number(3.14159265358979323846L / 180.L);
}

template <class Number>
constexpr Number osgrad2degree(Number radians)
{
    static_assert(std::is_floating_point_v<Number>);
    return radians * Number(180.L / 3.14159265358979323846L);
}

}  // namespace osg
