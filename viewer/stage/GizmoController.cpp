// SPDX-License-Identifier: MIT
#include "viewer/stage/GizmoController.h"

#include "viewer/stage/HandleCursor.h"
#include "viewer/texts/Text.h"

#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/SnapSearch.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGExt/nbContainerId.h>
#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbTransform/nbTransformModel.h>

#include <QString>

#include <array>
#include <utility>

namespace viewer {
namespace {

using nbec::interaction::Picker;
using Transform = nbec::manipulator::UniversalTransformManipulator2;

/// One row for each manipulator: its word, and how the transform gizmo gets into that mode.
struct GizmoRow
{
    Gizmo gizmo;
    const char* name;
    void (Transform::*activate)();
};

constexpr std::array<GizmoRow, 12> kGizmoRows { {
    { Gizmo::None, "none", nullptr },
    { Gizmo::Universal, "universal", &Transform::activateUniversalManipulator },
    { Gizmo::Translate, "translate", &Transform::activateTranslateManipulator },
    { Gizmo::Rotate, "rotate", &Transform::activateRotateManipulator },
    { Gizmo::Scale, "scale", &Transform::activateScaleManipulator },
    { Gizmo::TranslateRotate, "translateRotate", &Transform::activateTranslateRotateManipulator },
    { Gizmo::TranslateRotateScale, "translateRotateScale",
      &Transform::activateTranslateRotateScaleManipulator },
    { Gizmo::TranslateRotateYZ, "translateRotateYZ",
      &Transform::activateTranslateRotateYZManipulator },
    { Gizmo::RotatePivot, "rotatePivot", &Transform::activateRotatePivotManipulator },
    { Gizmo::ScalePivot, "scalePivot", &Transform::activateScalePivotManipulator },
    { Gizmo::Clipping, "clipping", &Transform::activateClippingManipulator },
    { Gizmo::CameraPivot, "camera", nullptr },
} };

const GizmoRow& rowOf(Gizmo gizmo)
{
    for (const GizmoRow& row : kGizmoRows) {
        if (row.gizmo == gizmo) {
            return row;
        }
    }
    return kGizmoRows.front();
}

constexpr float kUsualSize = 32.0F;
constexpr double kUsualTranslationStep = 1.0;
constexpr double kUsualRotationStepDeg = 15.0;
constexpr double kUsualScaleStep = 0.1;

}  // namespace

const char* gizmoName(Gizmo gizmo)
{
    return rowOf(gizmo).name;
}

bool gizmoFromName(const std::string& name, Gizmo& gizmo)
{
    for (const GizmoRow& row : kGizmoRows) {
        if (name == row.name) {
            gizmo = row.gizmo;
            return true;
        }
    }
    return false;
}

GizmoController::GizmoController(nbec::interaction::InteractionManager& interactionManager)
    : manager(interactionManager)
{
    picker.setFilter(Picker::HandleFilter);
    probe.setFilter(Picker::HandleFilter);
    context.setPicker(&picker);
    context.setTitles([this](const std::string& handle) {
        const bool isPivot = current == Gizmo::RotatePivot || current == Gizmo::ScalePivot;
        return isPivot ? QString() : textOfHandle(handle);
    });
    const osg::NodePtr root = nbScenegraph::getInternalRoot();
    transform.setVisualisationRoot(root);
    transform.setSnapRule(Transform::SnapRule::Exact);
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
    if (gizmo == Gizmo::CameraPivot) {
        return &camera;
    }
    return rowOf(gizmo).activate != nullptr ? &transform : nullptr;
}

void GizmoController::applyMode(Gizmo gizmo)
{
    if (const auto activate = rowOf(gizmo).activate) {
        (transform.*activate)();
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

void GizmoController::setTarget(const osg::NodePtr& node, const std::vector<osg::NodePtr>& all)
{
    manager.endDrag();
    targetIds.clear();
    if (node != osg::NullFC) {
        targetIds.push_back(node.getFieldContainerId());
    }
    for (const osg::NodePtr& each : all) {
        if (each != osg::NullFC && each != node) {
            targetIds.push_back(each.getFieldContainerId());
        }
    }
    transform.setNode(node, targets());
    camera.setNode(node);
    // A manipulator hides itself without a node and shows its mode again with one.
    applyMode(current);
    followCamera();
}

std::vector<osg::NodePtr> GizmoController::targets() const
{
    std::vector<osg::NodePtr> nodes;
    for (const osg::UInt32 id : targetIds) {
        const auto node = resolveContainer<osg::NodePtr>(id);
        if (node != osg::NullFC) {
            nodes.push_back(node);
        }
    }
    return nodes;
}

// == Settings

void GizmoController::setLocalSpace(bool on)
{
    setAxes(on ? Axes::Own : Axes::World);
}

void GizmoController::setAxes(Axes which)
{
    const bool isShared = which == Axes::World || which == Axes::Own;
    ownAxes = isShared ? Axes::Shared : which;
    Transform::setLocalSpaceManipulator(which == Axes::Own);
    transform.setAxes(ownAxes);
    followCamera();
}

GizmoController::Axes GizmoController::axes() const
{
    return ownAxes != Axes::Shared            ? ownAxes
        : transform.isLocalSpaceManipulator() ? Axes::Own
                                              : Axes::World;
}

void GizmoController::setPivot(Pivot which)
{
    turnedAbout = which;
    transform.setPivot(which);
    followCamera();
}

void GizmoController::setSnapping(bool on)
{
    snapping = on;
    transform.enableSnapping(on);
}

void GizmoController::setFurtherHandles(const FurtherHandles& handles)
{
    further = handles;
    transform.setFurtherHandles(further);
    followCamera();
}

void GizmoController::setSnapToScene(bool on)
{
    using nbec::interaction::SnapSearch;
    snapToScene = on;
    Transform::SnapSettings settings;
    settings.geometry = on ? SnapSearch::Vertex | SnapSearch::EdgeMiddle | SnapSearch::Centre |
            SnapSearch::Edge | SnapSearch::Face
                           : 0U;
    transform.setSnapping(settings);
}

void GizmoController::setSize(float size)
{
    Transform::setManipulatorSize(size);
    followCamera();
}

void GizmoController::resetSettings()
{
    setLocalSpace(false);
    setPivot(Pivot::Own);
    setSnapping(false);
    setSnapToScene(false);
    setSize(kUsualSize);
    nbTransformModel* model = nbTransformModel::the();
    model->setTranslationPrecision(kUsualTranslationStep);
    model->setRotationPrecision(kUsualRotationStepDeg);
    model->setScalePrecision(kUsualScaleStep);
}

bool GizmoController::centerPivots()
{
    manager.endDrag();
    nbUndoService* undo = nbUndoService::the();
    undo->beginGroup(Text::tr("Centre pivot"));
    bool isDone = false;
    const std::vector<osg::NodePtr> all = targets();
    for (const osg::NodePtr& target : all) {
        transform.setNode(target);
        isDone = transform.centerPivot() || isDone;
    }
    undo->endGroup();
    setTarget(all.empty() ? osg::NodePtr() : all.front(), all);
    return isDone;
}

// == Keeping in step

void GizmoController::update()
{
    if (nbec::manipulator::Manipulator* manipulator = manipulatorOf(current)) {
        manipulator->update(false);
    }
}

void GizmoController::followCamera()
{
    Transform::updateAllManipulators();
    nbec::manipulator::CameraManipulator::updateAllManipulators();
}

osg::NodePtr GizmoController::handles()
{
    nbec::manipulator::Manipulator* manipulator = manipulatorOf(current);
    return manipulator != nullptr ? manipulator->getCollider() : osg::NodePtr();
}

std::string GizmoController::hoveredHandle()
{
    if (!context.grabbedHandle().empty()) {
        return context.grabbedHandle();
    }
    const bool isPossible = pointerInside && current != Gizmo::None;
    // The trackball lies below all others.
    const auto rankOf = [](const osg::NodePtr& node) {
        return nbNodeUtils::getName(node) == "rtShape" ? 1 : 0;
    };
    return isPossible ? nbNodeUtils::getName(probe.pick(rankOf)) : std::string();
}

std::string GizmoController::handleAt(const osg::Pnt2f& px)
{
    return current == Gizmo::None ? std::string() : nbNodeUtils::getName(probe.pickAt(px));
}

}  // namespace viewer
