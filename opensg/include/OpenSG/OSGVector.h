// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGPointInterface.h>

#include <ostream>

/// @file
/// Vectors: points with a length and products. `vector = point` works, `point = vector` does not.

namespace osg {

/// Vector of 2 to 4 components; a zero vector neither throws nor makes NaN in any operation here.
template <class ValueT, UInt32 SizeI>
class VectorInterface : public PointInterface<ValueT, SizeI>
{
public:
    using PointType = PointInterface<ValueT, SizeI>;

    static const VectorInterface Null;

    using PointType::PointType;

    constexpr VectorInterface() = default;

    constexpr explicit VectorInterface(const PointType& source)
        : PointType(source)
    { }

    constexpr VectorInterface& operator=(const PointType& source)
    {
        PointType::operator=(source);
        return *this;
    }

    ValueT length() const { return osgsqrt(squareLength()); }

    constexpr ValueT squareLength() const { return dot(*this); }

    /// Makes the length 1; a vector shorter than Eps stays as it is.
    void normalize()
    {
        const ValueT size = length();
        if (size > ValueT(Eps)) {
            *this /= size;
        }
    }

    constexpr ValueT dot(const PointType& other) const
    {
        ValueT sum = 0;
        for (UInt32 i = 0; i < SizeI; ++i) {
            sum = static_cast<ValueT>(sum + (*this)[i] * other[i]);
        }
        return sum;
    }

    /// Cross product of the first three components.
    constexpr VectorInterface cross(const VectorInterface& other) const
    {
        static_assert(SizeI == 3, "cross product in space only");
        const ValueT* const a = this->getValues();
        const ValueT* const b = other.getValues();
        return VectorInterface(static_cast<ValueT>(a[1] * b[2] - a[2] * b[1]),
                               static_cast<ValueT>(a[2] * b[0] - a[0] * b[2]),
                               static_cast<ValueT>(a[0] * b[1] - a[1] * b[0]));
    }

    constexpr void crossThis(const VectorInterface& other) { *this = cross(other); }

    /// @return angle to the other vector, radians, 0 to pi; 0 if one of them is zero
    ValueT enclosedAngle(const VectorInterface& other) const
    {
        const ValueT lengths = length() * other.length();
        if (lengths == ValueT(0)) {
            return ValueT(0);
        }
        return osgacos(osgClamp(ValueT(-1), ValueT(dot(other) / lengths), ValueT(1)));
    }

    /// Replaces this by its projection on another vector.
    /// @return signed length of the projection in units of the other's length; 0 on a zero vector
    constexpr ValueT projectTo(const VectorInterface& other)
    {
        const ValueT square = other.squareLength();
        const ValueT factor = square == ValueT(0) ? ValueT(0) : ValueT(dot(other) / square);
        *this = other * factor;
        return factor;
    }

    /// The same memory as the point at the vector's end.
    PointType& addToZero() { return *this; }

    const PointType& addToZero() const { return *this; }

    constexpr VectorInterface operator+(const VectorInterface& other) const
    {
        VectorInterface result(*this);
        result += other;
        return result;
    }

    constexpr VectorInterface operator-(const VectorInterface& other) const
    {
        VectorInterface result(*this);
        result -= other;
        return result;
    }

    constexpr VectorInterface operator-() const { return VectorInterface() - *this; }

    constexpr VectorInterface operator*(ValueT factor) const
    {
        VectorInterface result(*this);
        result *= factor;
        return result;
    }

    /// Dot product.
    constexpr ValueT operator*(const VectorInterface& other) const { return dot(other); }

    /// Cross product.
    constexpr VectorInterface operator%(const VectorInterface& other) const { return cross(other); }
};

template <class ValueT, UInt32 SizeI>
inline constexpr VectorInterface<ValueT, SizeI> VectorInterface<ValueT, SizeI>::Null {};

template <class ValueT, UInt32 SizeI>
constexpr VectorInterface<ValueT, SizeI> operator*(ValueT factor,
                                                   const VectorInterface<ValueT, SizeI>& vector)
{
    return vector * factor;
}

template <class ValueT, UInt32 SizeI>
constexpr PointInterface<ValueT, SizeI> operator*(ValueT factor,
                                                  const PointInterface<ValueT, SizeI>& point)
{
    return point * factor;
}

/// Components with a comma and a blank between them.
template <class ValueT, UInt32 SizeI>
std::ostream& operator<<(std::ostream& stream, const PointInterface<ValueT, SizeI>& point)
{
    for (UInt32 i = 0; i < SizeI; ++i) {
        // Unary plus: bytes print as numbers.
        stream << (i == 0 ? "" : ", ") << +point[i];
    }
    return stream;
}

using Vec2f = VectorInterface<Real32, 2>;
using Pnt2f = PointInterface<Real32, 2>;
using Vec2d = VectorInterface<Real64, 2>;
using Pnt2d = PointInterface<Real64, 2>;
using Vec2ld = VectorInterface<Real128, 2>;
using Pnt2ld = PointInterface<Real128, 2>;
using Vec2s = VectorInterface<Int16, 2>;
using Pnt2s = PointInterface<Int16, 2>;
using Vec2us = VectorInterface<UInt16, 2>;
using Pnt2us = PointInterface<UInt16, 2>;
using Vec2b = VectorInterface<Int8, 2>;
using Pnt2b = PointInterface<Int8, 2>;
using Vec2ub = VectorInterface<UInt8, 2>;
using Pnt2ub = PointInterface<UInt8, 2>;
using Vec3f = VectorInterface<Real32, 3>;
using Pnt3f = PointInterface<Real32, 3>;
using Vec3d = VectorInterface<Real64, 3>;
using Pnt3d = PointInterface<Real64, 3>;
using Vec3ld = VectorInterface<Real128, 3>;
using Pnt3ld = PointInterface<Real128, 3>;
using Vec3s = VectorInterface<Int16, 3>;
using Pnt3s = PointInterface<Int16, 3>;
using Vec3us = VectorInterface<UInt16, 3>;
using Pnt3us = PointInterface<UInt16, 3>;
using Vec3b = VectorInterface<Int8, 3>;
using Pnt3b = PointInterface<Int8, 3>;
using Vec3ub = VectorInterface<UInt8, 3>;
using Pnt3ub = PointInterface<UInt8, 3>;
using Vec4f = VectorInterface<Real32, 4>;
using Pnt4f = PointInterface<Real32, 4>;
using Vec4d = VectorInterface<Real64, 4>;
using Pnt4d = PointInterface<Real64, 4>;
using Vec4ld = VectorInterface<Real128, 4>;
using Pnt4ld = PointInterface<Real128, 4>;
using Vec4s = VectorInterface<Int16, 4>;
using Pnt4s = PointInterface<Int16, 4>;
using Vec4us = VectorInterface<UInt16, 4>;
using Pnt4us = PointInterface<UInt16, 4>;
using Vec4b = VectorInterface<Int8, 4>;
using Pnt4b = PointInterface<Int8, 4>;
using Vec4ub = VectorInterface<UInt8, 4>;
using Pnt4ub = PointInterface<UInt8, 4>;

}  // namespace osg
