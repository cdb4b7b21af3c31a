// SPDX-License-Identifier: MIT
#include "manipulator/plates/ScreenPlane.h"

#include <nbKernel/nbOSGWidget.h>

#include <algorithm>

namespace nbec::manipulator::plates {

namespace {

/// Part of the depth range that the plane keeps away from its ends.
constexpr double kDepthMargin = 1e-3;

double planeDistance(const osg::UberCameraPtr& camera)
{
    const double nearest = camera->getNear();
    const double farthest = std::max<double>(camera->getFar(), nearest);
    const double margin = kDepthMargin * (farthest - nearest);
    return std::clamp<double>(camera->getFrom().dist(camera->getAt()), nearest + margin,
                              farthest - margin);
}

}  // namespace

std::optional<osg::Matrix> worldFromPixels(const View& view)
{
    const osg::UberCameraPtr camera =
        view.exists() ? view.getWidget()->getUberCamera() : osg::UberCameraPtr();
    if (camera == osg::NullFC || view.getWidth() <= 0 || view.getHeight() <= 0) {
        return std::nullopt;
    }
    const auto width = static_cast<osg::UInt32>(view.getWidth());
    const auto height = static_cast<osg::UInt32>(view.getHeight());
    osg::Matrix clipFromView;
    camera->getProjection(clipFromView, width, height);
    osg::Matrix viewFromWorld;
    camera->getViewing(viewFromWorld, width, height);
    const double distance = planeDistance(camera);
    // At this distance the view spans -right .. right and -top .. top; clip w is 1 in an
    // orthographic view.
    const double w = clipFromView[3][3] - distance * clipFromView[2][3];
    const double right = w / clipFromView[0][0];
    const double top = w / clipFromView[1][1];
    osg::Matrix viewFromPx;
    viewFromPx[0][0] = static_cast<float>(2.0 * right / width);
    viewFromPx[1][1] = static_cast<float>(-2.0 * top / height);
    viewFromPx[2][2] = static_cast<float>(distance * kScreenLayer);
    viewFromPx.setTranslate(static_cast<float>(-right), static_cast<float>(top),
                            static_cast<float>(-distance));
    osg::Matrix worldFromPx;
    viewFromWorld.inverse(worldFromPx);
    worldFromPx.mult(viewFromPx);
    return worldFromPx;
}

}  // namespace nbec::manipulator::plates
