// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/PerspectiveMatchManipulator.h"
#include "tests/manipulator/support/GizmoScene.h"

#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGUberCamera/nbCameraUtils.h>

#include <OpenSG/OSGGeometry.h>

#include <QtCore/QPointF>

namespace nbec::manipulator::test {

inline constexpr int kWidthPx = 1600;
inline constexpr int kHeightPx = 1000;
/// Nodes of the overlay before those of the lines: the guides.
inline constexpr osg::UInt32 kGuideCount = 4;
inline constexpr osg::UInt32 kNodesPerLine = 3;
inline constexpr osg::Int32 kHighlightSortKey = 64017;

inline osg::NodePtr partNode(PerspectiveMatchManipulator& gizmo, int number, int part)
{
    const auto index = kGuideCount + kNodesPerLine * static_cast<osg::UInt32>(number - 1) +
        static_cast<osg::UInt32>(part - 1);
    const osg::NodePtr node = gizmo.getVisualisation()->getChild(index);
    return part == 1 ? node : node->getChild(0);
}

/// The view of GizmoScene, 1600 x 1000 device pixels, with a perspective match of its camera whose
/// lines lie apart from each other.
class MatchScene : public GizmoScene
{
public:
    MatchScene()
    {
        widget.resize(kWidthPx, kHeightPx);
        layLines();
        nbUndoService::the()->clear();
    }

    /// Forgets the undo steps.
    ~MatchScene() { nbUndoService::the()->clear(); }

    using GizmoScene::pixelOf;

    nbdCameraNode cameraNode() const
    {
        return nbdCameraNode(widget.getUberCamera()->getInternalParentNode().getFieldContainerId());
    }

    nbdPerspectiveMatch match() const { return cameraNode().getPerspectiveMatch(); }

    /// Side of the view that line coordinates refer to, device pixels.
    float referencePx() const
    {
        const bool isVertical = nbCameraUtils::getVerticalSizing(
            widget.getCamera(), widget.getWidth(), widget.getHeight());
        return static_cast<float>(isVertical ? widget.getHeight() : widget.getWidth());
    }

    /// Whole pixel of the pointer, y from the top, that a point in line coordinates lies in.
    osg::Pnt2f pixelOf(const QPointF& linePoint) const
    {
        const auto pixel = [this](double coordinate) {
            return static_cast<float>(std::floor(coordinate * double(referencePx()) + 1e-3));
        };
        const auto lastRow = static_cast<float>(widget.getHeight() - 1);
        return osg::Pnt2f(pixel(linePoint.x()), lastRow - pixel(linePoint.y()));
    }

    /// Installs a manipulator for the camera.
    void installFor(PerspectiveMatchManipulator& gizmo)
    {
        install(gizmo);
        gizmo.setCamera(widget.getUberCamera());
    }

    /// Lays the six lines across the view, whatever its shape: those of x vanish to the right,
    /// those of y above and those of z to the left.
    void layLines() const
    {
        const double unit = referencePx();
        const auto across = [&](double x1, double y1, double x2, double y2) {
            const double width = widget.getWidth() / unit;
            const double height = widget.getHeight() / unit;
            return QLineF(x1 * width, y1 * height, x2 * width, y2 * height);
        };
        const nbdPerspectiveMatch lines = match();
        lines.setXLine1(across(0.15, 0.80, 0.45, 0.70));
        lines.setXLine2(across(0.15, 0.25, 0.45, 0.32));
        lines.setYLine1(across(0.08, 0.20, 0.12, 0.60));
        lines.setYLine2(across(0.92, 0.25, 0.88, 0.60));
        lines.setZLine1(across(0.85, 0.80, 0.55, 0.72));
        lines.setZLine2(across(0.85, 0.20, 0.55, 0.26));
    }

    /// Hovers a point and grabs what is there. @return what "start" answers
    bool grab(const QPointF& linePoint)
    {
        send("hover", pixelOf(linePoint));
        return send("start", pixelOf(linePoint));
    }

    /// Grabs, moves the pointer from its first place by a way in pixels, y up, and lets go.
    void drag(const QPointF& linePoint, const osg::Vec2f& wayPx)
    {
        const osg::Pnt2f from = pixelOf(linePoint);
        const osg::Pnt2f to = from + osg::Vec2f(wayPx.x(), -wayPx.y());
        grab(linePoint);
        send("process", from);
        send("process", to);
        send("stop", to);
    }
};

/// A line as the overlay draws it, numbered from 1; of length 0 at the origin if it is hidden.
inline QLineF drawnLine(PerspectiveMatchManipulator& gizmo, int number)
{
    const osg::NodePtr body = partNode(gizmo, number, 1);
    if (!isShown(body)) {
        return QLineF();
    }
    const auto positions = osg::GeometryPtr::dcast(body->getCore())->getPositions();
    const osg::Pnt3f first = positions->getValue(0);
    const osg::Pnt3f second = positions->getValue(1);
    return QLineF(first.x(), first.y(), second.x(), second.y());
}

/// Whether the body (1), first (2) or second end (3) of a line is drawn as highlighted.
inline bool isHighlighted(PerspectiveMatchManipulator& gizmo, int number, int part)
{
    const auto geometry = osg::GeometryPtr::dcast(partNode(gizmo, number, part)->getCore());
    return geometry->getMaterial()->getSortKey() == kHighlightSortKey;
}

}  // namespace nbec::manipulator::test
