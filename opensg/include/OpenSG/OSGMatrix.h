// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGVector.h>

/// @file
/// 4x4 matrices for column vectors, p' = M p, stored column after column as OpenGL wants them.

namespace osg {

template <class ValueT>
class QuaternionBase;
using Quaternion = QuaternionBase<Real32>;

/// Transformation of space; identity unless given.
/// `m[i]` is column i, `m[i][j]` the row j of it: the translation is `m[3]`.
template <class ValueT>
class TransformationMatrix
{
public:
    using ValueType = ValueT;
    using ColumnType = VectorInterface<ValueT, 4>;
    using VectorType = VectorInterface<ValueT, 3>;
    using PointType = PointInterface<ValueT, 3>;
    using QuaternionType = QuaternionBase<ValueT>;

    constexpr TransformationMatrix() = default;

    /// 16 values row by row, as written on paper.
    constexpr TransformationMatrix(ValueT m00, ValueT m01, ValueT m02, ValueT m03, ValueT m10,
                                   ValueT m11, ValueT m12, ValueT m13, ValueT m20, ValueT m21,
                                   ValueT m22, ValueT m23, ValueT m30, ValueT m31, ValueT m32,
                                   ValueT m33)
        : columns { { m00, m10, m20, m30 },
                    { m01, m11, m21, m31 },
                    { m02, m12, m22, m32 },
                    { m03, m13, m23, m33 } }
    { }

    /// Three columns. Deliberate: the last row becomes 0 0 0 0, m[3][3] has to be set.
    constexpr TransformationMatrix(const VectorType& x, const VectorType& y, const VectorType& z,
                                   const VectorType& translation = VectorType())
    {
        setValue(x, y, z, translation);
    }

    static const TransformationMatrix& identity()
    {
        static constexpr TransformationMatrix kIdentity;
        return kIdentity;
    }

    constexpr void setIdentity() { *this = TransformationMatrix(); }

    /// Row by row, as written on paper.
    void setValue(ValueT m00, ValueT m01, ValueT m02, ValueT m03, ValueT m10, ValueT m11,
                  ValueT m12, ValueT m13, ValueT m20, ValueT m21, ValueT m22, ValueT m23,
                  ValueT m30, ValueT m31, ValueT m32, ValueT m33);

    /// Column by column, the order of the memory.
    void setValueTransposed(ValueT m00, ValueT m10, ValueT m20, ValueT m30, ValueT m01, ValueT m11,
                            ValueT m21, ValueT m31, ValueT m02, ValueT m12, ValueT m22, ValueT m32,
                            ValueT m03, ValueT m13, ValueT m23, ValueT m33);

    /// From 16 numbers, column by column (true) or row by row (false).
    constexpr void setValue(const ValueT* source, bool transposed = true)
    {
        for (UInt32 i = 0; i < 4; ++i) {
            for (UInt32 j = 0; j < 4; ++j) {
                columns[i][j] = transposed ? source[4 * i + j] : source[4 * j + i];
            }
        }
    }

    /// Three columns and the translation; the last row becomes 0 0 0 0 as in the constructor.
    constexpr void setValue(const VectorType& x, const VectorType& y, const VectorType& z,
                            const VectorType& translation = VectorType())
    {
        columns[0].setValue(x);
        columns[1].setValue(y);
        columns[2].setValue(z);
        columns[3].setValue(translation);
    }

    constexpr ColumnType& operator[](UInt32 column) { return columns[column]; }

    constexpr const ColumnType& operator[](UInt32 column) const { return columns[column]; }

    /// 16 numbers, column after column.
    constexpr ValueT* getValues() { return columns[0].getValues(); }

    constexpr const ValueT* getValues() const { return columns[0].getValues(); }

    // == Parts; each overwrites only its own elements

    constexpr void setScale(ValueT scale) { setScale(scale, scale, scale); }

    constexpr void setScale(ValueT x, ValueT y, ValueT z)
    {
        columns[0][0] = x;
        columns[1][1] = y;
        columns[2][2] = z;
    }

    constexpr void setScale(const VectorType& scale) { setScale(scale[0], scale[1], scale[2]); }

    constexpr void setTranslate(ValueT x, ValueT y, ValueT z)
    {
        columns[3][0] = x;
        columns[3][1] = y;
        columns[3][2] = z;
    }

    constexpr void setTranslate(const VectorType& t) { setTranslate(t[0], t[1], t[2]); }

    constexpr void setTranslate(const PointType& t) { setTranslate(t[0], t[1], t[2]); }

    /// A scale in the 3x3 is lost.
    void setRotate(const QuaternionType& rotation);

    // == Transforms; set everything: T C R SO S SO^-1 C^-1

    constexpr void setTransform(const VectorType& translation)
    {
        setIdentity();
        setTranslate(translation);
    }

    void setTransform(const QuaternionType& rotation);
    void setTransform(const VectorType& translation, const QuaternionType& rotation);
    void setTransform(const VectorType& translation, const QuaternionType& rotation,
                      const VectorType& scale);
    void setTransform(const VectorType& translation, const QuaternionType& rotation,
                      const VectorType& scale, const QuaternionType& scaleOrientation);
    void setTransform(const VectorType& translation, const QuaternionType& rotation,
                      const VectorType& scale, const QuaternionType& scaleOrientation,
                      const VectorType& center);

