// SPDX-License-Identifier: MIT
#include "viewer/gui/ToolIcons.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>

namespace viewer {
namespace {

// Drawn in a square from -1 to 1, y down.
constexpr int kEdgePx = 48;
constexpr double kPen = 0.16;
constexpr double kArm = 0.82;
constexpr double kHead = 0.26;
constexpr double kBox = 0.2;
constexpr double kRing = 0.66;
constexpr int kSixteenths = 16;

void drawHead(QPainter& painter, const QPointF& tip, double angleDeg)
{
    painter.save();
    painter.translate(tip);
    painter.rotate(angleDeg);
    const QPointF corners[] = { { 0.0, 0.0 }, { -kHead * 1.4, kHead }, { -kHead * 1.4, -kHead } };
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    painter.drawPolygon(corners, 3);
    painter.restore();
}

void drawTranslate(QPainter& painter)
{
    painter.drawLine(QPointF(-kArm + kHead, 0), QPointF(kArm - kHead, 0));
    painter.drawLine(QPointF(0, -kArm + kHead), QPointF(0, kArm - kHead));
    drawHead(painter, { kArm, 0 }, 0);
    drawHead(painter, { 0, kArm }, 90);
    drawHead(painter, { -kArm, 0 }, 180);
    drawHead(painter, { 0, -kArm }, 270);
}

void drawRotate(QPainter& painter)
{
    painter.drawArc(QRectF(-kRing, -kRing, 2 * kRing, 2 * kRing), 30 * kSixteenths,
                    290 * kSixteenths);
    drawHead(painter, { kRing + 0.02, -0.12 }, 75);
}

void drawScale(QPainter& painter)
{
    painter.drawLine(QPointF(-0.6, 0.6), QPointF(0.6, -0.6));
    painter.fillRect(QRectF(-kArm, kArm - 3 * kBox, 3 * kBox, 3 * kBox), painter.pen().color());
    painter.fillRect(QRectF(kArm - 2 * kBox, -kArm, 2 * kBox, 2 * kBox), painter.pen().color());
}

void drawUniversal(QPainter& painter)
{
    painter.drawEllipse(QPointF(-0.1, 0.1), 0.5, 0.5);
    painter.drawLine(QPointF(-0.1, 0.1), QPointF(-0.1, -kArm + kHead));
    painter.drawLine(QPointF(-0.1, 0.1), QPointF(kArm - kHead, 0.1));
    drawHead(painter, { -0.1, -0.95 }, 270);
    painter.fillRect(QRectF(kArm - 2 * kBox + 0.1, 0.1 - kBox, 2 * kBox, 2 * kBox),
                     painter.pen().color());
}

void drawPointer(QPainter& painter)
{
    const QPointF corners[] = { { -0.5, -0.85 }, { -0.5, 0.6 },  { -0.12, 0.25 }, { 0.14, 0.85 },
                                { 0.38, 0.74 },  { 0.12, 0.16 }, { 0.6, 0.12 } };
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    painter.drawPolygon(corners, 7);
}

void drawCamera(QPainter& painter)
{
    painter.drawEllipse(QPointF(0, 0), 0.22, 0.22);
    for (int quarter = 0; quarter < 4; ++quarter) {
        painter.drawLine(QPointF(0.45, 0), QPointF(kArm, 0));
        painter.rotate(90);
    }
}

void drawBentArrow(QPainter& painter)
{
    painter.drawArc(QRectF(-0.55, -0.35, 1.25, 1.0), -90 * kSixteenths, 180 * kSixteenths);
    painter.drawLine(QPointF(0.1, -0.35), QPointF(-0.45, -0.35));
    drawHead(painter, { -kArm, -0.35 }, 180);
}

template <class Draw>
QIcon iconOf(Draw draw)
{
    QIcon icon;
    for (const auto group : { QPalette::Active, QPalette::Disabled }) {
        QPixmap picture(kEdgePx, kEdgePx);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(kEdgePx / 2.0, kEdgePx / 2.0);
        painter.scale(kEdgePx / 2.0, kEdgePx / 2.0);
        painter.setPen(QPen(QGuiApplication::palette().color(group, QPalette::WindowText), kPen));
        draw(painter);
        icon.addPixmap(picture, group == QPalette::Active ? QIcon::Normal : QIcon::Disabled);
    }
    return icon;
}

}  // namespace

QIcon gizmoIcon(Gizmo gizmo)
{
    switch (gizmo) {
    case Gizmo::None:
        return iconOf(drawPointer);
    case Gizmo::Universal:
        return iconOf(drawUniversal);
    case Gizmo::Translate:
        return iconOf(drawTranslate);
    case Gizmo::Rotate:
        return iconOf(drawRotate);
    case Gizmo::Scale:
        return iconOf(drawScale);
    case Gizmo::CameraPivot:
        return iconOf(drawCamera);
    default:
        return {};
    }
}

QIcon undoIcon()
{
    return iconOf(drawBentArrow);
}

QIcon redoIcon()
{
    return iconOf([](QPainter& painter) {
        painter.scale(-1.0, 1.0);
        drawBentArrow(painter);
    });
}

}  // namespace viewer
