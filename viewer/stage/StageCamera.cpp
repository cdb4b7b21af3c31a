// SPDX-License-Identifier: MIT
// The camera, the part of the stage that has to do with where one looks from.
#include "viewer/stage/Stage.h"

#include <nbInteraction/EventNames.h>
#include <nbInteraction/InteractionEvent.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGBoxVolume.h>

namespace viewer {

void Stage::frame(const osg::NodePtr& node, const CameraPose& from)
{
    const osg::BoxVolume bounds = nbNodeUtils::getWorldBounds(node);
    if (bounds.isEmpty()) {
        return;
    }
    const float aspect = renderWidget.getUberViewport()->getDeviceAspect();
    setPose(nbCameraNavigation::frame(from, bounds.getMin(), bounds.getMax(), aspect));
}

void Stage::frameAll(bool reset)
{
    CameraPose from = pose();
    if (reset) {
        from =
            nbCameraNavigation::standardView(from, nbCameraNavigation::StandardView::ThreeQuarter);
    }
    frame(nbScenegraph::getRootNode(), from);
}

void Stage::frameSelection()
{
    const osg::NodePtr object = selectedObject();
    frame(object != osg::NullFC ? object : nbScenegraph::getRootNode(), pose());
}

bool Stage::refuseMove() const
{
    if (viewHeld && heldCallback) {
        heldCallback();
    }
    return viewHeld;
}

bool Stage::HeldCamera::triggerEvent(nbec::interaction::InteractionManager* asked,
                                     const nbec::interaction::InteractionEvent& event)
{
    namespace names = nbec::interaction::names;
    const bool isCamera = event.getTool() == names::kCamera;
    const bool isWheel = isCamera && event.getEvent() == names::kTrigger;
    if (isCamera && event.getEvent() != names::kStop && stage.refuseMove()) {
        return isWheel;
    }
    // Beside a photograph a whole notch is too far.
    constexpr double kFineWheel = 0.2;
    const double share = isWheel && stage.manipulatorName() == "match" ? kFineWheel : 1.0;
    return CameraInteractionContext::triggerEvent(
        asked,
        nbec::interaction::InteractionEvent(event.getEvent(), event.getTool(), event.getHint(),
                                            share * event.getAmount()));
}

void Stage::setPose(const CameraPose& wanted)
{
    if (!refuseMove()) {
        cameraContext.setPose(wanted);
    }
}

void Stage::holdView(bool on)
{
    if (viewHeld != on) {
        viewHeld = on;
        tellEverybody();
    }
}

void Stage::setStandardView(nbCameraNavigation::StandardView standardView)
{
    setPose(nbCameraNavigation::standardView(pose(), standardView));
}

void Stage::setOrthographic(bool on)
{
    setPose(nbCameraNavigation::withProjection(pose(), on));
}

void Stage::setZUp(bool on)
{
    CameraPose turned = pose();
    turned.zUp = on;
    setPose(
        nbCameraNavigation::standardView(turned, nbCameraNavigation::StandardView::ThreeQuarter));
}

}  // namespace viewer
