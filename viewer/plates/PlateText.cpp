// SPDX-License-Identifier: MIT
#include "viewer/plates/PlateText.h"

#include "viewer/commands/JsonReader.h"

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

bool readPlateText(const QJsonObject& object, const QString& path, JsonReader& reader,
                   PlateText& text)
{
    constexpr double kMostHeight = 10.0;
    const auto has = [&object](const char* key) { return object.contains(QLatin1String(key)); };
    const auto value = [&object](const char* key) { return object[QLatin1String(key)]; };
    const bool hasText = has("text") || text.text.isEmpty();
    if ((hasText && !reader.readString(value("text"), path + ".text", text.text)) ||
        (has("font") && !reader.readString(value("font"), path + ".font", text.font)) ||
        (has("bold") && !reader.readBool(value("bold"), path + ".bold", text.bold))) {
        return false;
    }
    if (has("color")) {
        text.color = QColor(value("color").toString());
        if (!text.color.isValid()) {
            return reader.fail(path + ".color", "unknown colour");
        }
    }
    text.height = value("height").toDouble(text.height);
    const bool isHeight = value("height").isUndefined() || value("height").isDouble();
    return (isHeight && text.height > 0.0 && text.height <= kMostHeight) ||
        reader.fail(path + ".height", "expected a number above 0, at most 10");
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
