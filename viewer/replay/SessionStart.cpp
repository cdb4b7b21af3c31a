// SPDX-License-Identifier: MIT
#include "viewer/replay/SessionStart.h"

#include "viewer/stage/Stage.h"

namespace viewer {
namespace {

osg::Pnt3f pointOf(const std::array<double, 3>& p)
{
    return { static_cast<float>(p[0]), static_cast<float>(p[1]), static_cast<float>(p[2]) };
}

CameraPose poseOf(const SessionCamera& camera)
{
    CameraPose pose;
    pose.from = pointOf(camera.from);
    pose.at = pointOf(camera.at);
    pose.up = pointOf(camera.up).subZero();
    pose.pivot = pointOf(camera.pivot.value_or(camera.at));
    pose.fovDeg = static_cast<float>(camera.fovDeg);
    pose.orthographic = camera.orthographic;
    pose.zUp = camera.zUp;
    return pose;
}

}  // namespace

bool beginSession(Stage& stage, const Session& session, QString& error)
{
    stage.gizmo().resetSettings();
    if (session.camera) {
        stage.setPose(poseOf(*session.camera));
    }
    if (session.selection && !stage.selectByName(session.selection->toStdString())) {
        error = QStringLiteral("the session begins with \"%1\" selected, which is not there")
                    .arg(*session.selection);
        return false;
    }
    const bool isKnown =
        session.manipulator.isEmpty() || stage.showManipulator(session.manipulator.toStdString());
    if (!isKnown) {
        error = QStringLiteral("manipulator: unknown name \"%1\"").arg(session.manipulator);
    }
    return isKnown;
}

}  // namespace viewer
