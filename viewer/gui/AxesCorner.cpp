// SPDX-License-Identifier: MIT
#include "viewer/gui/AxesCorner.h"

#include <nbUtils/nbQt.h>

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <numeric>

namespace viewer {
namespace {

// Logical pixels.
constexpr int kEdge = 84;
constexpr double kArm = 30.0;
constexpr double kEndRadius = 9.0;
constexpr double kOppositeRadius = 6.0;

const std::array<QColor, 3> kColors { QColor(0xe0, 0x5a, 0x50), QColor(0x6c, 0xb5, 0x4a),
                                      QColor(0x52, 0x8f, 0xe0) };
constexpr int kFaintAlpha = 110;

}  // namespace

AxesCorner::AxesCorner(QWidget* host, Stage& targetStage)
    : QWidget(host)
    , stage(targetStage)
{
    setObjectName("axesCorner");
    setAccessibleName(tr("Axes of the world"));
    setToolTip(tr("Click on an axis to look along it"));
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::NoFocus);
    resize(kEdge, kEdge);
    host->installEventFilter(this);
    refresh();
}

void AxesCorner::refresh()
{
    const nbCameraNavigation::Axes axes = nbCameraNavigation::axes(stage.pose());
    std::array<osg::Vec3f, kEnds> seen;
    for (osg::UInt32 i = 0; i < kEnds; ++i) {
        const float sign = i < 3 ? 1.0F : -1.0F;
        seen[i] = osg::Vec3f(axes.right[i % 3], axes.up[i % 3], axes.back[i % 3]) * sign;
    }
    if (seen != ends) {
        ends = seen;
        update();
    }
}

QPointF AxesCorner::endOf(int axis) const
{
    const osg::Vec3f& end = ends[static_cast<std::size_t>(axis)];
    return QPointF(0.5 * kEdge + kArm * static_cast<double>(end[0]),
                   0.5 * kEdge - kArm * static_cast<double>(end[1]));
}

int AxesCorner::endAt(const QPointF& place) const
{
    int found = -1;
    for (int i = 0; i < kEnds; ++i) {
        const bool isNearer = found < 0 ||
            ends[static_cast<std::size_t>(i)][2] > ends[static_cast<std::size_t>(found)][2];
        if (isNearer && QLineF(endOf(i), place).length() <= kEndRadius) {
            found = i;
        }
    }
    return found;
}

bool AxesCorner::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show) {
        move(parentWidget()->width() - kEdge, 0);
    }
    return QWidget::eventFilter(watched, event);
}

void AxesCorner::mousePressEvent(QMouseEvent* event)
{
    using View = nbCameraNavigation::StandardView;
    const int end = endAt(nbQt::position(*event));
    if (end < 0 || event->button() != Qt::LeftButton) {
        return;
    }
    osg::Vec3f wanted;
    wanted[static_cast<osg::UInt32>(end % 3)] = end < 3 ? 1.0F : -1.0F;
    for (const View view :
         { View::Front, View::Back, View::Right, View::Left, View::Top, View::Bottom }) {
        const CameraPose pose = nbCameraNavigation::standardView(stage.pose(), view);
        if (nbCameraNavigation::axes(pose).back.dot(wanted) > 0.9F) {
            emit viewAsked(view);
            return;
        }
    }
}

void AxesCorner::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    std::array<int, kEnds> order {};
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(), [this](int a, int b) {
        return ends[static_cast<std::size_t>(a)][2] < ends[static_cast<std::size_t>(b)][2];
    });
    for (const int end : order) {
        const bool isPositive = end < 3;
        QColor color = kColors[static_cast<std::size_t>(end % 3)];
        const QPointF place = endOf(end);
        painter.setPen(QPen(color, 2.0));
        if (isPositive) {
            painter.drawLine(QPointF(0.5 * kEdge, 0.5 * kEdge), place);
        } else {
            color.setAlpha(kFaintAlpha);
        }
        painter.setBrush(color);
        const double radius = isPositive ? kEndRadius : kOppositeRadius;
        painter.drawEllipse(place, radius, radius);
        if (isPositive) {
            painter.setPen(Qt::white);
            painter.drawText(QRectF(place - QPointF(radius, radius), QSizeF(2, 2) * radius),
                             Qt::AlignCenter, QString(QChar('X' + end)));
        }
    }
}

}  // namespace viewer
