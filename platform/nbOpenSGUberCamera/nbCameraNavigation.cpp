// SPDX-License-Identifier: MIT
#include <nbOpenSGExt/nbBoxCorners.h>
#include <nbOpenSGExt/nbIsFinite.h>
#include <nbOpenSGUberCamera/nbCameraNavigation.h>

#include <algorithm>
#include <cmath>
#include <optional>

using osg::Int32;
using osg::Pnt2f;
using osg::Pnt3f;
using osg::Real32;
using osg::Real64;
using osg::Vec3d;
using osg::Vec3f;

namespace {

constexpr Real64 kPi = 3.14159265358979323846;
constexpr Real64 kRadPerDeg = kPi / 180.0;
/// Sine of the angle below which two directions count as one.
constexpr Real64 kParallelSine = 1e-6;
/// Smallest distance over the size of the coordinates that floats still resolve well.
constexpr Real64 kCoordinateResolution = 1e-5;
/// Where the three-quarter view stands.
constexpr Real64 kThreeQuarterAzimuthRad = 45.0 * kRadPerDeg;
constexpr Real64 kThreeQuarterElevationRad = 30.0 * kRadPerDeg;

struct Basis
{
    Vec3d right;
    Vec3d up;
    Vec3d back;
};

Real64 largestComponent(const Vec3d& value)
{
    return std::max({ std::abs(value.x()), std::abs(value.y()), std::abs(value.z()) });
}

/// Direction of a vector of any length; nothing for the zero vector.
std::optional<Vec3d> direction(Vec3d vector)
{
    const Real64 size = largestComponent(vector);
    if (!(size > 0.0)) {
        return std::nullopt;
    }
    vector *= 1.0 / size;  // first, so that the squares neither vanish nor overflow
    return vector * (1.0 / std::sqrt(vector.dot(vector)));
}

Vec3d worldUpOf(const CameraPose& pose)
{
    return pose.zUp ? Vec3d(0.0, 0.0, 1.0) : Vec3d(0.0, 1.0, 0.0);
}

Vec3d frontBack(const CameraPose& pose)
{
    return pose.zUp ? Vec3d(0.0, -1.0, 0.0) : Vec3d(0.0, 0.0, 1.0);
}

/// Up x back as a direction, if the two are not parallel. Both have unit length.
std::optional<Vec3d> rightOf(const Vec3d& up, const Vec3d& back)
{
    const Vec3d right = up.cross(back);
    if (right.dot(right) < kParallelSine * kParallelSine) {
        return std::nullopt;
    }
    return direction(right);
}

Basis basisOf(const CameraPose& pose)
{
    Basis result;
    result.back = direction(Vec3d(pose.from) - Vec3d(pose.at)).value_or(frontBack(pose));
    const Vec3d worldUp = worldUpOf(pose);
    std::optional<Vec3d> right = rightOf(direction(Vec3d(pose.up)).value_or(worldUp), result.back);
    if (!right) {
        right = rightOf(worldUp, result.back);
    }
    // Along world up: both standard views, from above and from below, have x to the right.
    result.right = right.value_or(Vec3d(1.0, 0.0, 0.0));
    result.up = *direction(result.back.cross(result.right));
    result.right = result.up.cross(result.back);
    return result;
}

Real64 tanHalfFov(const CameraPose& pose)
{
    return std::tan(0.5 * kRadPerDeg * nbCameraNavigation::usableFovDeg(pose.fovDeg));
}

Real64 distanceOf(const CameraPose& pose)
{
    const Vec3d way = Vec3d(pose.at) - Vec3d(pose.from);
    return std::sqrt(way.dot(way));
}

Real64 depthOf(const CameraPose& pose, const Basis& basis, const Vec3d& point)
{
    return (Vec3d(pose.from) - point).dot(basis.back);
}

Real64 viewHeightOf(const CameraPose& pose, Real64 atDepth)
{
    return 2.0 * (pose.orthographic ? distanceOf(pose) : atDepth) * tanHalfFov(pose);
}

/// Smallest distance that makes sense where the pivot is.
Real64 nearestDistanceOf(const CameraPose& pose)
{
    return std::max<Real64>(nbCameraNavigation::kNearestDistance,
                            kCoordinateResolution * largestComponent(Vec3d(pose.pivot)));
}

/// Vector turned about a unit axis, counter-clockwise seen against the axis (Rodrigues' formula).
Vec3d turned(const Vec3d& vector, const Vec3d& axis, Real64 angleRad)
{
    const Real64 cosine = std::cos(angleRad);
    return vector * cosine + axis.cross(vector) * std::sin(angleRad) +
        axis * (axis.dot(vector) * (1.0 - cosine));
}

/// The moved pose, or the start where numbers have left the range of floats.
CameraPose checked(const CameraPose& start, const CameraPose& moved)
{
    return nbCameraNavigation::isFinite(moved) ? moved : start;
}

/// Zoom factor within the limits of the distance from eye to at.
Real64 limitedFactor(const CameraPose& pose, Real64 distance, Real64 factor)
{
    const Real64 lowest = std::min(1.0, nearestDistanceOf(pose) / distance);
    const Real64 highest = std::max(1.0, nbCameraNavigation::kFarthestDistance / distance);
    return std::clamp(factor, lowest, highest);
}

/// Point that a zoom leaves where it is in the view; see nbCameraNavigation::zoom.
Vec3d zoomCentre(const CameraPose& pose, const Basis& basis, const Vec3d& target)
{
    const Vec3d eye = Vec3d(pose.from);
    const Real64 pivotDepth = depthOf(pose, basis, Vec3d(pose.pivot));
    const Real64 targetDepth = depthOf(pose, basis, target);
    const Real64 lastDepth = pivotDepth > 0.0 ? pivotDepth : distanceOf(pose);
    if (pose.orthographic) {
        return target - basis.back * (lastDepth - targetDepth);
    }
    if (targetDepth <= 0.0) {
        return eye - basis.back * lastDepth;
    }
    return targetDepth <= lastDepth ? target : eye + (target - eye) * (lastDepth / targetDepth);
}

/// Distance at which a box relative to the view's centre just fits into the view; 0 for a point.
Real64 tightestDistance(const CameraPose& pose, const Basis& basis, const Vec3d& halfSize,
                        Real64 aspect)
{
    const Real64 tanVertical = tanHalfFov(pose);
    Real64 result = 0.0;
    for (const Vec3d& point : nbBoxCorners(-halfSize, halfSize)) {
        const Real64 needed = std::max(std::abs(point.dot(basis.up)) / tanVertical,
                                       std::abs(point.dot(basis.right)) / (aspect * tanVertical));
        const Real64 towardsEye = pose.orthographic ? 0.0 : point.dot(basis.back);
        result = std::max(result, towardsEye + needed);
    }
    return result;
}

/// From the pivot to the eye of a standard view, unit length.
Vec3d standardBack(const CameraPose& pose, nbCameraNavigation::StandardView view)
{
    const Vec3d front = frontBack(pose);
    const Vec3d right(1.0, 0.0, 0.0);
    switch (view) {
    case nbCameraNavigation::StandardView::Back:
        return -front;
    case nbCameraNavigation::StandardView::Left:
        return -right;
    case nbCameraNavigation::StandardView::Right:
        return right;
    case nbCameraNavigation::StandardView::Top:
        return worldUpOf(pose);
    case nbCameraNavigation::StandardView::Bottom:
        return -worldUpOf(pose);
    case nbCameraNavigation::StandardView::ThreeQuarter:
        return (front * std::cos(kThreeQuarterAzimuthRad) +
                right * std::sin(kThreeQuarterAzimuthRad)) *
            std::cos(kThreeQuarterElevationRad) +
            worldUpOf(pose) * std::sin(kThreeQuarterElevationRad);
    case nbCameraNavigation::StandardView::Front:
        break;
    }
    return front;
}

}  // namespace

