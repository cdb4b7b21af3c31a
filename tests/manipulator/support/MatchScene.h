// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/PerspectiveMatchManipulator.h"
#include "tests/manipulator/support/GizmoScene.h"

#include <nbKernelServices/nbdCameraNode.h>

#include <OpenSG/OSGVector.h>

#include <QtCore/QLineF>
#include <QtCore/QPointF>

namespace nbec::manipulator::test {

/// The view of GizmoScene, 1600 x 1000 device pixels, with a perspective match of its camera whose
/// lines lie apart from each other.
class MatchScene : public GizmoScene
{
public:
    MatchScene();
    /// Forgets the undo steps.
    ~MatchScene();

    using GizmoScene::pixelOf;

    nbdCameraNode cameraNode() const;

    nbdPerspectiveMatch match() const { return cameraNode().getPerspectiveMatch(); }

    /// Side of the view that line coordinates refer to, device pixels.
    float referencePx() const;

    /// Whole pixel of the pointer, y from the top, that a point in line coordinates lies in.
    osg::Pnt2f pixelOf(const QPointF& linePoint) const;

    /// Installs a manipulator for the camera.
    void installFor(PerspectiveMatchManipulator& gizmo);

    /// Lays the six lines across the view, whatever its shape: those of x vanish to the right,
    /// those of y above and those of z to the left.
    void layLines() const;

    /// Hovers a point and grabs what is there. @return what "start" answers
    bool grab(const QPointF& linePoint);

    /// Grabs, moves the pointer from its first place by a way in pixels, y up, and lets go.
    void drag(const QPointF& linePoint, const osg::Vec2f& wayPx);
};

/// A line as the overlay draws it, numbered from 1; of length 0 at the origin if it is hidden.
QLineF drawnLine(PerspectiveMatchManipulator& gizmo, int number);

/// Whether the body (1), first (2) or second end (3) of a line is drawn as highlighted.
bool isHighlighted(PerspectiveMatchManipulator& gizmo, int number, int part);

}  // namespace nbec::manipulator::test
