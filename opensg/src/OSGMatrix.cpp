// SPDX-License-Identifier: MIT
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGQuaternion.h>

#include "MatrixDecomposition.h"

namespace osg {

namespace {

/// Determinants of the 2x2 blocks in the upper two and the lower two rows, for all pairs of
/// columns.
struct Minors
{
    template <class ValueT>
    explicit Minors(const TransformationMatrix<ValueT>& m)
    {
        constexpr UInt32 kPairs[6][2] = {
            { 0, 1 }, { 0, 2 }, { 0, 3 }, { 1, 2 }, { 1, 3 }, { 2, 3 }
        };
        for (UInt32 i = 0; i < 6; ++i) {
            const UInt32 a = kPairs[i][0];
            const UInt32 b = kPairs[i][1];
            upper[i] = Real64(m[a][0]) * m[b][1] - Real64(m[b][0]) * m[a][1];
            lower[i] = Real64(m[a][2]) * m[b][3] - Real64(m[b][2]) * m[a][3];
        }
    }

    Real64 determinant() const
    {
        return upper[0] * lower[5] - upper[1] * lower[4] + upper[2] * lower[3] +
            upper[3] * lower[2] - upper[4] * lower[1] + upper[5] * lower[0];
    }

    Real64 upper[6];
    Real64 lower[6];
};

}  // namespace

template <class ValueT>
void TransformationMatrix<ValueT>::setValue(ValueT m00, ValueT m01, ValueT m02, ValueT m03,
                                            ValueT m10, ValueT m11, ValueT m12, ValueT m13,
                                            ValueT m20, ValueT m21, ValueT m22, ValueT m23,
                                            ValueT m30, ValueT m31, ValueT m32, ValueT m33)
{
    *this = TransformationMatrix(m00, m01, m02, m03, m10, m11, m12, m13, m20, m21, m22, m23, m30,
                                 m31, m32, m33);
}

template <class ValueT>
void TransformationMatrix<ValueT>::setValueTransposed(
    ValueT m00, ValueT m10, ValueT m20, ValueT m30, ValueT m01, ValueT m11, ValueT m21, ValueT m31,
    ValueT m02, ValueT m12, ValueT m22, ValueT m32, ValueT m03, ValueT m13, ValueT m23, ValueT m33)
{
    setValue(m00, m01, m02, m03, m10, m11, m12, m13, m20, m21, m22, m23, m30, m31, m32, m33);
}

template <class ValueT>
void TransformationMatrix<ValueT>::setRotate(const QuaternionType& rotation)
{
    rotation.getValuesOnly(*this);
}

template <class ValueT>
void TransformationMatrix<ValueT>::setTransform(const QuaternionType& rotation)
{
    rotation.getValue(*this);
}

template <class ValueT>
void TransformationMatrix<ValueT>::setTransform(const VectorType& translation,
                                                const QuaternionType& rotation)
{
    rotation.getValue(*this);
    setTranslate(translation);
}

template <class ValueT>
void TransformationMatrix<ValueT>::setTransform(const VectorType& translation,
                                                const QuaternionType& rotation,
                                                const VectorType& scale)
{
    setTransform(translation, rotation);
    for (UInt32 i = 0; i < 3; ++i) {
        columns[i] *= scale[i];
    }
}

template <class ValueT>
void TransformationMatrix<ValueT>::setTransform(const VectorType& translation,
                                                const QuaternionType& rotation,
                                                const VectorType& scale,
                                                const QuaternionType& scaleOrientation)
{
    QuaternionType turned(rotation);
    turned.mult(scaleOrientation);
    setTransform(translation, turned, scale);
    TransformationMatrix back;
    back.setTransform(scaleOrientation.inverse());
    mult(back);
}

template <class ValueT>
void TransformationMatrix<ValueT>::setTransform(const VectorType& translation,
                                                const QuaternionType& rotation,
                                                const VectorType& scale,
                                                const QuaternionType& scaleOrientation,
                                                const VectorType& center)
{
    setTransform(translation, rotation, scale, scaleOrientation);
    VectorType moved;
    multMatrixVec(center, moved);
    setTranslate(translation + center - moved);
}

template <class ValueT>
void TransformationMatrix<ValueT>::getTransform(VectorType& translation, QuaternionType& rotation,
                                                VectorType& scale,
                                                QuaternionType& scaleOrientation) const
{
    translation.setValue(columns[3]);
    rotation.setIdentity();
    scaleOrientation.setIdentity();

    detail::Linear linear;
    for (UInt32 i = 0; i < 3; ++i) {
        for (UInt32 j = 0; j < 3; ++j) {
            linear.element[i][j] = columns[j][i];
        }
    }
    detail::PolarParts parts;
    if (!detail::decomposePolar(linear, parts)) {
        return;
    }
    TransformationMatrix turn;
    TransformationMatrix axes;
    for (UInt32 i = 0; i < 3; ++i) {
        scale[i] = static_cast<ValueT>(parts.scale[i]);
        for (UInt32 j = 0; j < 3; ++j) {
            turn[j][i] = static_cast<ValueT>(parts.rotation.element[i][j]);
            axes[j][i] = static_cast<ValueT>(parts.axes.element[j][i]);
        }
    }
    rotation.setValue(turn);
    scaleOrientation.setValue(axes);
}

template <class ValueT>
void TransformationMatrix<ValueT>::getTransform(VectorType& translation, QuaternionType& rotation,
                                                VectorType& scale, QuaternionType& scaleOrientation,
                                                const VectorType& center) const
{
    getTransform(translation, rotation, scale, scaleOrientation);
    VectorType moved;
    multMatrixVec(center, moved);
    translation += moved - center;
}

template <class ValueT>
typename TransformationMatrix<ValueT>::ColumnType
TransformationMatrix<ValueT>::rowCombined(ValueT x, ValueT y, ValueT z, ValueT w) const
{
    const ColumnType row(x, y, z, w);
    return ColumnType(row.dot(columns[0]), row.dot(columns[1]), row.dot(columns[2]),
                      row.dot(columns[3]));
}

template <class ValueT>
void TransformationMatrix<ValueT>::multVecMatrix(const VectorType& source, VectorType& result) const
{
    result = VectorType(rowCombined(source[0], source[1], source[2], 0));
}

template <class ValueT>
void TransformationMatrix<ValueT>::multPntMatrix(const PointType& source, PointType& result) const
{
    result = PointType(rowCombined(source[0], source[1], source[2], 1));
}

template <class ValueT>
void TransformationMatrix<ValueT>::multPntFullMatrix(const PointType& source,
                                                     PointType& result) const
{
    const ColumnType full = rowCombined(source[0], source[1], source[2], 1);
    result = full[3] == 0 ? PointType() : PointType(full * (1 / full[3]));
}

template <class ValueT>
bool TransformationMatrix<ValueT>::inverse(TransformationMatrix& result) const
{
    const Minors minors(*this);
    const Real64 determinant = minors.determinant();
    if (determinant == 0. || !std::isfinite(determinant)) {
        result.setIdentity();
        return false;
    }

    const auto m = [this](UInt32 row, UInt32 column) { return Real64(columns[column][row]); };
    const Real64* const s = minors.upper;
    const Real64* const c = minors.lower;
    const Real64 adjugate[4][4] = {
        { m(1, 1) * c[5] - m(1, 2) * c[4] + m(1, 3) * c[3],
          -m(0, 1) * c[5] + m(0, 2) * c[4] - m(0, 3) * c[3],
          m(3, 1) * s[5] - m(3, 2) * s[4] + m(3, 3) * s[3],
          -m(2, 1) * s[5] + m(2, 2) * s[4] - m(2, 3) * s[3] },
        { -m(1, 0) * c[5] + m(1, 2) * c[2] - m(1, 3) * c[1],
          m(0, 0) * c[5] - m(0, 2) * c[2] + m(0, 3) * c[1],
          -m(3, 0) * s[5] + m(3, 2) * s[2] - m(3, 3) * s[1],
          m(2, 0) * s[5] - m(2, 2) * s[2] + m(2, 3) * s[1] },
        { m(1, 0) * c[4] - m(1, 1) * c[2] + m(1, 3) * c[0],
          -m(0, 0) * c[4] + m(0, 1) * c[2] - m(0, 3) * c[0],
          m(3, 0) * s[4] - m(3, 1) * s[2] + m(3, 3) * s[0],
          -m(2, 0) * s[4] + m(2, 1) * s[2] - m(2, 3) * s[0] },
        { -m(1, 0) * c[3] + m(1, 1) * c[1] - m(1, 2) * c[0],
          m(0, 0) * c[3] - m(0, 1) * c[1] + m(0, 2) * c[0],
          -m(3, 0) * s[3] + m(3, 1) * s[1] - m(3, 2) * s[0],
          m(2, 0) * s[3] - m(2, 1) * s[1] + m(2, 2) * s[0] },
    };
    for (UInt32 row = 0; row < 4; ++row) {
        for (UInt32 column = 0; column < 4; ++column) {
            result[column][row] = static_cast<ValueT>(adjugate[row][column] / determinant);
        }
    }
    return true;
}

template <class ValueT>
bool TransformationMatrix<ValueT>::transposed(TransformationMatrix& result) const
{
    const TransformationMatrix source(*this);
    result.setValue(source.getValues(), false);
    return true;
}

template <class ValueT>
ValueT TransformationMatrix<ValueT>::det() const
{
    return static_cast<ValueT>(Minors(*this).determinant());
}

template <class ValueT>
ValueT TransformationMatrix<ValueT>::det3() const
{
    return VectorType(columns[0]).cross(VectorType(columns[1])).dot(VectorType(columns[2]));
}

template class TransformationMatrix<Real32>;
template class TransformationMatrix<Real64>;

}  // namespace osg
