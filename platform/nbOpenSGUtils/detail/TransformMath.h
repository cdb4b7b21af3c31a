// SPDX-License-Identifier: MIT
/// @file
/// Arithmetic of a Transform3D's pivots, in double. Its matrix is x -> o + R S x with the whole
/// rotation R and o = t + p + R (s - p - S s); t translation, p rotate pivot, s scale pivot, S
/// scale. The object stays where it is as long as R, S and o stay.
#pragma once

#include <nbOpenSGExt/detail/RotationMath.h>
#include <nbOpenSGUtils/nbTransformState.h>

#include <OpenSG/OSGMatrix.h>

namespace nbTransformMath {

using osg::Vec3d;

/// Rows as written on paper.
struct Matrix3d
{
    nbRotationMath::Rows rows { { { 1, 0, 0 }, { 0, 1, 0 }, { 0, 0, 1 } } };

    Vec3d operator*(const Vec3d& v) const;
    /// The transposed matrix times v; of a rotation the inverse.
    Vec3d transposedTimes(const Vec3d& v) const;
};

Vec3d toDouble(const osg::Vec3f& v);
osg::Vec3f toFloat(const Vec3d& v);
bool isFinite(const osg::Vec3f& v);

/// The three floats have the same values.
bool isSame(const osg::Vec3f& a, const osg::Vec3f& b);

/// R by angles or quaternion alone, without the orientation.
osg::Quaterniond pivotRotation(const nbTransformState& state);

/// The whole rotation, with the orientation.
Matrix3d wholeRotation(const nbTransformState& state);

/// Where the rotate pivot is in the parent's frame: t + p.
Vec3d rotatePivotPlace(const nbTransformState& state);

/// Where the scale pivot is in the parent's frame: t + p + R (s - p).
Vec3d scalePivotPlace(const nbTransformState& state);

/// A pivot and the translation that belongs to it.
struct MovedPivot
{
    Vec3d translation;
    Vec3d pivot;
};

/// The rotate pivot moved by a vector of the parent's frame, the object left where it is.
MovedPivot moveRotatePivot(const nbTransformState& state, const Vec3d& delta);

/// The same for the scale pivot; along an axis of scale 0 it stays.
MovedPivot moveScalePivot(const nbTransformState& state, const Vec3d& delta);

/// What the translation gains when a pivot changes by a vector of the object's frame and the object
/// stays.
Vec3d rotatePivotCompensation(const nbTransformState& state, const Vec3d& pivotDelta);
Vec3d scalePivotCompensation(const nbTransformState& state, const Vec3d& pivotDelta);

/// An affine frame with its inverse.
struct Frame
{
    Matrix3d linear;
    Matrix3d inverse;
    Vec3d origin { 0.0, 0.0, 0.0 };
    bool invertible = true;

    Vec3d toOuter(const Vec3d& point) const { return linear * point + origin; }

    Vec3d toInner(const Vec3d& point) const { return inverse * (point - origin); }

    /// Not invertible: a determinant within 1e-12 of 0, measured by the lengths of the columns.
    static Frame of(const osg::Matrix& matrix);
};

}  // namespace nbTransformMath
