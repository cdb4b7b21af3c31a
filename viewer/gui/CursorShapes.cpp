// SPDX-License-Identifier: MIT
#include "viewer/gui/CursorShapes.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <cmath>

namespace viewer {
namespace {

// Lengths in logical pixels, in a square of kEdge about its centre; y down.
constexpr int kEdge = 32;
constexpr double kReach = 12.0;
constexpr double kHead = 6.0;
constexpr double kHalfHead = 5.0;
constexpr double kHalfShaft = 1.25;
constexpr double kHalfBox = 4.0;
constexpr double kOutline = 3.0;
constexpr double kRingRadius = 9.0;
constexpr double kRingStartDeg = 40.0;
constexpr double kRingSpanDeg = 280.0;
/// Directions are rounded to this, so that a moving camera does not make a cursor each time.
constexpr double kAngleStepDeg = 5.0;

QPainterPath arrowHead(double tip)
{
    const double base = tip > 0.0 ? tip - kHead : tip + kHead;
    QPainterPath path;
    path.moveTo(tip, 0.0);
    path.lineTo(base, kHalfHead);
    path.lineTo(base, -kHalfHead);
    path.closeSubpath();
    return path;
}

QPainterPath bar(double halfLength)
{
    QPainterPath path;
    path.addRect(-halfLength, -kHalfShaft, 2.0 * halfLength, 2.0 * kHalfShaft);
    return path;
}

QPainterPath doubleArrow()
{
    return bar(kReach - kHead).united(arrowHead(kReach)).united(arrowHead(-kReach));
}

QPainterPath boxAt(double x)
{
    QPainterPath path;
    path.addRect(x - kHalfBox, -kHalfBox, 2.0 * kHalfBox, 2.0 * kHalfBox);
    return path;
}

QPainterPath doubleBox()
{
    return bar(kReach).united(boxAt(kReach - kHalfBox)).united(boxAt(kHalfBox - kReach));
}

QPainterPath turned(const QPainterPath& path, double angleDeg)
{
    return QTransform().rotate(-angleDeg).map(path);
}

QPainterPath turningArrow()
{
    QPainterPath arc;
    const QRectF circle(-kRingRadius, -kRingRadius, 2.0 * kRingRadius, 2.0 * kRingRadius);
    arc.arcMoveTo(circle, kRingStartDeg);
    arc.arcTo(circle, kRingStartDeg, kRingSpanDeg);
    QPainterPathStroker stroker;
    stroker.setWidth(2.0 * kHalfShaft);
    // The head stands at the arc's end and points along its tangent.
    const QPointF end = arc.currentPosition();
    const QPainterPath head = QTransform()
                                  .translate(end.x(), end.y())
                                  .rotate(-(kRingStartDeg + kRingSpanDeg + 90.0))
                                  .map(arrowHead(kHead));
    return stroker.createStroke(arc).united(head);
}

QPainterPath shapeOf(const HandleCursor& cursor, double angleDeg)
{
    constexpr double kRightAngle = 90.0;
    constexpr double kDiagonal = 45.0;
    switch (cursor.action) {
    case HandleAction::MoveAlong:
        return turned(doubleArrow(), angleDeg);
    case HandleAction::MoveInPlane:
        return doubleArrow().united(turned(doubleArrow(), kRightAngle));
    case HandleAction::Turn:
        return turningArrow();
    case HandleAction::ScaleAlong:
        return turned(doubleBox(), angleDeg);
    case HandleAction::ScaleAll:
        return turned(doubleBox(), kDiagonal).united(turned(doubleBox(), -kDiagonal));
    case HandleAction::None:
        break;
    }
    return {};
}

}  // namespace

QCursor cursorShape(const HandleCursor& cursor)
{
    if (cursor.action == HandleAction::None) {
        return QCursor(Qt::ArrowCursor);
    }
    const double angleDeg = std::round(cursor.angleDeg / kAngleStepDeg) * kAngleStepDeg;
    QPixmap picture(kEdge, kEdge);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(kEdge / 2.0, kEdge / 2.0);
    const QPainterPath shape = shapeOf(cursor, angleDeg);
    painter.strokePath(shape,
                       QPen(Qt::white, kOutline, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(shape, Qt::black);
    painter.end();
    return QCursor(picture, kEdge / 2, kEdge / 2);
}

}  // namespace viewer
