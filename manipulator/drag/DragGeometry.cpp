// SPDX-License-Identifier: MIT
#include "manipulator/drag/DragGeometry.h"

#include <algorithm>
#include <cmath>

namespace nbec::manipulator {

namespace {

constexpr float kShortest = 1e-6F;
/// Greatest tilt in which a ring is dragged: cosine of 40 degrees.
constexpr double kGreatestTiltCosine = 0.7660444431189780;
constexpr double kGreatestTilt = 0.6981317007977318;

/// Any unit vector at right angles to a unit vector.
osg::Vec3f anyPerpendicular(const osg::Vec3f& axis)
{
    const osg::Vec3f other =
        std::abs(axis.x()) < 0.5F ? osg::Vec3f(1.0F, 0.0F, 0.0F) : osg::Vec3f(0.0F, 1.0F, 0.0F);
    osg::Vec3f result = axis.cross(other);
    result.normalize();
    return result;
}

double angleOfCosine(double cosine)
{
    return std::acos(std::clamp(cosine, -1.0, 1.0));
}

/// Turns two axes of a frame in their plane: first towards second by an angle.
void turn(osg::Vec3f& first, osg::Vec3f& second, double angle)
{
    const auto cosine = static_cast<float>(std::cos(angle));
    const auto sine = static_cast<float>(std::sin(angle));
    const osg::Vec3f turned = first * cosine + second * sine;
    second = second * cosine - first * sine;
    first = turned;
}

/// Turns a ring's frame until it is tilted by no more than the greatest tilt.
void faceViewer(RingFrame& frame, const osg::Vec3f& towardsNormal)
{
    const double alongNormal = frame.normal.dot(towardsNormal);
    const double alongRadial = frame.radial.dot(towardsNormal);
    const double alongTangent = frame.tangent.dot(towardsNormal);
    const double across = std::hypot(alongNormal, alongRadial);
    const double reachable = std::min(across, kGreatestTiltCosine);
    if (across > kShortest) {
        const double tilt = angleOfCosine(alongNormal / across);
        const double angle = tilt - angleOfCosine(reachable / across);
        turn(frame.normal, frame.radial, alongRadial < 0.0 ? -angle : angle);
    }
    if (across < kGreatestTiltCosine) {
        const double angle = angleOfCosine(across) - kGreatestTilt;
        turn(frame.normal, frame.tangent, alongTangent < 0.0 ? -angle : angle);
    }
}

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
    if (!track.start) {
        track.start = hit;
    }
    return hit;
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

double RingFrame::angleOf(const osg::Pnt3f& point) const
{
    const osg::Vec3f arm = point - center;
    return std::atan2(static_cast<double>(arm.dot(tangent)), static_cast<double>(arm.dot(radial)));
}

RingFrame ringDragFrame(const osg::Pnt3f& center, const osg::Vec3f& axis, const osg::Pnt3f& grabbed,
                        const osg::Vec3f& view)
{
    RingFrame frame;
    frame.normal = axis;
    const osg::Vec3f arm = grabbed - center;
    osg::Vec3f radial = arm - axis * arm.dot(axis);
    const float radius = radial.length();
    frame.radial = radius < kShortest ? anyPerpendicular(axis) : radial * (1.0F / radius);
    frame.tangent = axis.cross(frame.radial);
    const osg::Pnt3f held = center + frame.radial * radius;
    const float cosine = axis.dot(view);
    if (std::abs(cosine) < kGreatestTiltCosine) {
        faceViewer(frame, cosine < 0.0F ? -view : view);
    }
    frame.center = held - frame.radial * radius;
    return frame;
}

osg::Matrix ringMatrix(const RingFrame& ring, osg::UInt32 axis)
{
    osg::Matrix frame;
    const auto setColumn = [&frame](osg::UInt32 index, const osg::Vec3f& value) {
        frame[index % 3] = osg::Vec4f(value.x(), value.y(), value.z(), 0.0F);
    };
    setColumn(axis, ring.normal);
    setColumn(axis + 1, ring.radial);
    setColumn(axis + 2, ring.tangent);
    frame.setTranslate(ring.center);
    return frame;
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