    /// Takes an affine matrix apart: M = T SO^-1 S SO R.
    /// Deliberate: the scale acts after the rotation, so setTransform does not rebuild M from the
    /// parts unless the scale is uniform or the axes line up. A mirrored matrix gets three negative
    /// scales. A singular one leaves the scale as it was and gives identity turns.
    void getTransform(VectorType& translation, QuaternionType& rotation, VectorType& scale,
                      QuaternionType& scaleOrientation) const;

    /// The same about a centre.
    void getTransform(VectorType& translation, QuaternionType& rotation, VectorType& scale,
                      QuaternionType& scaleOrientation, const VectorType& center) const;

    // == Products

    /// this = this * other: the other acts first.
    constexpr void mult(const TransformationMatrix& other) { *this = product(*this, other); }

    /// this = other * this.
    constexpr void multLeft(const TransformationMatrix& other) { *this = product(other, *this); }

    /// Point times matrix; ignores the last row. Source and result may be the same in all products.
    constexpr void multMatrixPnt(const PointType& source, PointType& result) const
    {
        result = PointType(combined(source[0], source[1], source[2], ValueT(1)));
    }

    constexpr void multMatrixPnt(PointType& point) const { multMatrixPnt(point, point); }

    /// Divides by w; with w = 0 the result is (0, 0, 0).
    constexpr void multFullMatrixPnt(const PointType& source, PointType& result) const
    {
        const ColumnType full = combined(source[0], source[1], source[2], ValueT(1));
        result = full[3] == ValueT(0) ? PointType() : PointType(full * (ValueT(1) / full[3]));
    }

    constexpr void multFullMatrixPnt(PointType& point) const { multFullMatrixPnt(point, point); }

    /// The 3x3 only.
    constexpr void multMatrixVec(const VectorType& source, VectorType& result) const
    {
        result = VectorType(combined(source[0], source[1], source[2], ValueT(0)));
    }

    constexpr void multMatrixVec(VectorType& vector) const { multMatrixVec(vector, vector); }

    /// All 16 elements.
    constexpr void multMatrixVec(const ColumnType& source, ColumnType& result) const
    {
        result = combined(source[0], source[1], source[2], source[3]);
    }

    constexpr void multMatrixVec(ColumnType& vector) const { multMatrixVec(vector, vector); }

    constexpr void mult(const PointType& source, PointType& result) const
    {
        multMatrixPnt(source, result);
    }

    constexpr void mult(PointType& point) const { multMatrixPnt(point, point); }

    constexpr void mult(const VectorType& source, VectorType& result) const
    {
        multMatrixVec(source, result);
    }

    constexpr void mult(VectorType& vector) const { multMatrixVec(vector, vector); }

    // == Row vector times matrix, the transpose of the products above

    void multVecMatrix(const VectorType& source, VectorType& result) const;
    void multPntMatrix(const PointType& source, PointType& result) const;
    void multPntFullMatrix(const PointType& source, PointType& result) const;

    // == Inverse, transpose, comparison; true if regular, the inverse of a singular matrix is the
    // identity

    bool inverse(TransformationMatrix& result) const;

    bool invert() { return inverse(*this); }

    bool invertFrom(const TransformationMatrix& source) { return source.inverse(*this); }

    bool transposed(TransformationMatrix& result) const;

    bool transpose() { return transposed(*this); }

    bool transposeFrom(const TransformationMatrix& source) { return source.transposed(*this); }

    /// Determinant of all 16 elements, and of the 3x3.
    ValueT det() const;
    ValueT det3() const;

    constexpr bool equals(const TransformationMatrix& other, ValueT tolerance) const
    {
        return columns[0].equals(other[0], tolerance) && columns[1].equals(other[1], tolerance) &&
            columns[2].equals(other[2], tolerance) && columns[3].equals(other[3], tolerance);
    }

    constexpr bool operator==(const TransformationMatrix& other) const
    {
        return equals(other, ValueT(Eps));
    }

    constexpr bool operator!=(const TransformationMatrix& other) const { return !(*this == other); }

private:
    constexpr ColumnType combined(ValueT x, ValueT y, ValueT z, ValueT w) const
    {
        ColumnType result;
        for (UInt32 i = 0; i < 4; ++i) {
            result[i] =
                columns[0][i] * x + columns[1][i] * y + columns[2][i] * z + columns[3][i] * w;
        }
        return result;
    }

    ColumnType rowCombined(ValueT x, ValueT y, ValueT z, ValueT w) const;

    static constexpr TransformationMatrix product(const TransformationMatrix& a,
                                                  const TransformationMatrix& b)
    {
        TransformationMatrix result;
        for (UInt32 i = 0; i < 4; ++i) {
            result[i] = a.combined(b[i][0], b[i][1], b[i][2], b[i][3]);
        }
        return result;
    }

    ColumnType columns[4] = { ColumnType(1, 0, 0, 0), ColumnType(0, 1, 0, 0),
                              ColumnType(0, 0, 1, 0), ColumnType(0, 0, 0, 1) };
};

using Matrix = TransformationMatrix<Real32>;
using Matrix4f = TransformationMatrix<Real32>;
using Matrix4d = TransformationMatrix<Real64>;

}  // namespace osg
