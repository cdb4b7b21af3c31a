// SPDX-License-Identifier: MIT
// What edits the vanishing lines of cameras.
#include "tests/fuzz/Equipment.h"

#include <nbKernelServices/nbdPerspectiveMatch.h>
#include <nbOpenSGUberCamera/nbCameraUtils.h>

#include <QtCore/QLineF>

namespace nbec::manipulator::test {

namespace {

using Gizmo = PerspectiveMatchManipulator;

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

void configure(Gizmo& gizmo, Stage& stage, Bytes& bytes)
{
    const osg::UberCameraPtr camera = stage.camera(bytes);
    if (bytes.once(3)) {
        gizmo.setCamera(camera);
    } else {
        editMatch(cameraNodeOf(camera), bytes);
    }
}

void equip(Gizmo& gizmo, Stage& stage)
{
    if (stage.view != nullptr) {
        gizmo.setCamera(stage.view->getUberCamera());
    }
}

/// A place along one of the lines of the view's camera.
osg::Pnt2f aimAt(Gizmo& /*gizmo*/, const Stage& stage, Bytes& bytes)
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
