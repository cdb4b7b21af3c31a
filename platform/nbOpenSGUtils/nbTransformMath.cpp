// SPDX-License-Identifier: MIT
#include "nbTransformMath.h"

#include <array>
#include <cmath>

namespace nbTransformMath {

namespace {

constexpr double kSingular = 1e-12;

/// S v
Vec3d scaledBy(const nbTransformState& state, const Vec3d& v)
{
    const Vec3d shear = Vec3d(state.shear);
    return { (v[0] + shear[0] * v[1] + shear[1] * v[2]) * state.scale[0],
             (v[1] + shear[2] * v[2]) * state.scale[1], v[2] * state.scale[2] };
}

/// What S takes to v, 0 along an axis of scale 0.
Vec3d unscaledBy(const nbTransformState& state, const Vec3d& v)
{
    const Vec3d shear = Vec3d(state.shear);
    Vec3d result;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        const double factor = state.scale[i];
        result[i] = factor == 0.0 ? 0.0 : v[i] / factor;
    }
    result[1] -= shear[2] * result[2];
    result[0] -= shear[0] * result[1] + shear[1] * result[2];
    return result;
}

}  // namespace

Vec3d rotatePivotPlace(const nbTransformState& state, const Matrix3d&)
{
    return Vec3d(state.translation) + Vec3d(state.rotatePivot);
}

Vec3d scalePivotPlace(const nbTransformState& state, const Matrix3d& rotation)
{
    return rotatePivotPlace(state, rotation) +
        rotation * (Vec3d(state.scalePivot) - Vec3d(state.rotatePivot));
}

MovedPivots moveRotatePivot(const nbTransformState& state, const Matrix3d& rotation,
                            const Vec3d& delta)
{
    const Vec3d pivotDelta = rotation.transposedTimes(delta);
    return { Vec3d(state.translation) + (delta - pivotDelta), Vec3d(state.rotatePivot) + pivotDelta,
             Vec3d(state.scalePivot) };
}

MovedPivots moveScalePivot(const nbTransformState& state, const Matrix3d& rotation,
                           const Vec3d& delta)
{
    // The place moves by R S times the change of s. With p changed by (1 - S) times it and t by the
    // opposite, t + p and o stay.
    const Vec3d pivotDelta = unscaledBy(state, rotation.transposedTimes(delta));
    const Vec3d shift = pivotDelta - scaledBy(state, pivotDelta);
    return { Vec3d(state.translation) - shift, Vec3d(state.rotatePivot) + shift,
             Vec3d(state.scalePivot) + pivotDelta };
}

Vec3d rotatePivotCompensation(const nbTransformState&, const Matrix3d& rotation,
                              const Vec3d& pivotDelta)
{
    return rotation * pivotDelta - pivotDelta;
}

Vec3d scalePivotCompensation(const nbTransformState& state, const Matrix3d& rotation,
                             const Vec3d& pivotDelta)
{
    return rotation * (scaledBy(state, pivotDelta) - pivotDelta);
}

Frame Frame::of(const osg::Matrix& matrix)
{
    Frame frame;
    frame.isIdentity = matrix == osg::Matrix::identity();
    if (frame.isIdentity) {
        return frame;
    }
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
