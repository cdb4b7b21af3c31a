// SPDX-License-Identifier: MIT
#include "viewer/gui/CursorShapes.h"

#include "viewer/gui/ThemeIcon.h"

#include <QPainter>
#include <QPixmap>

#include <array>
#include <cmath>

namespace viewer {
namespace {

constexpr int kEdge = 32;  ///< logical pixels
/// Directions are rounded to this, so that a moving camera does not make a cursor each time.
constexpr double kAngleStepDeg = 5.0;

/// In the order of HandleAction.
constexpr std::array<const char*, 6> kPictures {
    "", "cursorMoveAlong", "cursorMoveInPlane", "cursorTurn", "cursorScaleAlong", "cursorScaleAll"
};

}  // namespace

QCursor cursorShape(const HandleCursor& cursor)
{
    if (cursor.action == HandleAction::None) {
        return QCursor(Qt::ArrowCursor);
    }
    QPixmap picture(kEdge, kEdge);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(kEdge / 2.0, kEdge / 2.0);
    painter.rotate(-std::round(cursor.angleDeg / kAngleStepDeg) * kAngleStepDeg);
    themeIcon(QLatin1String(kPictures[static_cast<std::size_t>(cursor.action)]))
        .paint(&painter, -kEdge / 2, -kEdge / 2, kEdge, kEdge);
    painter.end();
    return QCursor(picture, kEdge / 2, kEdge / 2);
}

}  // namespace viewer
