// SPDX-License-Identifier: MIT
#include "nbEulerRotation.h"

#include <OpenSG/OSGMatrix.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>

namespace {

constexpr double kRadPerDeg = 3.14159265358979323846 / 180.0;
constexpr double kGimbalCosine = 1e-6;

/// The three axes in the order of turning; sign is +1 for a cyclic order, -1 for the others.
struct AxisOrder
{
    std::array<int, 3> axes { 0, 1, 2 };
    double sign = 1.0;
};

AxisOrder parseOrder(const std::string& order)
{
    AxisOrder result;
    if (order.size() != 3) {
        return result;
    }
    std::array<int, 3> axes {};
    for (std::size_t i = 0; i < axes.size(); ++i) {
        axes[i] = std::tolower(static_cast<unsigned char>(order[i])) - 'x';
    }
    std::array<int, 3> sorted = axes;
    std::sort(sorted.begin(), sorted.end());
    if (sorted != std::array<int, 3> { 0, 1, 2 }) {
        return result;
    }
    result.axes = axes;
    result.sign = (axes[1] - axes[0] + 3) % 3 == 1 ? 1.0 : -1.0;
    return result;
}

struct DoubleQuaternion
{
    std::array<double, 3> xyz { 0.0, 0.0, 0.0 };
    double w = 1.0;
};

/// a * b: b turns first.
DoubleQuaternion product(const DoubleQuaternion& a, const DoubleQuaternion& b)
{
    DoubleQuaternion result;
    for (std::size_t i = 0; i < 3; ++i) {
        const std::size_t j = (i + 1) % 3;
        const std::size_t k = (i + 2) % 3;
        result.xyz[i] = a.w * b.xyz[i] + a.xyz[i] * b.w + a.xyz[j] * b.xyz[k] - a.xyz[k] * b.xyz[j];
    }
    result.w = a.w * b.w - a.xyz[0] * b.xyz[0] - a.xyz[1] * b.xyz[1] - a.xyz[2] * b.xyz[2];
    return result;
}

using Rows = std::array<std::array<double, 3>, 3>;

/// Rotation matrix, rows as written on paper; a quaternion of another length is scaled to unit
/// first.
Rows rotationRows(const osg::Quaternion& q)
{
    const double x = q.x();
    const double y = q.y();
    const double z = q.z();
    const double w = q.w();
    const double lengthSquared = x * x + y * y + z * z + w * w;
    const double s = lengthSquared > 0.0 ? 2.0 / lengthSquared : 0.0;
    return { { { 1.0 - s * (y * y + z * z), s * (x * y - w * z), s * (x * z + w * y) },
               { s * (x * y + w * z), 1.0 - s * (x * x + z * z), s * (y * z - w * x) },
               { s * (x * z - w * y), s * (y * z + w * x), 1.0 - s * (x * x + y * y) } } };
}

}  // namespace

osg::Quaternion nbEulerRotation::toQuaternion(const osg::Vec3f& anglesDeg, const std::string& order)
{
    const AxisOrder parsed = parseOrder(order);
    DoubleQuaternion rotation;
    for (const int axis : parsed.axes) {
        const double half = 0.5 * kRadPerDeg * static_cast<double>(anglesDeg.getValues()[axis]);
        DoubleQuaternion step;
        step.xyz[static_cast<std::size_t>(axis)] = std::sin(half);
        step.w = std::cos(half);
        rotation = product(step, rotation);
    }
    osg::Quaternion result;
    result.setValueAsQuat(
        static_cast<osg::Real32>(rotation.xyz[0]), static_cast<osg::Real32>(rotation.xyz[1]),
        static_cast<osg::Real32>(rotation.xyz[2]), static_cast<osg::Real32>(rotation.w));
    return result;
}

osg::Vec3f nbEulerRotation::fromQuaternion(const osg::Quaternion& rotation,
                                           const std::string& order)
{
    // With R = Rk(c) Rj(b) Ri(a) and e = +-1 for the order's parity, the elements are
    // R_ki = -e sin b, R_kj = e cos b sin a, R_kk = cos b cos a, R_ji = e cos b sin c, R_ii = cos b
    // cos c.
    const AxisOrder parsed = parseOrder(order);
    const auto i = static_cast<std::size_t>(parsed.axes[0]);
    const auto j = static_cast<std::size_t>(parsed.axes[1]);
    const auto k = static_cast<std::size_t>(parsed.axes[2]);
    const double e = parsed.sign;
    const Rows r = rotationRows(rotation);
    const double cosine = std::hypot(r[i][i], r[j][i]);
    const bool locked = cosine < kGimbalCosine;
    const double first =
        locked ? std::atan2(-e * r[j][k], r[j][j]) : std::atan2(e * r[k][j], r[k][k]);
    const double middle = std::atan2(-e * r[k][i], cosine);
    const double last = locked ? 0.0 : std::atan2(e * r[j][i], r[i][i]);
    std::array<double, 3> anglesRad {};
    anglesRad[i] = first;
    anglesRad[j] = middle;
    anglesRad[k] = last;
    return { static_cast<osg::Real32>(anglesRad[0] / kRadPerDeg),
             static_cast<osg::Real32>(anglesRad[1] / kRadPerDeg),
             static_cast<osg::Real32>(anglesRad[2] / kRadPerDeg) };
}
