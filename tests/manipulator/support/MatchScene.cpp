// SPDX-License-Identifier: MIT
#include "tests/manipulator/support/MatchScene.h"

#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUberCamera/nbCameraUtils.h>

#include <OpenSG/OSGGeometry.h>

#include <cmath>

namespace nbec::manipulator::test {

namespace {

constexpr int kWidthPx = 1600;
constexpr int kHeightPx = 1000;
/// Nodes of the overlay before those of the lines: the guides.
constexpr osg::UInt32 kGuideCount = 4;
constexpr osg::UInt32 kNodesPerLine = 3;
constexpr osg::Int32 kHighlightSortKey = 64017;

osg::NodePtr partNode(PerspectiveMatchManipulator& gizmo, int number, int part)
{
    const auto index = kGuideCount + kNodesPerLine * static_cast<osg::UInt32>(number - 1) +
        static_cast<osg::UInt32>(part - 1);
    const osg::NodePtr node = gizmo.getVisualisation()->getChild(index);
    return part == 1 ? node : node->getChild(0);
}

}  // namespace

MatchScene::MatchScene()
{
    widget.resize(kWidthPx, kHeightPx);
    layLines();
    nbUndoService::the()->clear();
}

MatchScene::~MatchScene()
{
    nbUndoService::the()->clear();
}

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
    const auto pixel = [this](double coordinate) {
        return static_cast<float>(std::floor(coordinate * double(referencePx()) + 1e-3));
    };
    const auto lastRow = static_cast<float>(widget.getHeight() - 1);
    return osg::Pnt2f(pixel(linePoint.x()), lastRow - pixel(linePoint.y()));
}

void MatchScene::installFor(PerspectiveMatchManipulator& gizmo)
{
    install(gizmo);
    gizmo.setCamera(widget.getUberCamera());
}

void MatchScene::layLines() const
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

bool MatchScene::grab(const QPointF& linePoint)
{
    send("hover", pixelOf(linePoint));
    return send("start", pixelOf(linePoint));
}

void MatchScene::drag(const QPointF& linePoint, const osg::Vec2f& wayPx)
{
    const osg::Pnt2f from = pixelOf(linePoint);
    const osg::Pnt2f to = from + osg::Vec2f(wayPx.x(), -wayPx.y());
    grab(linePoint);
    send("process", from);
    send("process", to);
    send("stop", to);
}

QLineF drawnLine(PerspectiveMatchManipulator& gizmo, int number)
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

bool isHighlighted(PerspectiveMatchManipulator& gizmo, int number, int part)
{
    const auto geometry = osg::GeometryPtr::dcast(partNode(gizmo, number, part)->getCore());
    return geometry->getMaterial()->getSortKey() == kHighlightSortKey;
}

}  // namespace nbec::manipulator::test
