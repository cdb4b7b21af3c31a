// SPDX-License-Identifier: MIT
#include "manipulator/detail/ScreenPlane.h"

#include <nbKernel/nbOSGWidget.h>

#include <algorithm>

namespace nbec::manipulator::detail {

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

bool worldFromPixels(const nbOSGWidget& widget, osg::Matrix& worldFromPx)
{
    const osg::UberCameraPtr camera = widget.getUberCamera();
    const int width = widget.getWidth();
    const int height = widget.getHeight();
    if (camera == osg::NullFC || width <= 0 || height <= 0) {
        return false;
    }
    osg::Matrix clipFromView;
    camera->getProjection(clipFromView, static_cast<osg::UInt32>(width),
                          static_cast<osg::UInt32>(height));
    osg::Matrix viewFromWorld;
    camera->getViewing(viewFromWorld, static_cast<osg::UInt32>(width),
                       static_cast<osg::UInt32>(height));
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
    viewFromWorld.inverse(worldFromPx);
    worldFromPx.mult(viewFromPx);
    return true;
}

}  // namespace nbec::manipulator::detail