Vec3f nbCameraNavigation::worldUp(const CameraPose& pose)
{
    return Vec3f(worldUpOf(pose));
}

nbCameraNavigation::Axes nbCameraNavigation::axes(const CameraPose& pose)
{
    const Basis basis = basisOf(pose);
    return Axes { Vec3f(basis.right), Vec3f(basis.up), Vec3f(basis.back) };
}

Real32 nbCameraNavigation::usableFovDeg(Real32 fovDeg)
{
    if (!std::isfinite(fovDeg) || fovDeg <= 0.0F) {
        return kDefaultFovDeg;
    }
    return std::clamp(fovDeg, kSmallestFovDeg, kLargestFovDeg);
}

Real32 nbCameraNavigation::depth(const CameraPose& pose, const Pnt3f& point)
{
    return static_cast<Real32>(depthOf(pose, basisOf(pose), Vec3d(point)));
}

Real32 nbCameraNavigation::viewHeight(const CameraPose& pose, Real32 atDepth)
{
    return static_cast<Real32>(viewHeightOf(pose, atDepth));
}

CameraPose nbCameraNavigation::orbit(const CameraPose& start, Real32 dxPx, Real32 dyPx,
                                     Int32 viewHeightPx)
{
    if (viewHeightPx <= 0 || !std::isfinite(dxPx) || !std::isfinite(dyPx)) {
        return start;
    }
    // Seen upside down, the scene follows the pointer if both ways are turned round.
    const bool upsideDown = basisOf(start).up.dot(worldUpOf(start)) < -kParallelSine;
    const Real64 radPerPx = (upsideDown ? -kPi : kPi) / viewHeightPx;
    return orbitByAngles(start, -dxPx * radPerPx, dyPx * radPerPx);
}

