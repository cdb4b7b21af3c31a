// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGVector.h>

namespace osg {
template <class V>
class QuaternionBase;

template <class V>
class TransformationMatrix
{
    typedef VectorOf<V, 3> Vec;
    typedef PointOf<V, 3> Pnt;
    typedef QuaternionBase<V> Quat;

public:
    static const TransformationMatrix& identity();
    TransformationMatrix();
    TransformationMatrix(V, V, V, V, V, V, V, V, V, V, V, V, V, V, V, V);
    TransformationMatrix(const Vec& x, const Vec& y, const Vec& z);
    TransformationMatrix(const Vec& x, const Vec& y, const Vec& z, const Vec& t);
    void setIdentity();
    void setValue(const TransformationMatrix& source);
    void setValue(V, V, V, V, V, V, V, V, V, V, V, V, V, V, V, V);
    void setValueTransposed(V, V, V, V, V, V, V, V, V, V, V, V, V, V, V, V);
    void setValue(const Vec& x, const Vec& y, const Vec& z);
    void setValue(const Vec& x, const Vec& y, const Vec& z, const Vec& t);
    void setValue(const V* values, bool transposed = true);
    void setScale(V s);
    void setScale(V x, V y, V z);
    void setScale(const Vec& s);
    void setTranslate(V x, V y, V z);
    void setTranslate(const Vec& t);
    void setTranslate(const Pnt& t);
    void setRotate(const Quat& r);
    void setTransform(const Vec& t);
    void setTransform(const Quat& r);
    void setTransform(const Vec& t, const Quat& r);
    void setTransform(const Vec& t, const Quat& r, const Vec& s);
    void setTransform(const Vec& t, const Quat& r, const Vec& s, const Quat& so);
    void setTransform(const Vec& t, const Quat& r, const Vec& s, const Quat& so, const Vec& center);
    void getTransform(Vec& t, Quat& r, Vec& s, Quat& so) const;
    void getTransform(Vec& t, Quat& r, Vec& s, Quat& so, const Vec& center) const;
    void mult(const TransformationMatrix& n);
    void multLeft(const TransformationMatrix& n);
    void mult(const Pnt& source, Pnt& result) const;
    void mult(Pnt& point) const;
    void mult(const Vec& source, Vec& result) const;
    void mult(Vec& vector) const;
    void multMatrixPnt(const Pnt& source, Pnt& result) const;
    void multMatrixPnt(Pnt& point) const;
    void multFullMatrixPnt(const Pnt& source, Pnt& result) const;
    void multFullMatrixPnt(Pnt& point) const;
    void multMatrixVec(const Vec& source, Vec& result) const;
    void multMatrixVec(Vec& vector) const;
    void multMatrixVec(const VectorOf<V, 4>& source, VectorOf<V, 4>& result) const;
    bool invert();
    bool inverse(TransformationMatrix& result) const;
    bool invertFrom(const TransformationMatrix& source);
    bool transpose();
    bool transposed(TransformationMatrix& result) const;
    bool transposeFrom(const TransformationMatrix& source);
    V det() const;
    V det3() const;
    bool equals(const TransformationMatrix& other, V tolerance) const;
    V* getValues();
    const V* getValues() const;
    VectorOf<V, 4>& operator[](UInt32 column);
    const VectorOf<V, 4>& operator[](UInt32 column) const;
    bool operator==(const TransformationMatrix& other) const;
    bool operator!=(const TransformationMatrix& other) const;

private:
    V numbers[16];
};

typedef TransformationMatrix<Real32> Matrix;
typedef TransformationMatrix<Real32> Matrix4f;
typedef TransformationMatrix<Real64> Matrix4d;
typedef QuaternionBase<Real32> Quaternion;
}  // namespace osg
