// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGVector.h>

/// @file
/// Quaternions: turns about an axis, components x, y, z, w. Angles are radians unless the name says
/// Deg.

namespace osg {

/// Turn in space. Operations take unit quaternions, but none is made unit unless said.
template <class ValueT>
class QuaternionBase
{
public:
    using ValueType = ValueT;
    using VectorType = VectorInterface<ValueT, 3>;
    using MatrixType = TransformationMatrix<ValueT>;

    /// No turn: (0, 0, 0, 1).
    constexpr QuaternionBase() = default;

    /// From the upper 3x3, which must be a pure rotation: a scale gives a wrong turn, not an error.
    explicit QuaternionBase(const MatrixType& matrix) { setValue(matrix); }

    /// The axis need not be unit; one shorter than Eps gives the identity.
    QuaternionBase(const VectorType& axis, ValueT radians) { setValueAsAxisRad(axis, radians); }

    /// The shortest turn that brings one direction to the other; see setValue.
    QuaternionBase(const VectorType& from, const VectorType& to) { setValue(from, to); }

    static const QuaternionBase& identity();

    /// Spherical interpolation the short way, t from 0 (a) to 1 (b); linear when nearly equal.
    static QuaternionBase slerp(const QuaternionBase& a, const QuaternionBase& b, ValueT t);

    void slerpThis(const QuaternionBase& a, const QuaternionBase& b, ValueT t)
    {
        *this = slerp(a, b, t);
    }

    constexpr void setIdentity() { *this = QuaternionBase(); }

    void setValueAsAxisRad(const VectorType& axis, ValueT radians);

    void setValueAsAxisRad(ValueT x, ValueT y, ValueT z, ValueT radians)
    {
        setValueAsAxisRad(VectorType(x, y, z), radians);
    }

    void setValueAsAxisRad(const ValueT* axisAngle)
    {
        setValueAsAxisRad(VectorType(axisAngle), axisAngle[3]);
    }

    /// Text "x y z angle"; text that is not four numbers is logged and changes nothing.
    void setValueAsAxisRad(const Char8* text);

    void setValueAsAxisDeg(const VectorType& axis, ValueT degrees)
    {
        setValueAsAxisRad(axis, osgdegree2rad(degrees));
    }

    void setValueAsAxisDeg(ValueT x, ValueT y, ValueT z, ValueT degrees)
    {
        setValueAsAxisDeg(VectorType(x, y, z), degrees);
    }

    void setValueAsAxisDeg(const ValueT* axisAngle)
    {
        setValueAsAxisDeg(VectorType(axisAngle), axisAngle[3]);
    }

    void setValueAsAxisDeg(const Char8* text);

    /// Stored as given, not normalised.
    constexpr void setValueAsQuat(ValueT x, ValueT y, ValueT z, ValueT w)
    {
        values[0] = x;
        values[1] = y;
        values[2] = z;
        values[3] = w;
    }

    constexpr void setValueAsQuat(const ValueT* source)
    {
        setValueAsQuat(source[0], source[1], source[2], source[3]);
    }

    void setValue(const MatrixType& matrix);

    /// The shortest turn from one direction to the other; they need not be unit.
    /// Turns of a cosine above 0.99999 (about 0.256 degrees) are dropped, below -0.99999 they are
    /// half turns.
    void setValue(const VectorType& from, const VectorType& to);

    /// Euler angles about x, y, z in radians, x turns first.
    void setValue(ValueT alpha, ValueT beta, ValueT gamma);

    /// The axis is of unit length; the identity gives the axis (0, 0, 1) and angle 0.
    void getValueAsAxisRad(VectorType& axis, ValueT& radians) const;

    void getValueAsAxisRad(ValueT& axisX, ValueT& axisY, ValueT& axisZ, ValueT& radians) const;

    void getValueAsAxisDeg(VectorType& axis, ValueT& degrees) const;

    void getValueAsAxisDeg(ValueT& axisX, ValueT& axisY, ValueT& axisZ, ValueT& degrees) const;

    constexpr void getValueAsQuat(ValueT& qx, ValueT& qy, ValueT& qz, ValueT& qw) const
    {
        qx = values[0], qy = values[1], qz = values[2], qw = values[3];
    }

    constexpr const ValueT* getValues() const { return values; }

    constexpr ValueT x() const { return values[0]; }

    constexpr ValueT y() const { return values[1]; }

    constexpr ValueT z() const { return values[2]; }

    constexpr ValueT w() const { return values[3]; }

    constexpr ValueT& operator[](UInt32 index) { return values[index]; }

    constexpr const ValueT& operator[](UInt32 index) const { return values[index]; }

    /// Writes the whole 4x4, without translation.
    void getValue(MatrixType& matrix) const
    {
        matrix.setIdentity();
        getValuesOnly(matrix);
    }

    /// Writes the 3x3; translation and last row stay.
    void getValuesOnly(MatrixType& matrix) const;

    /// Turns a vector; source and result may be the same. The length is squared into the result.
    constexpr void multVec(const VectorType& source, VectorType& result) const
    {
        const VectorType axis(values[0], values[1], values[2]);
        const ValueT turn = values[3];
        result = source * (turn * turn - axis.dot(axis)) + axis * (2 * axis.dot(source)) +
            axis.cross(source) * (2 * turn);
    }

    /// this = this * other: the other turns first, then the old value. Normalised.
    void mult(const QuaternionBase& other)
    {
        *this = product(*this, other);
        normalize();
    }

    /// this = other * this, normalised.
    void multLeft(const QuaternionBase& other)
    {
        *this = product(other, *this);
        normalize();
    }

    void operator*=(const QuaternionBase& other) { mult(other); }

    /// Conjugates only: no division by the length.
    constexpr void invert() { setValueAsQuat(-values[0], -values[1], -values[2], values[3]); }

    constexpr QuaternionBase inverse() const
    {
        QuaternionBase result(*this);
        result.invert();
        return result;
    }

    ValueT length() const { return VectorInterface<ValueT, 4>(values).length(); }

    /// A quaternion shorter than Eps stays as it is.
    void normalize();

    /// The same axis, the angle times a factor.
    void scaleAngle(ValueT factor);

    constexpr bool equals(const QuaternionBase& other, ValueT tolerance) const
    {
        return VectorInterface<ValueT, 4>(values).equals(VectorInterface<ValueT, 4>(other.values),
                                                         tolerance);
    }

    /// Within Eps per component; q and -q are not equal.
    constexpr bool operator==(const QuaternionBase& other) const
    {
        return equals(other, ValueT(Eps));
    }

    constexpr bool operator!=(const QuaternionBase& other) const { return !(*this == other); }

private:
    static constexpr QuaternionBase product(const QuaternionBase& a, const QuaternionBase& b)
    {
        QuaternionBase result;
        result.setValueAsQuat(a[3] * b[0] + a[0] * b[3] + a[1] * b[2] - a[2] * b[1],
                              a[3] * b[1] - a[0] * b[2] + a[1] * b[3] + a[2] * b[0],
                              a[3] * b[2] + a[0] * b[1] - a[1] * b[0] + a[2] * b[3],
                              a[3] * b[3] - a[0] * b[0] - a[1] * b[1] - a[2] * b[2]);
        return result;
    }

    ValueT values[4] = { 0, 0, 0, 1 };
};

using Quaternion = QuaternionBase<Real32>;
using Quaterniond = QuaternionBase<Real64>;

}  // namespace osg
