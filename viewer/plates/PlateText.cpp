// SPDX-License-Identifier: MIT
#include "viewer/plates/PlateText.h"

#include "viewer/commands/JsonInput.h"
#include "viewer/plates/PlateField.h"

#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>

#include <cmath>

namespace viewer {
namespace {

constexpr int kLargestFontPx = 2000;
constexpr int kLargestSidePx = 8192;

/// Even, so that halving it on the screen meets whole pixels.
int evenUp(double length)
{
    return 2 * static_cast<int>(std::ceil(0.5 * length));
}

}  // namespace

QJsonObject toJson(const PlateText& text)
{
    return { { "text", text.text },
             { "font", text.font },
             { "color", text.color.name(QColor::HexArgb) },
             { "bold", text.bold },
             { "height", text.height } };
}

bool describe(JsonInput& in, PlateText& text)
{
    constexpr double kMostHeight = 10.0;
    return (text.text.isEmpty() ? in.field("text", text.text) : in.maybe("text", text.text)) &&
        in.maybe("font", text.font) && in.maybe("bold", text.bold) &&
        in.maybe("color", text.color) && in.maybe("height", text.height) &&
        in.demand(text.height > 0.0 && text.height <= kMostHeight, "height",
                  "expected a number above 0, at most 10");
}

QImage paintPlateText(const PlateText& text, int viewHeightPx)
{
    QFont font = QGuiApplication::font();
    if (!text.font.isEmpty()) {
        font.setFamily(text.font);
    }
    font.setBold(text.bold);
    font.setStyleStrategy(QFont::PreferAntialias);
    const double lineHeightPx = kTextOversampling * text.height * viewHeightPx;
    font.setPixelSize(qBound(2, qRound(lineHeightPx), kLargestFontPx));
    const QFontMetricsF metrics(font);
    const QRectF letters =
        metrics.boundingRect(QRectF(), Qt::AlignLeft | Qt::TextDontClip, text.text);
    const QSize size(evenUp(letters.width() + 0.2 * metrics.height()), evenUp(letters.height()));
    if (text.text.trimmed().isEmpty() || size.isEmpty() ||
        qMax(size.width(), size.height()) > kLargestSidePx) {
        return {};
    }
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setFont(font);
    painter.setPen(text.color);
    painter.drawText(picture.rect(), Qt::AlignCenter, text.text);
    return picture;
}

}  // namespace viewer
