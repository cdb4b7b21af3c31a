// SPDX-License-Identifier: MIT
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGQuaternion.h>

#include "MatrixDecomposition.h"
#include <Eigen/LU>

namespace osg {

namespace {

template <class ValueT>
Eigen::Matrix4d toEigen(const TransformationMatrix<ValueT>& m)
{
    return Eigen::Map<const Eigen::Matrix<ValueT, 4, 4>>(m.getValues()).template cast<Real64>();
}

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

    detail::PolarParts parts;
    if (!detail::decomposePolar(toEigen(*this).template topLeftCorner<3, 3>(), parts)) {
        return;
    }
    TransformationMatrix turn;
    TransformationMatrix axes;
    for (UInt32 i = 0; i < 3; ++i) {
        scale[i] = static_cast<ValueT>(parts.scale[i]);
        for (UInt32 j = 0; j < 3; ++j) {
            turn[j][i] = static_cast<ValueT>(parts.rotation(i, j));
            axes[j][i] = static_cast<ValueT>(parts.axes(j, i));
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
    const Eigen::Matrix4d matrix = toEigen(*this);
    const Real64 determinant = matrix.determinant();
    if (determinant == 0. || !std::isfinite(determinant)) {
        result.setIdentity();
        return false;
    }
    Eigen::Map<Eigen::Matrix<ValueT, 4, 4>>(result.getValues()) =
        matrix.inverse().template cast<ValueT>();
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
    return static_cast<ValueT>(toEigen(*this).determinant());
}

template <class ValueT>
ValueT TransformationMatrix<ValueT>::det3() const
{
    return VectorType(columns[0]).cross(VectorType(columns[1])).dot(VectorType(columns[2]));
}

template class TransformationMatrix<Real32>;
template class TransformationMatrix<Real64>;

}  // namespace osg
