// SPDX-License-Identifier: MIT
#include "manipulator/course/View.h"

#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUberCamera/nbCameraNavigation.h>
#include <nbOpenSGUberCamera/nbUberCameraUtils.h>

#include <cmath>

#include <ViewRay.h>

namespace nbec::manipulator {

namespace {

constexpr double kSizeLimit = 200.0;
constexpr double kReference = 800.0;
constexpr float kViewsPerDiagonal = 20.0F;
/// Length of an arrow in a gizmo's unit frame.
constexpr double kArrowUnits = 2.0;

/// Index of the main widget.
constexpr int kMain = -1;

SizePolicy sizePolicy;

float diagonalOf(const osg::UberCameraPtr& camera, ViewDiagonal diagonal)
{
    if (diagonal == ViewDiagonal::NearPlane) {
        return camera->getNearPlaneDiagonal();
    }
    const float width = camera->getRight() - camera->getLeft();
    const float height = camera->getBottom() - camera->getTop();
    return std::sqrt(width * width + height * height);
}

}  // namespace

float perspectiveScale(double distance, float fovDeg, float size)
{
    const double sizeFactor = (kSizeLimit - static_cast<double>(size)) / kSizeLimit;
    return static_cast<float>(distance / (sizeFactor * kReference / static_cast<double>(fovDeg)));
}

float orthographicScale(float diagonal)
{
    return diagonal / kViewsPerDiagonal;
}

View::View()
    : widget(nbOSGWidget::getMGLW(kMain))
    , pointer(widget != nullptr ? widget->getMousePosition() : osg::Pnt2f())
{ }

View::View(const osg::Pnt2f& pointerPx)
    : widget(nbOSGWidget::getMGLW(kMain))
    , pointer(pointerPx)
{ }

// == Size and pointer

osg::Vec2f View::pointerFromBelow() const
{
    return osg::Vec2f(pointer.x(), static_cast<float>(getHeight() - 1) - pointer.y());
}

std::optional<osg::Line> View::pointerRay() const
{
    if (widget == nullptr || widget->getCamera() == osg::NullFC ||
        widget->getViewport() == osg::NullFC) {
        return std::nullopt;
    }
    osg::Line ray;
    const auto x = static_cast<osg::Int32>(pointer.x());
    const auto y = static_cast<osg::Int32>(pointer.y());
    const auto rayAt = [&](osg::Int32 column, osg::Int32 row, osg::Line& result) {
        return osg::glue::viewRay(result, widget->getCamera(), column, row, *widget->getViewport());
    };
    if (!rayAt(x, y, ray)) {
        return std::nullopt;
    }
    const float partX = pointer.x() - static_cast<float>(x);
    const float partY = pointer.y() - static_cast<float>(y);
    osg::Line right;
    osg::Line below;
    if (!isFine || !rayAt(x + 1, y, right) || !rayAt(x, y + 1, below)) {
        return ray;
    }
    // Between pixels: origins lie in the near plane, and directions of nearly the same length.
    const auto between = [&](const auto& own, const auto& toRight, const auto& toBelow) {
        return (toRight - own) * partX + (toBelow - own) * partY;
    };
    osg::Vec3f direction = ray.getDirection() +
        between(ray.getDirection(), right.getDirection(), below.getDirection());
    direction.normalize();
    return osg::Line(ray.getPosition() +
                         between(ray.getPosition(), right.getPosition(), below.getPosition()),
                     direction);
}

// == Camera

bool View::isOrthographic() const
{
    return widget != nullptr && nbUberCameraUtils::isOrthographicCamera(widget->getUberCamera());
}

osg::Vec3f View::sight() const
{
    osg::Pnt3f from;
    osg::Pnt3f at;
    osg::Vec3f up;
    nbOSGWidget::getFromAtUp(kMain, from, at, up);
    osg::Vec3f direction = at - from;
    direction.normalize();
    return direction;
}

osg::Vec3f View::sightAt(const osg::Pnt3f& point) const
{
    if (isOrthographic()) {
        return sight();
    }
    osg::Vec3f direction = point - getEye();
    direction.normalize();
    return direction;
}

Sight View::getSight() const
{
    return { sight(), isOrthographic() ? std::nullopt : std::optional<osg::Pnt3f>(getEye()) };
}

osg::Quaternion View::facing() const
{
    if (widget == nullptr || widget->getUberCamera() == osg::NullFC) {
        return osg::Quaternion();
    }
    const nbCameraNavigation::Axes axes =
        nbCameraNavigation::axes(widget->getUberCamera()->getPose());
    osg::Matrix turn;
    turn[0] = osg::Vec4f(axes.right.x(), axes.right.y(), axes.right.z(), 0.0F);
    turn[1] = osg::Vec4f(axes.up.x(), axes.up.y(), axes.up.z(), 0.0F);
    turn[2] = osg::Vec4f(axes.back.x(), axes.back.y(), axes.back.z(), 0.0F);
    return osg::Quaternion(turn);
}

// == Scale

std::optional<float> View::orthographicDiagonal() const
{
    return isOrthographic() ? std::optional<float>(widget->getUberCamera()->getNearPlaneDiagonal())
                            : std::nullopt;
}

bool setSizePolicy(const SizePolicy& policy)
{
    const bool isRight = std::isfinite(policy.arrowPx) && policy.arrowPx >= 0.0F &&
        std::isfinite(policy.pixelRatio) && policy.pixelRatio > 0.0F;
    if (isRight) {
        sizePolicy = policy;
    }
    return isRight;
}

const SizePolicy& getSizePolicy()
{
    return sizePolicy;
}

float View::scaleAt(const osg::Pnt3f& anchor, float size, ViewDiagonal diagonal) const
{
    if (const SizePolicy& policy = getSizePolicy(); policy.arrowPx > 0.0F && getHeight() > 0) {
        const float arrowPx = policy.arrowPx * nbOSGWidget::getPixelRatio(kMain, policy.pixelRatio);
        return static_cast<float>(static_cast<double>(arrowPx) * unitsPerPixel(anchor) /
                                  kArrowUnits);
    }
    return isOrthographic()
        ? orthographicScale(diagonalOf(widget->getUberCamera(), diagonal))
        : perspectiveScale(osg::Vec3d(anchor - getEye()).length(), getFov(), size);
}

double View::unitsPerPixel(const osg::Pnt3f& point) const
{
    if (getHeight() <= 0) {
        return 0.0;
    }
    if (isOrthographic()) {
        const osg::UberCameraPtr camera = widget->getUberCamera();
        return static_cast<double>(std::abs(camera->getTop() - camera->getBottom())) / getHeight();
    }
    constexpr double kRadPerDeg = 0.017453292519943295;
    const double depth = static_cast<double>(sight().dot(point - getEye()));
    return 2.0 * depth * std::tan(static_cast<double>(getFov()) * kRadPerDeg / 2.0) / getHeight();
}

osg::Vec2f View::project(const osg::Pnt3f& world) const
{
    osg::Matrix screenFromWorld;
    widget->getCamera()->getWorldToScreen(screenFromWorld, *widget->getViewport());
    osg::Pnt3f device;
    screenFromWorld.multFullMatrixPnt(world, device);
    return osg::Vec2f(static_cast<float>(getWidth()) * (device.x() * 0.5F + 0.5F),
                      static_cast<float>(getHeight()) * (device.y() * 0.5F + 0.5F));
}

}  // namespace nbec::manipulator
