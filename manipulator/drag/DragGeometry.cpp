// SPDX-License-Identifier: MIT
#include "manipulator/drag/DragGeometry.h"

#include <cmath>

namespace nbec::manipulator {

namespace {

constexpr float kShortest = 1e-6F;

}  // namespace

osg::Vec3f column(const osg::Matrix& matrix, osg::UInt32 index)
{
    return osg::Vec3f(matrix[index][0], matrix[index][1], matrix[index][2]);
}

osg::Matrix inverted(const osg::Matrix& matrix)
{
    osg::Matrix result;
    matrix.inverse(result);
    return result;
}

osg::Pnt3f mapped(const osg::Matrix& matrix, osg::Pnt3f point)
{
    matrix.multMatrixPnt(point);
    return point;
}

osg::Vec3f rotated(const osg::Quaternion& rotation, osg::Vec3f vector)
{
    rotation.multVec(vector, vector);
    return vector;
}

osg::Vec3f unitVector(const osg::Vec3f& vector)
{
    const double x = vector.x();
    const double y = vector.y();
    const double z = vector.z();
    const double length = std::sqrt(x * x + y * y + z * z);
    return length > 0.0 ? osg::Vec3f(static_cast<float>(x / length), static_cast<float>(y / length),
                                     static_cast<float>(z / length))
                        : osg::Vec3f();
}

osg::Vec3f masked(const osg::Vec3f& vector, unsigned axes)
{
    osg::Vec3f result;
    for (osg::UInt32 i = 0; i < 3; ++i) {
        result[i] = hasAxis(axes, i) ? vector[i] : 0.0F;
    }
    return result;
}

bool intersectPlane(const osg::Plane& plane, const osg::Line& ray, osg::Pnt3f& point)
{
    if (plane.getNormal().length() < kShortest ||
        std::abs(plane.getNormal().dot(ray.getDirection())) < kShortest) {
        return false;
    }
    return plane.intersect(ray, point);
}

std::optional<osg::Pnt3f> followPlane(const osg::Plane& plane, const std::optional<osg::Line>& ray,
                                      DragTrack& track)
{
    osg::Pnt3f hit;
    if (!ray || !intersectPlane(plane, *ray, hit)) {
        return std::nullopt;
    }
    // Rays through one pixel differ by their rounding while near and far follow the scene.
    const bool isBack = track.start &&
        (hit - *track.start).length() < kShortest * (hit - ray->getPosition()).length();
    track.start = track.start ? track.start : hit;
    return isBack ? *track.start : hit;
}

osg::Vec3f axisPlaneNormal(const osg::Vec3f& axis, const osg::Vec3f& view)
{
    const osg::Vec3f normal = axis.cross(view.cross(axis));
    const float length = normal.length();
    return length < kShortest ? osg::Vec3f() : normal * (1.0F / length);
}

osg::Matrix orthonormalised(const osg::Matrix& matrix)
{
    const osg::Vec3f x = unitVector(column(matrix, 0));
    osg::Vec3f z = x.cross(unitVector(column(matrix, 1)));
    const float sine = z.length();
    if (!(sine >= kShortest)) {
        return osg::Matrix::identity();
    }
    z *= 1.0F / sine;
    osg::Matrix result;
    result.setValue(x, z.cross(x), z);
    result[3][3] = 1.0F;
    return result;
}

double snapped(double value, double step)
{
    if (value == 0.0 || step == 0.0) {
        return value;
    }
    const double steps = value / step;
    return step * (value > 0.0 ? std::floor(steps + 0.5) : std::ceil(steps - 0.5));
}

}  // namespace nbec::manipulator
