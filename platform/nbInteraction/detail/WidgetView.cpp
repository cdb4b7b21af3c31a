// SPDX-License-Identifier: MIT
#include "WidgetView.h"

#include <nbKernel/nbOSGWidget.h>

#include <ChangeCount.h>

namespace nbec::interaction::detail {

const PickView* WidgetView::current()
{
    const nbOSGWidget* widget = nbOSGWidget::getMGLW(-1);
    if (widget == nullptr || widget->getWidth() <= 0 || widget->getHeight() <= 0) {
        return nullptr;
    }
    const osg::CameraPtr camera = widget->getCamera();
    if (camera == osg::NullFC) {
        return nullptr;
    }
    osg::Matrix toWorld;
    const osg::NodePtr beacon = camera->getBeacon();
    if (beacon != osg::NullFC) {
        beacon->getToWorld(toWorld);
    }
    if (beacon != osg::NullFC && camera.getFieldContainerId() == cameraId &&
        osg::getChangeCount(camera) == cameraChanges && view.widthPx == widget->getWidth() &&
        view.heightPx == widget->getHeight() && hasSameBits(toWorld, beaconToWorld)) {
        return &view;
    }
    view.widthPx = widget->getWidth();
    view.heightPx = widget->getHeight();
    const auto width = static_cast<osg::UInt32>(view.widthPx);
    const auto height = static_cast<osg::UInt32>(view.heightPx);
    osg::Matrix translation;
    camera->getProjection(view.projection, width, height);
    camera->getProjectionTranslation(translation, width, height);
    view.projection.mult(translation);
    camera->getViewing(view.viewing, width, height);
    cameraId = camera.getFieldContainerId();
    cameraChanges = osg::getChangeCount(camera);
    beaconToWorld = toWorld;
    return &view;
}

}  // namespace nbec::interaction::detail
