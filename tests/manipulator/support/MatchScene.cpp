// SPDX-License-Identifier: MIT
#include "tests/manipulator/support/MatchScene.h"

#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUberCamera/nbCameraUtils.h>

#include <cmath>

namespace nbec::manipulator::test {

nbdCameraNode MatchScene::cameraNode() const
{
    return nbdCameraNode(widget.getUberCamera()->getInternalParentNode().getFieldContainerId());
}

float MatchScene::referencePx() const
{
    const bool isVertical =
        nbCameraUtils::getVerticalSizing(widget.getCamera(), widget.getWidth(), widget.getHeight());
    return static_cast<float>(isVertical ? widget.getHeight() : widget.getWidth());
}

osg::Pnt2f MatchScene::pixelOf(const QPointF& linePoint) const
{
    const double unit = referencePx();
    return osg::Pnt2f(
        static_cast<float>(std::floor(linePoint.x() * unit)),
        static_cast<float>(widget.getHeight() - 1 - std::floor(linePoint.y() * unit)));
}

void MatchScene::install(PerspectiveMatchManipulator& gizmo)
{
    GizmoScene::install(gizmo);
    gizmo.setCamera(widget.getUberCamera());
}

void MatchScene::layLines() const
{
    const QPointF centre(0.5 * widget.getWidth() / referencePx(),
                         0.5 * widget.getHeight() / referencePx());
    const double size = 0.45 * std::min(widget.getWidth(), widget.getHeight()) / referencePx();
    // A camera at (4, 3, 5) that looks at the origin: its axes, and a projection along them.
    const osg::Vec3f back(0.5657F, 0.4243F, 0.7071F);
    const osg::Vec3f right(0.7809F, 0.0F, -0.6247F);
    const osg::Vec3f up = back.cross(right);
    const auto project = [&](float x, float y, float z) {
        const osg::Vec3f point(x, y, z);
        const float depth = 3.5F - point.dot(back);
        return centre + QPointF(point.dot(right), point.dot(up)) / depth * (2.0 * size);
    };
    const nbdPerspectiveMatch lines = match();
    lines.setXLine1(QLineF(project(-1, 1, 1), project(1, 1, 1)));
    lines.setXLine2(QLineF(project(-1, -1, 1), project(1, -1, 1)));
    lines.setYLine1(QLineF(project(-1, -0.8F, 1), project(-1, 0.8F, 1)));
    lines.setYLine2(QLineF(project(1, -0.8F, -1), project(1, 0.8F, -1)));
    lines.setZLine1(QLineF(project(1, 1, -0.8F), project(1, 1, 0.8F)));
    lines.setZLine2(QLineF(project(1, -1, -0.8F), project(1, -1, 0.8F)));
}

}  // namespace nbec::manipulator::test
