// SPDX-License-Identifier: MIT
#include <nbInteraction/CameraInteractionContext.h>
#include <nbInteraction/EventNames.h>
#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbInteraction/detail/ScenePick.h>
#include <nbKernel/nbOSGWidget.h>
#include <nbUtils/nbGuard.h>

#include <cmath>

namespace nbec::interaction {

namespace {

/// Part of the view's height over which a zooming drag halves the distance.
constexpr double kHalvingPart = 0.25;

bool isNavigation(const std::string& hint)
{
    return hint == names::kOrbit || hint == names::kPan || hint == names::kZoom;
}

/// The main widget, if its view has an area to navigate in.
nbOSGWidget* usableWidget()
{
    nbOSGWidget* const view = nbOSGWidget::getMGLW(-1);
    return view && view->getWidth() > 0 && view->getHeight() > 0 ? view : nullptr;
}

bool isSamePlacement(const CameraPose& first, const CameraPose& second)
{
    return first.from == second.from && first.at == second.at && first.up == second.up &&
        first.pivot == second.pivot && first.fovDeg == second.fovDeg &&
        first.orthographic == second.orthographic && first.zUp == second.zUp;
}

/// Factor of the distance for a zooming drag: 2^(-way / (kHalvingPart height)), where the way is
/// counted to the right and upwards.
float dragFactor(float dxPx, float dyPx, int heightPx)
{
    return static_cast<float>(std::exp2(-(double(dxPx) - dyPx) / (kHalvingPart * heightPx)));
}

}  // namespace

CameraInteractionContext::~CameraInteractionContext()
{
    leaveManager();
}

bool CameraInteractionContext::setPose(const CameraPose& pose)
{
    nbOSGWidget* const view = nbOSGWidget::getMGLW(-1);
    if (!view || !nbCameraNavigation::isFinite(pose)) {
        return false;
    }
    rebaseDrag(pose);
    return apply(*view, pose);
}

void CameraInteractionContext::contextRemoved(InteractionManager* manager)
{
    drag.reset();
    AbstractInteractionContext::contextRemoved(manager);
}

bool CameraInteractionContext::triggerEvent(InteractionManager* manager,
                                            const InteractionEvent& event)
{
    if (event.getTool() != names::kCamera) {
        return false;
    }
    const std::string& name = event.getEvent();
    if (name == names::kStart) {
        return startDrag(event.getHint());
    }
    if (name == names::kProcess) {
        return processDrag();
    }
    if (name == names::kStop) {
        return stopDrag(manager && manager->getDragEnd() == DragEnd::Cancelled);
    }
    if (name == names::kTrigger && event.getHint() == names::kZoom) {
        return zoomBySteps(event.getAmount());
    }
    return false;
}

bool CameraInteractionContext::startDrag(const std::string& hint)
{
    drag.reset();
    const nbOSGWidget* const view = usableWidget();
    if (!view || !isNavigation(hint)) {
        return false;
    }
    const CameraPose pose = view->getUberCamera()->getPose();
    drag = Drag { pose, pose, pointerPosition, pointedAt(pose, *view), hint };
    return true;
}

bool CameraInteractionContext::processDrag()
{
    nbOSGWidget* const view = usableWidget();
    if (!drag || !view) {
        return false;
    }
    const float dx = pointerPosition[0] - drag->positionPx[0];
    const float dy = pointerPosition[1] - drag->positionPx[1];
    const int height = view->getHeight();
    if (drag->hint == names::kOrbit) {
        return apply(*view, nbCameraNavigation::orbit(drag->pose, dx, dy, height));
    }
    if (drag->hint == names::kPan) {
        return apply(*view, nbCameraNavigation::pan(drag->pose, dx, dy, height));
    }
    const float factor = dragFactor(dx, dy, height);
    return apply(*view, nbCameraNavigation::zoom(drag->pose, factor, drag->targetWorld));
}

bool CameraInteractionContext::stopDrag(bool takeBack)
{
    if (!drag) {
        return false;
    }
    const CameraPose startPose = drag->startPose;
    drag.reset();
    nbOSGWidget* const view = nbOSGWidget::getMGLW(-1);
    if (takeBack && view) {
        apply(*view, startPose);
    }
    return true;
}

bool CameraInteractionContext::zoomBySteps(double steps)
{
    nbOSGWidget* const view = usableWidget();
    if (!view || !std::isfinite(steps)) {
        return false;
    }
    const CameraPose pose = view->getUberCamera()->getPose();
    const auto factor = static_cast<float>(std::pow(kWheelFactor, steps));
    const CameraPose moved = nbCameraNavigation::zoom(pose, factor, pointedAt(pose, *view));
    rebaseDrag(moved);
    return apply(*view, moved);
}

osg::Pnt3f CameraInteractionContext::pointedAt(const CameraPose& pose,
                                               const nbOSGWidget& view) const
{
    if (picker && detail::pickScene(*picker) != osg::NullFC) {
        return picker->getHitPoint();
    }
    return nbCameraNavigation::unproject(pose, pointerPosition,
                                         nbCameraNavigation::depth(pose, pose.pivot),
                                         view.getWidth(), view.getHeight());
}

bool CameraInteractionContext::apply(nbOSGWidget& view, const CameraPose& pose)
{
    const osg::UberCameraPtr camera = view.getUberCamera();
    if (isSamePlacement(camera->getPose(), pose)) {
        return true;
    }
    if (!camera->setPose(pose)) {
        return false;
    }
    view.update();
    if (InteractionManager* const manager = getInteractionManager()) {
        manager->cameraMoved(camera->getInternalParentNode()->getToWorld());
    }
    if (changedCallback) {
        // A copy, as the callback may replace itself.
        const std::function<void()> callback = changedCallback;
        nbGuarded("CameraInteractionContext: the changed callback", callback);
    }
    return true;
}

void CameraInteractionContext::rebaseDrag(const CameraPose& pose)
{
    if (drag) {
        drag->pose = pose;
        drag->positionPx = pointerPosition;
    }
}

}  // namespace nbec::interaction
