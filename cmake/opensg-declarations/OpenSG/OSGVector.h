// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGBaseTypes.h>

#include <ostream>

namespace osg {
template <UInt32 N>
struct osgWith4
{ };

template <>
struct osgWith4<4>
{
    typedef void Type;
};
template <class V, UInt32 N>
class VectorOf;

template <class V, UInt32 N>
class PointOf
{
public:
    static const PointOf Null;
    PointOf();
    explicit PointOf(const V* values);
    template <class O, UInt32 M>
    explicit PointOf(const PointOf<O, M>& source);
    explicit PointOf(V x);
    PointOf(V x, V y);
    PointOf(V x, V y, V z);
    PointOf(V x, V y, V z, V w);
    void setValue(const PointOf& source);
    void setValue(const V* values);
    void setValues(V x, V y);
    void setValues(V x, V y, V z);
    void setValues(V x, V y, V z, V w);
    void setNull();
    V* getValues();
    const V* getValues() const;
    V x() const;
    V y() const;
    V z() const;
    template <UInt32 M = N, class = typename osgWith4<M>::Type>
    V w() const;
    V& operator[](UInt32 index);
    const V& operator[](UInt32 index) const;
    V dist(const PointOf& other) const;
    V dist2(const PointOf& other) const;
    bool isZero() const;
    bool equals(const PointOf& other, V tolerance) const;
    VectorOf<V, N>& subZero();
    const VectorOf<V, N>& subZero() const;
    VectorOf<V, N> operator-(const PointOf& other) const;
    PointOf operator+(const VectorOf<V, N>& other) const;
    PointOf operator-(const VectorOf<V, N>& other) const;
    PointOf operator*(V factor) const;
    void operator+=(const VectorOf<V, N>& other);
    void operator-=(const VectorOf<V, N>& other);
    void operator*=(V factor);
    void operator/=(V factor);
    bool operator==(const PointOf& other) const;
    bool operator!=(const PointOf& other) const;
    bool operator<(const PointOf& other) const;

private:
    V numbers[N];
};

template <class V, UInt32 N>
class VectorOf : public PointOf<V, N>
{
public:
    static const VectorOf Null;
    using PointOf<V, N>::PointOf;
    VectorOf();
    VectorOf(const PointOf<V, N>& source);
    PointOf<V, N>& addToZero();
    const PointOf<V, N>& addToZero() const;
    V length() const;
    V squareLength() const;
    void normalize();
    V dot(const VectorOf& other) const;
    V operator*(const VectorOf& other) const;
    VectorOf cross(const VectorOf& other) const;
    VectorOf operator%(const VectorOf& other) const;
    void crossThis(const VectorOf& other);
    V enclosedAngle(const VectorOf& other) const;
    V projectTo(const VectorOf& other);
    VectorOf operator+(const VectorOf& other) const;
    VectorOf operator-(const VectorOf& other) const;
    VectorOf operator*(V factor) const;
    VectorOf operator-() const;
};
template <class V, UInt32 N>
VectorOf<V, N> operator*(V factor, const VectorOf<V, N>& vector);
template <class V, UInt32 N>
std::ostream& operator<<(std::ostream& out, const PointOf<V, N>& point);
typedef PointOf<Real32, 2> Pnt2f;
typedef PointOf<Real32, 3> Pnt3f;
typedef PointOf<Real32, 4> Pnt4f;
typedef PointOf<Real64, 2> Pnt2d;
typedef PointOf<Real64, 3> Pnt3d;
typedef PointOf<Real64, 4> Pnt4d;
typedef VectorOf<Real32, 2> Vec2f;
typedef VectorOf<Real32, 3> Vec3f;
typedef VectorOf<Real32, 4> Vec4f;
typedef VectorOf<Real64, 2> Vec2d;
typedef VectorOf<Real64, 3> Vec3d;
typedef VectorOf<Real64, 4> Vec4d;
}  // namespace osg
