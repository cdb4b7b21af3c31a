// SPDX-License-Identifier: MIT
// The part of the stage that has to do with what is seen: the models and the camera.
#include "viewer/loading/BuiltModel.h"
#include "viewer/loading/NodeChildren.h"
#include "viewer/loading/StartScene.h"
#include "viewer/stage/Stage.h"
#include "viewer/stage/StageTool.h"
#include "viewer/texts/Text.h"

#include <nbInteraction/EventNames.h>
#include <nbInteraction/InteractionEvent.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGBoxVolume.h>
#include <OpenSG/OSGGeometry.h>

#include <algorithm>
#include <utility>

#include <ChangeCount.h>

namespace viewer {
namespace {

constexpr float kStartFovDeg = 32.0F;

std::size_t trianglesBelow(const osg::NodePtr& node)
{
    std::size_t count = 0;
    const auto geometry = osg::GeometryPtr::dcast(node->getCore());
    if (geometry != osg::NullFC && geometry->getLengths() != osg::NullFC &&
        !nbNodeUtils::isAuxiliaryNode(node)) {
        for (osg::UInt32 i = 0; i < geometry->getLengths()->getSize(); ++i) {
            const bool areTriangles = geometry->getTypes()->getValue(i) == GL_TRIANGLES;
            count += areTriangles ? geometry->getLengths()->getValue(i) / 3 : 0;
        }
    }
    for (osg::UInt32 i = 0; i < node->getNChildren(); ++i) {
        count += trianglesBelow(node->getChild(i));
    }
    return count;
}

}  // namespace

void Stage::clear()
{
    manager.endDrag();
    viewHeld = false;
    for (StageTool* tool : tools) {
        tool->sceneCleared();
    }
    nbSelection::clear();
    gizmoController.setTarget(osg::NullFC);
    removeChildren(nbScenegraph::getRootNode());
    modelSources = {};
    nbUndoService::the()->clear();
    changed();
}

osg::NodePtr Stage::add(const ModelData& model)
{
    return add(buildModel(model));
}

osg::NodePtr Stage::add(const BuiltModel& model)
{
    const osg::NodePtr node = model.root.get();
    addChild(nbScenegraph::getRootNode(), node);
    modelSources.add(model);
    nbec::interaction::Picker::buildTrees(node);
    changed();
    return node;
}

void Stage::addCopy(const osg::NodePtr& object, const osg::NodePtr& copy,
                    const osg::NodePtr& parent)
{
    addChild(parent, copy);
    modelSources.addCopy(object, copy);
    nbec::interaction::Picker::buildTrees(copy);
    changed();
}

void Stage::replace(const std::vector<osg::RefPtr<osg::NodePtr>>& top, ModelSources sources)
{
    clear();
    const osg::NodePtr root = nbScenegraph::getRootNode();
    for (const osg::RefPtr<osg::NodePtr>& node : top) {
        addChild(root, node.get());
    }
    modelSources = std::move(sources);
    nbec::interaction::Picker::buildTrees(root);
    changed();
}

std::size_t Stage::triangleCount()
{
    const osg::NodePtr root = nbScenegraph::getRootNode();
    const osg::UInt64 changes = osg::getSubtreeChangeCount(root);
    if (changes != countedChanges && !isDragging()) {
        countedChanges = changes;
        triangles = trianglesBelow(root);
    }
    return triangles;
}

void Stage::showStartScene()
{
    clear();
    const osg::NodePtr node = add(makeStartScene());
    CameraPose start;
    start.at = kStartSceneAt;
    // In a narrow view the eye steps back, so that the table keeps its place.
    const float aspect = renderWidget.getUberViewport()->getDeviceAspect();
    const float retreat = aspect > 0.0F ? std::max(1.0F, kStartSceneAspect / aspect) : 1.0F;
    start.from = start.at + (kStartSceneFrom - start.at) * retreat;
    start.pivot = start.at;
    start.fovDeg = kStartFovDeg;
    setPose(start);
    select(findObject(node, kStartSceneMainObject));
    showGizmo(Gizmo::Universal);
}

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
    if (viewHeld && refusalCallback) {
        refusalCallback(Text::tr("The view is held: \"Hold the view\" (Shift+H) lets it go"));
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
