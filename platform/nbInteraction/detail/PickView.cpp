// SPDX-License-Identifier: MIT
#include "PickView.h"

#include <cmath>
#include <cstring>

#include <Eigen/LU>

namespace nbec::interaction::detail {

namespace {

osg::Vec3f unit(double x, double y, double z)
{
    const double length = std::sqrt(x * x + y * y + z * z);
    if (!(length > 0.0) || !std::isfinite(length)) {
        return {};
    }
    return { static_cast<float>(x / length), static_cast<float>(y / length),
             static_cast<float>(z / length) };
}

osg::Pnt3f toPoint(const std::array<double, 3>& p)
{
    return { static_cast<float>(p[0]), static_cast<float>(p[1]), static_cast<float>(p[2]) };
}

}  // namespace

bool hasSameBits(const osg::Matrix& a, const osg::Matrix& b)
{
    constexpr std::size_t kNumbers = 16;
    return std::memcmp(a.getValues(), b.getValues(), kNumbers * sizeof(float)) == 0;
}

bool PickView::isSame(const PickView& other) const
{
    return widthPx == other.widthPx && heightPx == other.heightPx &&
        hasSameBits(viewing, other.viewing) && hasSameBits(projection, other.projection);
}

bool PickView::pixelCentre(const osg::Pnt2f& px, ScreenPoint& centre) const
{
    const float x = px[0];
    const float y = px[1];
    if (!(x >= 0.0F && y >= 0.0F && x < static_cast<float>(widthPx) &&
          y < static_cast<float>(heightPx))) {
        return false;
    }
    centre = { std::floor(x) + 0.5F, std::floor(y) + 0.5F };
    return true;
}

ScreenProjection::ScreenProjection(const PickView& view)
    : halfWidth(0.5 * view.widthPx)
    , halfHeight(0.5 * view.heightPx)
{
    const float* viewing = view.viewing.getValues();
    const float* projection = view.projection.getValues();
    for (std::size_t column = 0; column < 4; ++column) {
        for (std::size_t row = 0; row < 4; ++row) {
            double sum = 0.0;
            for (std::size_t k = 0; k < 4; ++k) {
                sum += static_cast<double>(projection[4 * k + row]) * viewing[4 * column + k];
            }
            clipFromWorld[4 * column + row] = sum;
        }
        depthRow[column] = -static_cast<double>(viewing[4 * column + 2]);
    }
    valid = view.widthPx > 0 && view.heightPx > 0 && invert(clipFromWorld, worldFromClip);
}

ScreenProjection::Projected ScreenProjection::project(const osg::Pnt3f& world) const
{
    const double x = world[0];
    const double y = world[1];
    const double z = world[2];
    Projected result {};
    constexpr std::size_t kColumn = 4;
    for (std::size_t row = 0; row < 4; ++row) {
        result.clip[row] = clipFromWorld[row] * x + clipFromWorld[kColumn + row] * y +
            clipFromWorld[2 * kColumn + row] * z + clipFromWorld[3 * kColumn + row];
    }
    result.depth = depthRow[0] * x + depthRow[1] * y + depthRow[2] * z + depthRow[3];
    return result;
}

ScreenPoint ScreenProjection::toScreen(const Projected& p) const
{
    return { static_cast<float>((p.clip[0] / p.clip[3] + 1.0) * halfWidth),
             static_cast<float>((1.0 - p.clip[1] / p.clip[3]) * halfHeight) };
}

PickRay ScreenProjection::rayThrough(const ScreenPoint& position) const
{
    const auto start = unproject(position, -1.0);
    const auto end = unproject(position, 1.0);
    const double dx = end[0] - start[0];
    const double dy = end[1] - start[1];
    const double dz = end[2] - start[2];
    return { toPoint(start), unit(dx, dy, dz),
             static_cast<float>(std::sqrt(dx * dx + dy * dy + dz * dz)) };
}

osg::Pnt3f ScreenProjection::pointAt(const ScreenPoint& position, double depth) const
{
    const auto start = unproject(position, -1.0);
    const auto end = unproject(position, 1.0);
    const double startDepth = depthOf(start);
    const double range = depthOf(end) - startDepth;
    // The depth grows linearly along the ray, in perspective and orthographic views alike.
    const double s = range != 0.0 ? (depth - startDepth) / range : 0.0;
    return toPoint({ start[0] + s * (end[0] - start[0]), start[1] + s * (end[1] - start[1]),
                     start[2] + s * (end[2] - start[2]) });
}

std::array<double, 3> ScreenProjection::unproject(const ScreenPoint& position, double clipZ) const
{
    const double clip[4] = { position.x / halfWidth - 1.0, 1.0 - position.y / halfHeight, clipZ,
                             1.0 };
    double result[4] = {};
    for (std::size_t row = 0; row < 4; ++row) {
        for (std::size_t column = 0; column < 4; ++column) {
            result[row] += worldFromClip[4 * column + row] * clip[column];
        }
    }
    return { result[0] / result[3], result[1] / result[3], result[2] / result[3] };
}

double ScreenProjection::depthOf(const std::array<double, 3>& world) const
{
    return depthRow[0] * world[0] + depthRow[1] * world[1] + depthRow[2] * world[2] + depthRow[3];
}

bool ScreenProjection::invert(const Matrix4& m, Matrix4& result)
{
    const Eigen::Map<const Eigen::Matrix4d> source(m.data());
    const Eigen::Matrix4d inverse = source.inverse();
    if (!inverse.allFinite()) {
        return false;
    }
    Eigen::Map<Eigen::Matrix4d>(result.data()) = inverse;
    return true;
}

osg::Vec3f transformNormal(const osg::Matrix& worldFromLocal, const osg::Vec3f& localNormal)
{
    double m[3][3];  // m[column][row]
    for (osg::UInt32 column = 0; column < 3; ++column) {
        for (osg::UInt32 row = 0; row < 3; ++row) {
            m[column][row] = worldFromLocal[column][row];
        }
    }
    const double sign = linearDeterminant(worldFromLocal) < 0.0 ? -1.0 : 1.0;
    double normal[3] = {};
    for (std::size_t column = 0; column < 3; ++column) {
        const double* const next = m[(column + 1) % 3];
        const double* const afterNext = m[(column + 2) % 3];
        const double component = sign * localNormal[static_cast<osg::UInt32>(column)];
        for (std::size_t row = 0; row < 3; ++row) {
            const std::size_t r1 = (row + 1) % 3;
            const std::size_t r2 = (row + 2) % 3;
            normal[row] += component * (next[r1] * afterNext[r2] - next[r2] * afterNext[r1]);
        }
    }
    return unit(normal[0], normal[1], normal[2]);
}

double linearDeterminant(const osg::Matrix& m)
{
    const auto at = [&m](osg::UInt32 row, osg::UInt32 column) {
        return static_cast<double>(m[column][row]);
    };
    return at(0, 0) * (at(1, 1) * at(2, 2) - at(1, 2) * at(2, 1)) -
        at(0, 1) * (at(1, 0) * at(2, 2) - at(1, 2) * at(2, 0)) +
        at(0, 2) * (at(1, 0) * at(2, 1) - at(1, 1) * at(2, 0));
}

}  // namespace nbec::interaction::detail
