// SPDX-License-Identifier: MIT
#include "viewer/gui/SelectionRectangle.h"

#include <nbKernel/nbOSGWidget.h>

#include <QPainter>

namespace viewer {
namespace {

const QColor kFill(255, 255, 255, 28);
const QColor kDarkLine(20, 22, 26, 160);
const QColor kLightLine(245, 246, 250);

}  // namespace

bool hasSelectionRectangle(const nbOSGWidget& view)
{
    return view.getRectSelection() && !view.getMouseRect().isEmpty();
}

void paintSelectionRectangle(QPainter& painter, const nbOSGWidget& view, double pixelRatio)
{
    if (!hasSelectionRectangle(view)) {
        return;
    }
    const QRect px = view.getMouseRect();
    const QRectF rectangle(px.left() / pixelRatio, px.top() / pixelRatio,
                           (px.width() - 1) / pixelRatio, (px.height() - 1) / pixelRatio);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(rectangle, kFill);
    // Dashes of two colours show on any ground.
    painter.setPen(QPen(kDarkLine, 0.0));
    painter.drawRect(rectangle);
    painter.setPen(QPen(kLightLine, 0.0, Qt::DashLine));
    painter.drawRect(rectangle);
    painter.restore();
}

}  // namespace viewer
