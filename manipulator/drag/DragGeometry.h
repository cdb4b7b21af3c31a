// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/drag/DragParameters.h"
#include "manipulator/nbManipulatorExport.h"

#include <OpenSG/OSGLine.h>
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGPlane.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

#include <optional>

namespace nbec::manipulator {

constexpr double kDegPerRad = 180.0 / 3.14159265358979323846;

/// A column of a matrix without its last row: the direction of an axis, or (index 3) the place of
/// the origin.
NB_MANIPULATOR_API osg::Vec3f column(const osg::Matrix& matrix, osg::UInt32 index);

/// The inverse; the identity for a singular matrix.
NB_MANIPULATOR_API osg::Matrix inverted(const osg::Matrix& matrix);

/// A point under an affine matrix.
NB_MANIPULATOR_API osg::Pnt3f mapped(const osg::Matrix& matrix, osg::Pnt3f point);

/// A vector under a rotation.
NB_MANIPULATOR_API osg::Vec3f rotated(const osg::Quaternion& rotation, osg::Vec3f vector);

/// The vector at length 1, however short it is; zero stays.
NB_MANIPULATOR_API osg::Vec3f unitVector(const osg::Vec3f& vector);

/// A vector without its components along axes that are not in a set, see axisBit().
NB_MANIPULATOR_API osg::Vec3f masked(const osg::Vec3f& vector, unsigned axes);

/// Where a ray meets a plane in front of its start.
/// @return false, and the point untouched, for a plane whose normal is shorter than 1e-6 (none is
///         chosen), a ray with |normal . direction| < 1e-6, or a plane behind the ray's start
NB_MANIPULATOR_API bool intersectPlane(const osg::Plane& plane, const osg::Line& ray,
                                       osg::Pnt3f& point);

/// Where the pointer of a drag meets the drag's plane. Where it meets it first, the drag starts,
/// which the track keeps.
/// @param ray  of the pointer; none where a view has no area
/// @return nothing, and the track untouched, for a ray that misses, see intersectPlane()
NB_MANIPULATOR_API std::optional<osg::Pnt3f>
followPlane(const osg::Plane& plane, const std::optional<osg::Line>& ray, DragTrack& track);

/// Normal of the plane that contains an axis and faces the viewer as well as it can:
/// axis x (view x axis), unit length; zero where the axis points at the viewer.
/// @param axis  unit length  @param view  direction of sight, unit length
NB_MANIPULATOR_API osg::Vec3f axisPlaneNormal(const osg::Vec3f& axis, const osg::Vec3f& view);

/// Columns of unit length, x in the direction of the matrix's first column, y in its plane with the
/// second, right-handed; scale, shear and mirroring are left out.
/// @return the identity if one of the two is zero or they are parallel, sine below 1e-6
NB_MANIPULATOR_API osg::Matrix orthonormalised(const osg::Matrix& matrix);

/// Rounds a value half away from zero to a multiple of a step: step * floor(value / step + 0.5) for
/// a positive value, step * ceil(value / step - 0.5) for a negative one. Zero, and any value with a
/// step of zero, stays.
NB_MANIPULATOR_API double snapped(double value, double step);

}  // namespace nbec::manipulator
