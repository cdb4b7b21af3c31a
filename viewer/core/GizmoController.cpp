// SPDX-License-Identifier: MIT
#include "viewer/core/GizmoController.h"

#include <nbInteraction/InteractionManager.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <array>

namespace viewer {
namespace {

struct GizmoWord
{
    Gizmo gizmo;
    const char* name;
};

constexpr std::array<GizmoWord, 4> kGizmoWords { {
    { Gizmo::None, "none" },
    { Gizmo::Universal, "universal" },
    { Gizmo::Translate, "translate" },
    { Gizmo::CameraPivot, "camera" },
} };

}  // namespace

using nbec::interaction::Picker;

const char* gizmoName(Gizmo gizmo)
{
    for (const GizmoWord& word : kGizmoWords) {
        if (word.gizmo == gizmo) {
            return word.name;
        }
    }
    return kGizmoWords.front().name;
}

bool gizmoFromName(const std::string& name, Gizmo& gizmo)
{
    for (const GizmoWord& word : kGizmoWords) {
        if (name == word.name) {
            gizmo = word.gizmo;
            return true;
        }
    }
    return false;
}

GizmoController::GizmoController(nbec::interaction::InteractionManager& interactionManager)
    : manager(interactionManager)
    , context(nbec::interaction::Manipulator)
{
    picker.setFilter(Picker::HandleFilter);
    probe.setFilter(Picker::HandleFilter);
    context.setPicker(&picker);
    const osg::NodePtr root = nbScenegraph::getInternalRoot();
    transform.setVisualisationRoot(root);
    camera.setVisualisationRoot(root);
}

GizmoController::~GizmoController()
{
    manager.removeContext(&context);
    context.setManipulator(nullptr);
    context.setPicker(nullptr);
}

nbec::manipulator::Manipulator* GizmoController::manipulatorOf(Gizmo gizmo)
{
    switch (gizmo) {
    case Gizmo::Universal:
    case Gizmo::Translate:
        return &transform;
    case Gizmo::CameraPivot:
        return &camera;
    case Gizmo::None:
        break;
    }
    return nullptr;
}

void GizmoController::applyMode(Gizmo gizmo)
{
    if (gizmo == Gizmo::Universal) {
        transform.activateUniversalManipulator();
    } else if (gizmo == Gizmo::Translate) {
        transform.activateTranslateManipulator();
    } else if (gizmo == Gizmo::CameraPivot) {
        camera.activatePivotManipulator();
    }
}

void GizmoController::show(Gizmo gizmo)
{
    if (gizmo == current) {
        return;
    }
    // A context activates its manipulator only when it is added, so it leaves before the change and
    // returns after it.
    manager.removeContext(&context);
    current = gizmo;
    nbec::manipulator::Manipulator* manipulator = manipulatorOf(gizmo);
    context.setManipulator(manipulator);
    probe.setPickNode(handles());
    if (manipulator == nullptr) {
        return;
    }
    manager.addContext(&context);
    applyMode(gizmo);
    followCamera();
}

void GizmoController::setTarget(const osg::NodePtr& node)
{
    transform.setNode(node);
    camera.setNode(node);
    // A manipulator hides itself without a node and shows its mode again with one.
    applyMode(current);
    followCamera();
}

void GizmoController::update()
{
    if (nbec::manipulator::Manipulator* manipulator = manipulatorOf(current)) {
        manipulator->update(false);
    }
}

void GizmoController::followCamera()
{
    nbec::manipulator::UniversalTransformManipulator2::updateAllManipulators();
    nbec::manipulator::CameraManipulator::updateAllManipulators();
}

osg::NodePtr GizmoController::handles()
{
    nbec::manipulator::Manipulator* manipulator = manipulatorOf(current);
    return manipulator != nullptr ? manipulator->getCollider() : osg::NodePtr();
}

std::string GizmoController::hoveredHandle()
{
    const bool isPossible = pointerInside && current != Gizmo::None;
    return isPossible ? nbNodeUtils::getName(probe.pick()) : std::string();
}

std::string GizmoController::handleAt(const osg::Pnt2f& px)
{
    return current == Gizmo::None ? std::string() : nbNodeUtils::getName(probe.pickAt(px));
}

void GizmoController::setPixelRatio(float ratio)
{
    picker.setPixelRatio(ratio);
    probe.setPixelRatio(ratio);
}

}  // namespace viewer
