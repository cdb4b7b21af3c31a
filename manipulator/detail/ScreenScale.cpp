// SPDX-License-Identifier: MIT
#include "manipulator/detail/ScreenScale.h"

#include <nbKernel/nbOSGWidget.h>
#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUberCamera/nbUberCameraUtils.h>

#include <cmath>

namespace nbec::manipulator::detail {

namespace {

constexpr double kSizeLimit = 200.0;
constexpr double kReference = 800.0;
constexpr float kViewsPerDiagonal = 20.0F;

/// What distances are divided by.
double perspectiveDivisor(float fovDeg, float size)
{
    const double sizeFactor = (kSizeLimit - static_cast<double>(size)) / kSizeLimit;
    return sizeFactor * kReference / static_cast<double>(fovDeg);
}

float diagonalOf(const osg::UberCameraPtr& camera, ViewDiagonal diagonal)
{
    if (diagonal == ViewDiagonal::NearPlane) {
        return camera->getNearPlaneDiagonal();
    }
    const float width = camera->getRight() - camera->getLeft();
    const float height = camera->getBottom() - camera->getTop();
    return std::sqrt(width * width + height * height);
}

/// The main view's camera if it shows an orthographic view, else null.
osg::UberCameraPtr orthographicCamera()
{
    const nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
    const osg::UberCameraPtr camera =
        widget != nullptr ? widget->getUberCamera() : osg::UberCameraPtr();
    return nbUberCameraUtils::isOrthographicCamera(camera) ? camera : osg::UberCameraPtr();
}

}  // namespace

float perspectiveScale(double distance, float fovDeg, float size)
{
    return static_cast<float>(distance / perspectiveDivisor(fovDeg, size));
}

float orthographicScale(float diagonal)
{
    return diagonal / kViewsPerDiagonal;
}

std::optional<float> orthographicDiagonal()
{
    const osg::UberCameraPtr camera = orthographicCamera();
    return camera != osg::NullFC ? std::optional<float>(camera->getNearPlaneDiagonal())
                                 : std::nullopt;
}

ScreenScale::ScreenScale(float size, ViewDiagonal diagonal)
    : eye(nbOSGWidget::getFrom(-1))
    , divisor(perspectiveDivisor(nbOSGWidget::getFov(-1), size))
{
    const osg::UberCameraPtr camera = orthographicCamera();
    isOrthographic = camera != osg::NullFC;
    if (isOrthographic) {
        factor = orthographicScale(diagonalOf(camera, diagonal));
    }
}

}  // namespace nbec::manipulator::detail