CameraPose nbCameraNavigation::orbitByAngles(const CameraPose& start, Real64 turnRad,
                                             Real64 riseRad)
{
    if (!isFinite(start) || !std::isfinite(turnRad) || !std::isfinite(riseRad)) {
        return start;
    }
    const Basis basis = basisOf(start);
    const Vec3d worldUp = worldUpOf(start);
    const Real64 elevation = std::asin(std::clamp(basis.back.dot(worldUp), -1.0, 1.0));
    const Real64 steepest = kSteepestElevationDeg * kRadPerDeg;
    const Real64 newElevation = std::clamp(elevation + riseRad, std::min(-steepest, elevation),
                                           std::max(steepest, elevation));
    const Vec3d across = rightOf(worldUp, basis.back).value_or(basis.right);
    const auto apply = [&](const Vec3d& vector) {
        return turned(turned(vector, across, elevation - newElevation), worldUp, turnRad);
    };
    const Vec3d pivot = Vec3d(start.pivot);
    CameraPose result = start;
    result.from = Pnt3f(pivot + apply(Vec3d(start.from) - pivot));
    result.at = Pnt3f(pivot + apply(Vec3d(start.at) - pivot));
    result.up = Vec3f(apply(basis.up));
    return checked(start, result);
}

CameraPose nbCameraNavigation::pan(const CameraPose& start, Real32 dxPx, Real32 dyPx,
                                   Int32 viewHeightPx)
{
    if (viewHeightPx <= 0 || !std::isfinite(dxPx) || !std::isfinite(dyPx) || !isFinite(start)) {
        return start;
    }
    const Basis basis = basisOf(start);
    const Real64 pivotDepth = depthOf(start, basis, Vec3d(start.pivot));
    const Real64 worldPerPx =
        viewHeightOf(start, pivotDepth > 0.0 ? pivotDepth : distanceOf(start)) / viewHeightPx;
    const Vec3d way = (basis.up * Real64(dyPx) - basis.right * Real64(dxPx)) * worldPerPx;
    CameraPose result = start;
    result.from = Pnt3f(Vec3d(start.from) + way);
    result.at = Pnt3f(Vec3d(start.at) + way);
    result.pivot = Pnt3f(Vec3d(start.pivot) + way);
    return checked(start, result);
}

CameraPose nbCameraNavigation::zoom(const CameraPose& start, Real32 factor, const Pnt3f& target)
{
    if (!std::isfinite(factor) || factor <= 0.0F || !nbIsFinite(target) || !isFinite(start)) {
        return start;
    }
    const Basis basis = basisOf(start);
    const Real64 distance = distanceOf(start);
    const Real64 limited =
        distance > 0.0 ? limitedFactor(start, distance, factor) : static_cast<Real64>(factor);
    const Vec3d centre = zoomCentre(start, basis, Vec3d(target));
    CameraPose result = start;
    result.from = Pnt3f(centre + (Vec3d(start.from) - centre) * limited);
    result.at = Pnt3f(centre + (Vec3d(start.at) - centre) * limited);
    return checked(start, result);
}

CameraPose nbCameraNavigation::zoom(const CameraPose& start, Real32 factor)
{
    return zoom(start, factor, start.pivot);
}

