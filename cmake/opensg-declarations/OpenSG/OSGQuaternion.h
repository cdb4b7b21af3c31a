// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGMatrix.h>

namespace osg {
template <class V>
class QuaternionBase
{
    typedef VectorOf<V, 3> Vec;
    typedef TransformationMatrix<V> Mat;

public:
    static const QuaternionBase& identity();
    static QuaternionBase slerp(const QuaternionBase& a, const QuaternionBase& b, V t);
    QuaternionBase();
    explicit QuaternionBase(const Mat& matrix);
    QuaternionBase(const Vec& axis, V radians);
    QuaternionBase(const Vec& from, const Vec& to);
    virtual ~QuaternionBase();
    void setIdentity();
    void slerpThis(const QuaternionBase& a, const QuaternionBase& b, V t);
    void setValueAsAxisRad(const Vec& axis, V angle);
    void setValueAsAxisRad(V x, V y, V z, V angle);
    void setValueAsAxisDeg(const Vec& axis, V angle);
    void setValueAsAxisDeg(V x, V y, V z, V angle);
    void setValueAsQuat(V x, V y, V z, V w);
    void setValueAsQuat(const V* values);
    void setValue(const Mat& matrix);
    void setValue(const Vec& from, const Vec& to);
    void setValue(V alpha, V beta, V gamma);
    void getValueAsAxisRad(Vec& axis, V& angle) const;
    void getValueAsAxisDeg(Vec& axis, V& angle) const;
    void getValueAsAxisRad(V& x, V& y, V& z, V& angle) const;
    void getValueAsAxisDeg(V& x, V& y, V& z, V& angle) const;
    void getValueAsQuat(V& x, V& y, V& z, V& w) const;
    const V* getValues() const;
    V x() const;
    V y() const;
    V z() const;
    V w() const;
    void getValue(Mat& matrix) const;
    void getValuesOnly(Mat& matrix) const;
    void multVec(const Vec& source, Vec& result) const;
    void mult(const QuaternionBase& other);
    void multLeft(const QuaternionBase& other);
    void operator*=(const QuaternionBase& other);
    void invert();
    QuaternionBase inverse() const;
    V length() const;
    void normalize();
    void scaleAngle(V factor);
    bool equals(const QuaternionBase& other, V tolerance) const;
    V& operator[](UInt32 index);
    const V& operator[](UInt32 index) const;
    bool operator==(const QuaternionBase& other) const;
    bool operator!=(const QuaternionBase& other) const;
};
}  // namespace osg
