// SPDX-License-Identifier: MIT
#include "viewer/gui/Caption.h"

#include <QGuiApplication>
#include <QPainter>
#include <QTextDocument>

namespace viewer {
namespace {

/// Sizes by the smaller side of the area.
constexpr double kTextPart = 0.026;
constexpr double kMarginPart = 0.03;
constexpr int kLeastTextPx = 11;

const QColor kGround(16, 20, 26, 215);
const QColor kAccent(0xe8, 0xb0, 0x4a);

}  // namespace

void paintCaption(QPainter& painter, const QRect& area, const QString& title, const QString& text)
{
    const int side = qMin(area.width(), area.height());
    const int margin = qRound(kMarginPart * side);
    QFont font = QGuiApplication::font();
    font.setPixelSize(qMax(kLeastTextPx, qRound(kTextPart * side)));
    QTextDocument caption;
    caption.setDefaultFont(font);
    caption.setDocumentMargin(margin);
    caption.setHtml(QStringLiteral("<div style='color: #d6dce4'><big style='color: white'><b>%1</b>"
                                   "</big><br/>%2</div>")
                        .arg(title.toHtmlEscaped(), text.toHtmlEscaped()));
    caption.setTextWidth(
        qMin(caption.idealWidth(), static_cast<double>(area.width() - 2 * margin)));
    painter.save();
    painter.translate(area.left() + margin, area.bottom() - margin - caption.size().height());
    painter.fillRect(QRectF({ 0.0, 0.0 }, caption.size()), kGround);
    painter.fillRect(QRectF(0.0, 0.0, margin / 4.0, caption.size().height()), kAccent);
    caption.drawContents(&painter);
    painter.restore();
}

}  // namespace viewer
