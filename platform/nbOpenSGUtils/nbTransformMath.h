// SPDX-License-Identifier: MIT
/// @file
/// Arithmetic of a Transform3D's pivots, in double. Its matrix is x -> o + R S x with the whole
/// rotation R and o = t + p + R (s - p - S s); t translation, p rotate pivot, s scale pivot, S
/// scale after shear. Functions take R with the rest, since it is costly to work out. The object
/// stays where it is as long as R, S and o stay.
#pragma once

#include <nbOpenSGExt/nbRotationMath.h>
#include <nbOpenSGUtils/nbTransformState.h>

#include <OpenSG/OSGMatrix.h>

namespace nbTransformMath {

using osg::Vec3d;

/// Rows as written on paper.
struct Matrix3d
{
    nbRotationMath::Rows rows { { { 1, 0, 0 }, { 0, 1, 0 }, { 0, 0, 1 } } };

    Vec3d operator*(const Vec3d& v) const
    {
        return { rows[0][0] * v[0] + rows[0][1] * v[1] + rows[0][2] * v[2],
                 rows[1][0] * v[0] + rows[1][1] * v[1] + rows[1][2] * v[2],
                 rows[2][0] * v[0] + rows[2][1] * v[1] + rows[2][2] * v[2] };
    }

    /// The transposed matrix times v; of a rotation the inverse.
    Vec3d transposedTimes(const Vec3d& v) const
    {
        return { rows[0][0] * v[0] + rows[1][0] * v[1] + rows[2][0] * v[2],
                 rows[0][1] * v[0] + rows[1][1] * v[1] + rows[2][1] * v[2],
                 rows[0][2] * v[0] + rows[1][2] * v[1] + rows[2][2] * v[2] };
    }
};

/// As nbIsFinite, but without a branch for each number, which drags of many nodes feel.
inline bool isFinite(const osg::Vec3f& v)
{
    // Only what is finite is nothing when taken from itself.
    return (v[0] - v[0]) + (v[1] - v[1]) + (v[2] - v[2]) == 0.0F;
}

/// The whole rotation, with the orientation.
inline Matrix3d wholeRotation(const osg::Transform3D& core)
{
    return { core.getWholeRotation() };
}

/// Where the rotate pivot is in the parent's frame: t + p.
Vec3d rotatePivotPlace(const nbTransformState& state, const Matrix3d& rotation);

/// Where the scale pivot is in the parent's frame: t + p + R (s - p).
Vec3d scalePivotPlace(const nbTransformState& state, const Matrix3d& rotation);

/// Pivots and the translation that belongs to them.
struct MovedPivots
{
    Vec3d translation;
    Vec3d rotatePivot;
    Vec3d scalePivot;
};

/// The rotate pivot's place moved by a vector of the parent's frame; the object and the scale
/// pivot's place stay.
MovedPivots moveRotatePivot(const nbTransformState& state, const Matrix3d& rotation,
                            const Vec3d& delta);

/// The scale pivot's place moved, except along an axis of scale 0; the object and the rotate
/// pivot's place stay.
MovedPivots moveScalePivot(const nbTransformState& state, const Matrix3d& rotation,
                           const Vec3d& delta);

/// What the translation gains when a pivot changes by a vector of the object's frame and the object
/// stays.
Vec3d rotatePivotCompensation(const nbTransformState& state, const Matrix3d& rotation,
                              const Vec3d& pivotDelta);
Vec3d scalePivotCompensation(const nbTransformState& state, const Matrix3d& rotation,
                             const Vec3d& pivotDelta);

/// An affine frame with its inverse.
struct Frame
{
    Matrix3d linear;
    Matrix3d inverse;
    Vec3d origin { 0.0, 0.0, 0.0 };
    bool invertible = true;
    bool isIdentity = true;

    Vec3d toOuter(const Vec3d& point) const { return linear * point + origin; }

    Vec3d toInner(const Vec3d& point) const { return inverse * (point - origin); }

    /// Not invertible: a determinant within 1e-12 of 0, measured by the lengths of the columns.
    static Frame of(const osg::Matrix& matrix);
};

}  // namespace nbTransformMath
