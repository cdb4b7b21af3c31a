// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGBaseTypes.h>

#include <ostream>

/// @file
/// Points: plain numbers in a row, zero unless given.

namespace osg {

template <class ValueT, UInt32 SizeI>
class VectorInterface;

/// Point of 2 to 4 components.
/// Comparison is within Eps per component. There is no division except `/=`.
template <class ValueT, UInt32 SizeI>
class PointInterface
{
public:
    using ValueType = ValueT;
    using VectorType = VectorInterface<ValueT, SizeI>;

    static constexpr UInt32 _iSize = SizeI;
    static const PointInterface Null;

    constexpr PointInterface() = default;

    /// Components not given are 0: one value does not fill them all.
    constexpr explicit PointInterface(ValueT x)
        : values { x }
    { }

    constexpr PointInterface(ValueT x, ValueT y)
        : values { x, y }
    { }

    constexpr PointInterface(ValueT x, ValueT y, ValueT z)
        : values { x, y, z }
    { }

    constexpr PointInterface(ValueT x, ValueT y, ValueT z, ValueT w)
        : values { x, y, z, w }
    { }

    /// From as many components as the point has.
    constexpr explicit PointInterface(const ValueT* source) { setValue(source); }

    /// From a point or vector of another size or type; missing components, also the fourth, are 0.
    template <class OtherT, UInt32 OtherI>
    constexpr explicit PointInterface(const PointInterface<OtherT, OtherI>& source)
    {
        setValue(source);
    }

    constexpr ValueT x() const { return values[0]; }

    constexpr ValueT y() const { return values[1]; }

    constexpr ValueT z() const
    {
        static_assert(SizeI > 2, "no z in this size");
        return values[2];
    }

    constexpr ValueT w() const
    {
        static_assert(SizeI > 3, "no w in this size");
        return values[3];
    }

    constexpr ValueT& operator[](UInt32 index) { return values[index]; }

    constexpr const ValueT& operator[](UInt32 index) const { return values[index]; }

    constexpr ValueT* getValues() { return values; }

    constexpr const ValueT* getValues() const { return values; }

    constexpr void setValues(ValueT x, ValueT y)
    {
        static_assert(SizeI == 2, "as many values as components");
        values[0] = x, values[1] = y;
    }

    constexpr void setValues(ValueT x, ValueT y, ValueT z)
    {
        static_assert(SizeI == 3, "as many values as components");
        values[0] = x, values[1] = y, values[2] = z;
    }

    constexpr void setValues(ValueT x, ValueT y, ValueT z, ValueT w)
    {
        static_assert(SizeI == 4, "as many values as components");
        values[0] = x, values[1] = y, values[2] = z, values[3] = w;
    }

    template <class OtherT, UInt32 OtherI>
    constexpr void setValue(const PointInterface<OtherT, OtherI>& source)
    {
        for (UInt32 i = 0; i < SizeI; ++i) {
            values[i] = i < OtherI ? static_cast<ValueT>(source.getValues()[i]) : ValueT(0);
        }
    }

    constexpr void setValue(const ValueT* source)
    {
        for (UInt32 i = 0; i < SizeI; ++i) {
            values[i] = source[i];
        }
    }

    constexpr void setNull() { *this = PointInterface(); }

    /// Distance to another point.
    ValueT dist(const PointInterface& other) const { return osgsqrt(dist2(other)); }

    /// Square of the distance to another point.
    constexpr ValueT dist2(const PointInterface& other) const
    {
        ValueT sum = 0;
        for (UInt32 i = 0; i < SizeI; ++i) {
            const ValueT difference = static_cast<ValueT>(other.values[i] - values[i]);
            sum = static_cast<ValueT>(sum + difference * difference);
        }
        return sum;
    }

    /// Whether every component is within Eps of 0.
    constexpr bool isZero() const { return equals(PointInterface(), ValueT(Eps)); }

    constexpr bool equals(const PointInterface& other, ValueT tolerance) const
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

    constexpr bool operator==(const PointInterface& other) const
    {
        return equals(other, ValueT(Eps));
    }

    constexpr bool operator!=(const PointInterface& other) const { return !(*this == other); }

    /// The same memory as the vector from the origin to this point.
    VectorType& subZero() { return static_cast<VectorType&>(*this); }

    const VectorType& subZero() const { return static_cast<const VectorType&>(*this); }

    constexpr VectorType operator-(const PointInterface& other) const
    {
        VectorType result;
        for (UInt32 i = 0; i < SizeI; ++i) {
            result[i] = static_cast<ValueT>(values[i] - other.values[i]);
        }
        return result;
    }

    constexpr PointInterface operator+(const VectorType& offset) const
    {
        PointInterface result(*this);
        result += offset;
        return result;
    }

    constexpr PointInterface operator-(const VectorType& offset) const
    {
        PointInterface result(*this);
        result -= offset;
        return result;
    }

    constexpr PointInterface operator-() const
    {
        PointInterface result;
        for (UInt32 i = 0; i < SizeI; ++i) {
            result[i] = static_cast<ValueT>(-values[i]);
        }
        return result;
    }

    constexpr PointInterface operator*(ValueT factor) const
    {
        PointInterface result(*this);
        result *= factor;
        return result;
    }

    constexpr void operator+=(const VectorType& offset)
    {
        for (UInt32 i = 0; i < SizeI; ++i) {
            values[i] = static_cast<ValueT>(values[i] + offset[i]);
        }
    }

    constexpr void operator-=(const VectorType& offset)
    {
        for (UInt32 i = 0; i < SizeI; ++i) {
            values[i] = static_cast<ValueT>(values[i] - offset[i]);
        }
    }

    constexpr void operator*=(ValueT factor)
    {
        for (ValueT& value : values) {
            value = static_cast<ValueT>(value * factor);
        }
    }

    constexpr void operator/=(ValueT divisor)
    {
        for (ValueT& value : values) {
            value = static_cast<ValueT>(value / divisor);
        }
    }

    /// A vector is not assigned to a point; construct one from it.
    void operator=(const VectorType&) = delete;

private:
    ValueT values[SizeI] = {};
};

template <class ValueT, UInt32 SizeI>
inline constexpr PointInterface<ValueT, SizeI> PointInterface<ValueT, SizeI>::Null {};

}  // namespace osg
