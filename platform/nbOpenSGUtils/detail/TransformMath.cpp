// SPDX-License-Identifier: MIT
#include "TransformMath.h"

#include <nbOpenSGExt/nbEulerRotation.h>

#include <cmath>

namespace nbTransformMath {

namespace {

constexpr double kSingular = 1e-12;

Vec3d scaledBy(const nbTransformState& state, const Vec3d& v)
{
    return { v[0] * state.scale[0], v[1] * state.scale[1], v[2] * state.scale[2] };
}

double rowTimes(const std::array<double, 3>& row, const Vec3d& v)
{
    return row[0] * v[0] + row[1] * v[1] + row[2] * v[2];
}

}  // namespace

Vec3d Matrix3d::operator*(const Vec3d& v) const
{
    return { rowTimes(rows[0], v), rowTimes(rows[1], v), rowTimes(rows[2], v) };
}

Vec3d Matrix3d::transposedTimes(const Vec3d& v) const
{
    return { rows[0][0] * v[0] + rows[1][0] * v[1] + rows[2][0] * v[2],
             rows[0][1] * v[0] + rows[1][1] * v[1] + rows[2][1] * v[2],
             rows[0][2] * v[0] + rows[1][2] * v[1] + rows[2][2] * v[2] };
}

Vec3d toDouble(const osg::Vec3f& v)
{
    return { v[0], v[1], v[2] };
}

osg::Vec3f toFloat(const Vec3d& v)
{
    return { static_cast<osg::Real32>(v[0]), static_cast<osg::Real32>(v[1]),
             static_cast<osg::Real32>(v[2]) };
}

bool isFinite(const osg::Vec3f& v)
{
    return std::isfinite(v[0]) && std::isfinite(v[1]) && std::isfinite(v[2]);
}

bool isSame(const osg::Vec3f& a, const osg::Vec3f& b)
{
    return a[0] == b[0] && a[1] == b[1] && a[2] == b[2];
}

osg::Quaterniond pivotRotation(const nbTransformState& state)
{
    // Rounded to float as in the core's matrix.
    return nbRotationMath::toDouble(
        state.rotationMode == osg::Transform3D::QuaternionMode
            ? state.rotationQuaternion
            : nbEulerRotation::toQuaternion(state.eulerRotation, state.eulerRotationOrder));
}

Matrix3d wholeRotation(const nbTransformState& state)
{
    return { nbRotationMath::rotationRows(nbRotationMath::product(
        pivotRotation(state), nbRotationMath::toDouble(state.rotationOrientation))) };
}

Vec3d rotatePivotPlace(const nbTransformState& state)
{
    return toDouble(state.translation) + toDouble(state.rotatePivot);
}

Vec3d scalePivotPlace(const nbTransformState& state)
{
    return rotatePivotPlace(state) +
        wholeRotation(state) * (toDouble(state.scalePivot) - toDouble(state.rotatePivot));
}

MovedPivot moveRotatePivot(const nbTransformState& state, const Vec3d& delta)
{
    const Vec3d pivotDelta = wholeRotation(state).transposedTimes(delta);
    return { toDouble(state.translation) + (delta - pivotDelta),
             toDouble(state.rotatePivot) + pivotDelta };
}

MovedPivot moveScalePivot(const nbTransformState& state, const Vec3d& delta)
{
    // o stays: the pivot's place moves by R S times the change of the pivot.
    Vec3d pivotDelta = wholeRotation(state).transposedTimes(delta);
    for (osg::UInt32 i = 0; i < 3; ++i) {
        const double factor = state.scale[i];
        pivotDelta[i] = factor == 0.0 ? 0.0 : pivotDelta[i] / factor;
    }
    return { toDouble(state.translation) + scalePivotCompensation(state, pivotDelta),
             toDouble(state.scalePivot) + pivotDelta };
}

Vec3d rotatePivotCompensation(const nbTransformState& state, const Vec3d& pivotDelta)
{
    return wholeRotation(state) * pivotDelta - pivotDelta;
}

Vec3d scalePivotCompensation(const nbTransformState& state, const Vec3d& pivotDelta)
{
    return wholeRotation(state) * (scaledBy(state, pivotDelta) - pivotDelta);
}

Frame Frame::of(const osg::Matrix& matrix)
{
    Frame frame;
    std::array<Vec3d, 3> columns {};
    double lengths = 1.0;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        columns[i] = Vec3d(matrix[i][0], matrix[i][1], matrix[i][2]);
        lengths *= columns[i].length();
        for (osg::UInt32 row = 0; row < 3; ++row) {
            frame.linear.rows[row][i] = columns[i][row];
        }
        frame.origin[i] = matrix[3][i];
    }
    const std::array<Vec3d, 3> normals { columns[1].cross(columns[2]), columns[2].cross(columns[0]),
                                         columns[0].cross(columns[1]) };
    const double determinant = columns[0].dot(normals[0]);
    frame.invertible = std::isfinite(determinant) && std::fabs(determinant) > kSingular * lengths;
    for (osg::UInt32 row = 0; row < 3 && frame.invertible; ++row) {
        for (osg::UInt32 column = 0; column < 3; ++column) {
            frame.inverse.rows[row][column] = normals[row][column] / determinant;
        }
    }
    return frame;
}

}  // namespace nbTransformMath
