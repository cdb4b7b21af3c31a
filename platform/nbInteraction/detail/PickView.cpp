// SPDX-License-Identifier: MIT
#include "PickView.h"

#include <cmath>
#include <cstring>

#include <Eigen/Geometry>
#include <Eigen/LU>

namespace nbec::interaction::detail {

namespace {

using Eigen::Vector3d;
using Eigen::Vector4d;

Eigen::Matrix4d toEigen(const osg::Matrix& matrix)
{
    return Eigen::Map<const Eigen::Matrix4f>(matrix.getValues()).cast<double>();
}

osg::Vec3f unit(const Vector3d& v)
{
    const double length = v.norm();
    if (!(length > 0.0) || !std::isfinite(length)) {
        return {};
    }
    return { static_cast<float>(v.x() / length), static_cast<float>(v.y() / length),
             static_cast<float>(v.z() / length) };
}

osg::Pnt3f toPoint(const Vector3d& p)
{
    return { static_cast<float>(p.x()), static_cast<float>(p.y()), static_cast<float>(p.z()) };
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
    const Eigen::Matrix4d viewing = toEigen(view.viewing);
    clipFromWorld = toEigen(view.projection) * viewing;
    worldFromClip = clipFromWorld.inverse();
    depthRow = -viewing.row(2);
    valid = view.widthPx > 0 && view.heightPx > 0 && worldFromClip.allFinite();
}

ScreenProjection::Projected ScreenProjection::project(const osg::Pnt3f& world) const
{
    const Vector4d point(world[0], world[1], world[2], 1.0);
    const Vector4d clip = clipFromWorld * point;
    return { { clip[0], clip[1], clip[2], clip[3] }, depthRow.dot(point) };
}

ScreenPoint ScreenProjection::toScreen(const Projected& p) const
{
    return { static_cast<float>((p.clip[0] / p.clip[3] + 1.0) * halfWidth),
             static_cast<float>((1.0 - p.clip[1] / p.clip[3]) * halfHeight) };
}

PickRay ScreenProjection::rayThrough(const ScreenPoint& position) const
{
    const Vector3d start = unproject(position, -1.0);
    const Vector3d way = unproject(position, 1.0) - start;
    return { toPoint(start), unit(way), static_cast<float>(way.norm()) };
}

osg::Pnt3f ScreenProjection::pointAt(const ScreenPoint& position, double depth) const
{
    const Vector3d start = unproject(position, -1.0);
    const Vector3d way = unproject(position, 1.0) - start;
    const double range = depthRow.head<3>().dot(way);
    // The depth grows linearly along the ray, in perspective and orthographic views alike.
    const double s = range != 0.0 ? (depth - depthRow.dot(start.homogeneous())) / range : 0.0;
    return toPoint(start + s * way);
}

Vector3d ScreenProjection::unproject(const ScreenPoint& position, double clipZ) const
{
    const Vector4d clip(position.x / halfWidth - 1.0, 1.0 - position.y / halfHeight, clipZ, 1.0);
    return (worldFromClip * clip).hnormalized();
}

osg::Vec3f transformNormal(const osg::Matrix& worldFromLocal, const osg::Vec3f& localNormal)
{
    const Eigen::Matrix3d m = toEigen(worldFromLocal).topLeftCorner<3, 3>();
    const double sign = m.determinant() < 0.0 ? -1.0 : 1.0;
    Vector3d normal = Vector3d::Zero();
    for (int i = 0; i < 3; ++i) {
        const double component = sign * localNormal[static_cast<osg::UInt32>(i)];
        normal += component * m.col((i + 1) % 3).cross(m.col((i + 2) % 3));
    }
    return unit(normal);
}

double linearDeterminant(const osg::Matrix& m)
{
    return toEigen(m).topLeftCorner<3, 3>().determinant();
}

}  // namespace nbec::interaction::detail
