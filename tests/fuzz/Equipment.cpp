// SPDX-License-Identifier: MIT
// What moves nodes and plates, marks cameras, edits their vanishing lines, and the tools.
#include "tests/fuzz/Equipment.h"

#include <nbKernelServices/nbdPerspectiveMatch.h>
#include <nbOpenSGUberCamera/nbCameraUtils.h>

#include <QtCore/QLineF>

namespace nbec::manipulator::test {

namespace {

constexpr std::array<void (Transform::*)(), 13> kTransformCalls = {
    &Transform::activateUniversalManipulator,
    &Transform::activateTranslateManipulator,
    &Transform::activateScaleManipulator,
    &Transform::activateRotateManipulator,
    &Transform::activateRotatePivotManipulator,
    &Transform::activateScalePivotManipulator,
    &Transform::activateClippingManipulator,
    &Transform::activateTranslateRotateManipulator,
    &Transform::activateTranslateRotateYZManipulator,
    &Transform::activateTranslateRotateScaleManipulator,
    &Transform::activateAdditionalManipulator,
    &Transform::showActiveManipulator,
    &Transform::hideManipulator
};

/// The node of a gizmo, alone or among further ones.
template <class Gizmo>
void select(Gizmo& gizmo, const Stage& stage, Bytes& bytes)
{
    if (bytes.flag()) {
        return gizmo.setNode(stage.node(bytes));
    }
    std::vector<osg::NodePtr> more;
    for (unsigned left = bytes.next() % 4; left > 0; --left) {
        more.push_back(stage.node(bytes));
    }
    gizmo.setNode(stage.node(bytes), more);
}

nbdCameraNode cameraNodeOf(const osg::UberCameraPtr& camera)
{
    return camera == osg::NullFC
        ? nbdCameraNode()
        : nbdCameraNode(camera->getInternalParentNode().getFieldContainerId());
}

nbdPerspectiveMatch::Line someLine(Bytes& bytes)
{
    return static_cast<nbdPerspectiveMatch::Line>(bytes.next() % nbdPerspectiveMatch::kLineCount);
}

QPointF somePoint(Bytes& bytes)
{
    const osg::Vec2f point = bytes.once(4) ? bytes.number2() : bytes.plain2();
    return QPointF(static_cast<double>(point.x()), static_cast<double>(point.y()));
}

/// Calls what the host's objects of a camera offer.
void editMatch(const nbdCameraNode& camera, Bytes& bytes)
{
    const nbdPerspectiveMatch match = camera.getPerspectiveMatch();
    switch (bytes.next() % 6) {
    case 0: {
        const QLineF line { somePoint(bytes), somePoint(bytes) };
        return match.setLine(someLine(bytes), line);
    }
    case 1:
        match.setVanishingLinesType(
            static_cast<nbCameraTypes::VanishingLinesType>(bytes.next() % 5));
        return camera.setFovMode(static_cast<nbCameraTypes::FovMode>(bytes.next() % 3));
    case 2:
        match.setMagnifyFactor(bytes.number());
        return match.setAnchoredToCentre(bytes.flag());
    case 3:
        return camera.setLocked(bytes.flag());
    case 4:
        camera.updateFromPerspectiveMatch();
        return;
    default:
        return camera.layLinesAsSeen();
    }
}

}  // namespace

// == Nodes and cameras

void configure(Transform& gizmo, Stage& stage, Bytes& bytes)
{
    switch (bytes.next() % 8) {
    case 0:
    case 1:
    case 2:
        return select(gizmo, stage, bytes);
    case 3:
        gizmo.enableSnapping(bytes.flag());
        gizmo.setDescriptionEnabled(bytes.flag());
        return Transform::setLocalSpaceManipulator(bytes.flag());
    case 4:
        if (bytes.flag()) {
            return gizmo.setFurtherHandles(
                { bytes.flag(), bytes.flag(), bytes.flag(), bytes.flag(), bytes.flag() });
        }
        gizmo.centerPivot();
        return;
    case 5:
        Transform::setManipulatorSize(bytes.once(4) ? bytes.number() : 32.0F);
        return Transform::updateAllManipulators();
    default:
        return callOneOf(gizmo, kTransformCalls, bytes);
    }
}

void configure(CameraManipulator& gizmo, Stage& stage, Bytes& bytes)
{
    switch (bytes.next() % 4) {
    case 0:
        return select(gizmo, stage, bytes);
    case 1:
        gizmo.setDescriptionEnabled(bytes.flag());
        return CameraManipulator::setLocalSpaceManipulator(bytes.flag());
    case 2:
        CameraManipulator::setManipulatorSize(bytes.once(4) ? bytes.number() : 32.0F);
        return CameraManipulator::updateAllManipulators();
    default:
        return gizmo.activatePivotManipulator();
    }
}

void equip(NodeManipulator& gizmo, Stage& stage)
{
    gizmo.setNode(stage.firstNode());
}

// == Plates and tools

void configure(nbSceneplateManipulator& gizmo, Stage& stage, Bytes& bytes)
{
    switch (bytes.next() % 6) {
    case 0:
        gizmo.enableSnapping(bytes.flag());
        gizmo.setSideHandles([&gizmo](const auto&, const auto&) { gizmo.setSideHandles({}); });
        return gizmo.setDescriptionEnabled(bytes.flag());
    case 1:
        nbSceneplateManipulator::setManipulatorSize(bytes.once(4) ? bytes.number() : 32.0F);
        return nbSceneplateManipulator::updateAllManipulators();
    default:
        return gizmo.setNodes(stage.somePlates(bytes));
    }
}

void equip(nbSceneplateManipulator& gizmo, Stage& stage)
{
    gizmo.setNodes(stage.allPlates());
}

void configure(nbSceneplatePickTool& tool, Stage& stage, Bytes& bytes)
{
    tool.setMessageReceiver(stage.receiver(bytes));
    tool.setShowHitData(bytes.flag());
    nbSceneplatePickTool copied(tool);
    tool = copied;
}

void configure(TexturePlacementPickTool& tool, Stage& stage, Bytes& bytes)
{
    const Stage::Edited edited = stage.edited(bytes);
    tool.setMaterialComponent(edited.material, edited.component, edited.gui);
    tool.setMessageReceiver(stage.receiver(bytes));
    tool.setDescriptionText(stage.hint(bytes));
    tool.setShowHitData(bytes.flag());
    const TexturePlacementPickTool copied(tool);
    tool = copied;
}

// == Vanishing lines

void configure(Match& gizmo, Stage& stage, Bytes& bytes)
{
    const osg::UberCameraPtr camera = stage.camera(bytes);
    if (bytes.once(3)) {
        gizmo.setCamera(camera);
    } else {
        editMatch(cameraNodeOf(camera), bytes);
    }
}

void equip(Match& gizmo, Stage& stage)
{
    if (stage.view != nullptr) {
        gizmo.setCamera(stage.view->getUberCamera());
    }
}

/// A place along one of the lines of the view's camera.
osg::Pnt2f aimAt(Match& /*gizmo*/, const Stage& stage, Bytes& bytes)
{
    const double part = bytes.next() / 255.0;
    if (stage.view == nullptr) {
        return stage.aimAt(osg::NodePtr(), bytes);
    }
    const nbOSGWidget& view = *stage.view;
    const QLineF line =
        cameraNodeOf(view.getUberCamera()).getPerspectiveMatch().getLine(someLine(bytes));
    const bool isVertical =
        nbCameraUtils::getVerticalSizing(view.getCamera(), view.getWidth(), view.getHeight());
    const double unit = isVertical ? view.getHeight() : view.getWidth();
    const QPointF at = line.pointAt(part) * unit;
    return osg::Pnt2f(static_cast<float>(at.x()),
                      static_cast<float>(view.getHeight() - 1 - at.y()));
}

}  // namespace nbec::manipulator::test
