// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGBaseTypes.h>

/// @file
/// Colours: components 0 to 1 in a row, all zero unless given, alpha too. No conversion between the
/// two kinds.

namespace osg {

/// What colours of three and four components have in common; comparison is within Eps per
/// component.
template <class ValueT, UInt32 SizeI>
class ColorInterface
{
public:
    using ValueType = ValueT;

    constexpr ColorInterface() = default;

    constexpr ValueT red() const { return values[0]; }

    constexpr ValueT green() const { return values[1]; }

    constexpr ValueT blue() const { return values[2]; }

    constexpr ValueT& operator[](UInt32 index) { return values[index]; }

    constexpr const ValueT& operator[](UInt32 index) const { return values[index]; }

    constexpr bool equals(const ColorInterface& other, ValueT tolerance) const
    {
        for (UInt32 i = 0; i < SizeI; ++i) {
            const ValueT a = values[i];
            const ValueT b = other.values[i];
            if (!(static_cast<ValueT>(a < b ? b - a : a - b) <= tolerance)) {
                return false;
            }
        }
        return true;
    }

    constexpr bool operator==(const ColorInterface& other) const
    {
        return equals(other, ValueT(Eps));
    }

    constexpr bool operator!=(const ColorInterface& other) const { return !(*this == other); }

protected:
    ValueT values[SizeI] = {};
};

/// Red, green, blue.
template <class ValueT>
class Color3 : public ColorInterface<ValueT, 3>
{
public:
    constexpr Color3() = default;

    constexpr Color3(ValueT red, ValueT green, ValueT blue) { setValuesRGB(red, green, blue); }

    constexpr void setValuesRGB(ValueT red, ValueT green, ValueT blue)
    {
        this->values[0] = red;
        this->values[1] = green;
        this->values[2] = blue;
    }

    constexpr ValueT* getValuesRGB() { return this->values; }

    constexpr const ValueT* getValuesRGB() const { return this->values; }
};

/// Red, green, blue, alpha.
template <class ValueT>
class Color4 : public ColorInterface<ValueT, 4>
{
public:
    constexpr Color4() = default;

    constexpr Color4(ValueT red, ValueT green, ValueT blue, ValueT alpha)
    {
        setValuesRGBA(red, green, blue, alpha);
    }

    constexpr ValueT alpha() const { return this->values[3]; }

    constexpr void setValuesRGBA(ValueT red, ValueT green, ValueT blue, ValueT alpha)
    {
        this->values[0] = red;
        this->values[1] = green;
        this->values[2] = blue;
        this->values[3] = alpha;
    }

    constexpr ValueT* getValuesRGBA() { return this->values; }

    constexpr const ValueT* getValuesRGBA() const { return this->values; }
};

using Color3f = Color3<Real32>;
using Color4f = Color4<Real32>;
using Color3ub = Color3<UInt8>;
using Color4ub = Color4<UInt8>;

}  // namespace osg
