// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/PerspectiveMatchManipulator.h"
#include "tests/manipulator/support/GizmoScene.h"

#include <nbKernelServices/nbdCameraNode.h>

#include <QtCore/QLineF>
#include <QtCore/QPointF>

namespace nbec::manipulator::test {

/// The view of GizmoScene with a perspective match of its camera.
class MatchScene : public GizmoScene
{
public:
    using GizmoScene::pixelOf;

    nbdCameraNode cameraNode() const;

    nbdPerspectiveMatch match() const { return cameraNode().getPerspectiveMatch(); }

    /// Side of the view that line coordinates refer to, device pixels.
    float referencePx() const;

    /// Pixel of the pointer, y from the top, whose middle is nearest to a point in line
    /// coordinates.
    osg::Pnt2f pixelOf(const QPointF& linePoint) const;

    /// Installs the manipulator for the camera.
    void install(PerspectiveMatchManipulator& gizmo);

    /// Lays the six lines along edges of a box as the camera would see it from (4, 3, 5), filling
    /// most of the view whatever its shape.
    void layLines() const;
};

}  // namespace nbec::manipulator::test