CameraPose nbCameraNavigation::frame(const CameraPose& start, const Pnt3f& boundsMin,
                                     const Pnt3f& boundsMax, Real32 aspect)
{
    const Vec3d halfSize = (Vec3d(boundsMax) - Vec3d(boundsMin)) * 0.5;
    const bool isBox = nbIsFinite(boundsMin) && nbIsFinite(boundsMax) && halfSize.x() >= 0.0 &&
        halfSize.y() >= 0.0 && halfSize.z() >= 0.0;
    if (!isBox || !isFinite(start)) {
        return start;
    }
    const Vec3d centre = (Vec3d(boundsMin) + Vec3d(boundsMax)) * 0.5;
    const Basis basis = basisOf(start);
    const Real64 usableAspect = std::isfinite(aspect) && aspect > 0.0F ? aspect : 1.0;
    const Real64 tightest = tightestDistance(start, basis, halfSize, usableAspect);
    CameraPose result = start;
    result.at = Pnt3f(centre);
    result.pivot = result.at;
    const Real64 wanted =
        tightest > 0.0 ? tightest * static_cast<Real64>(kFrameMargin) : distanceOf(start);
    const Real64 distance = std::clamp<Real64>(wanted, nearestDistanceOf(result),
                                               std::max<Real64>(wanted, kFarthestDistance));
    result.from = Pnt3f(centre + basis.back * distance);
    return checked(start, result);
}

CameraPose nbCameraNavigation::standardView(const CameraPose& start, StandardView view)
{
    if (!isFinite(start)) {
        return start;
    }
    const Vec3d pivot = Vec3d(start.pivot);
    const Vec3d way = Vec3d(start.from) - pivot;
    const Real64 wanted = start.orthographic ? distanceOf(start) : std::sqrt(way.dot(way));
    const Vec3d back = standardBack(start, view);
    CameraPose result = start;
    result.at = start.pivot;
    result.from = Pnt3f(pivot + back * std::max(wanted, nearestDistanceOf(start)));
    result.up = Vec3f(worldUpOf(start));
    result.up = axes(result).up;
    return checked(start, result);
}

CameraPose nbCameraNavigation::withProjection(const CameraPose& start, bool orthographic)
{
    CameraPose result = start;
    result.orthographic = orthographic;
    if (start.orthographic == orthographic || !isFinite(start)) {
        return result;
    }
    const Basis basis = basisOf(start);
    const Real64 pivotDepth = depthOf(start, basis, Vec3d(start.pivot));
    const Vec3d eye = Vec3d(start.from);
    if (orthographic) {
        // With the pivot beside or behind the eye there is no size to keep.
        if (pivotDepth >= nearestDistanceOf(start)) {
            result.at = Pnt3f(eye - basis.back * pivotDepth);
        }
    } else {
        const Vec3d way = basis.back * (distanceOf(start) - pivotDepth);
        result.from = Pnt3f(eye + way);
        result.at = Pnt3f(Vec3d(start.at) + way);
    }
    return isFinite(result) ? result : start;
}

bool nbCameraNavigation::project(const CameraPose& pose, const Pnt3f& point, Int32 viewWidthPx,
                                 Int32 viewHeightPx, Pnt2f& pixel)
{
    if (viewWidthPx <= 0 || viewHeightPx <= 0) {
        return false;
    }
    const Basis basis = basisOf(pose);
    const Vec3d way = Vec3d(point) - Vec3d(pose.from);
    const Real64 height = viewHeightOf(pose, -way.dot(basis.back));
    if (!(height > 0.0)) {
        return false;
    }
    const Real64 pxPerWorld = viewHeightPx / height;
    pixel = Pnt2f(static_cast<Real32>(0.5 * viewWidthPx + way.dot(basis.right) * pxPerWorld),
                  static_cast<Real32>(0.5 * viewHeightPx - way.dot(basis.up) * pxPerWorld));
    return true;
}

Pnt3f nbCameraNavigation::unproject(const CameraPose& pose, const Pnt2f& pixel, Real32 atDepth,
                                    Int32 viewWidthPx, Int32 viewHeightPx)
{
    const Basis basis = basisOf(pose);
    const Real64 worldPerPx = viewHeightOf(pose, atDepth) / std::max(viewHeightPx, Int32(1));
    return Pnt3f(Vec3d(pose.from) - basis.back * Real64(atDepth) +
                 basis.right * ((pixel.x() - 0.5 * viewWidthPx) * worldPerPx) +
                 basis.up * ((0.5 * viewHeightPx - pixel.y()) * worldPerPx));
}

bool nbCameraNavigation::isFinite(const CameraPose& pose)
{
    return nbIsFinite(pose.from) && nbIsFinite(pose.at) && nbIsFinite(pose.up) &&
        nbIsFinite(pose.pivot) && std::isfinite(pose.fovDeg);
}
