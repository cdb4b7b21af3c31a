// SPDX-License-Identifier: MIT
#include <nbNotification/NotificationManager.h>
#include <nbView/nbTextPainter.h>

#include <QtGui/QFontMetricsF>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

#include <map>
#include <utility>

namespace {

using nbec::notification::NotificationManager;
using nbec::notification::NotifierSettings;
using nbec::notification::VisibleText;

/// Height of the font for a text size of 1, logical pixels.
constexpr float kFontPx = 14.0F;
constexpr double kPaddingX = 8.0;
constexpr double kPaddingY = 4.0;
constexpr double kGap = 4.0;
/// The back lets the scene shimmer through, so that nothing is hidden for good.
constexpr double kBackOpacity = 0.8;

QColor colorOf(const osg::Color3f& color, double opacity = 1.0)
{
    const auto bounded = [](float value) { return qBound(0.0, static_cast<double>(value), 1.0); };
    return QColor::fromRgbF(bounded(color[0]), bounded(color[1]), bounded(color[2]), opacity);
}

QFont fontOf(const NotifierSettings& settings)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(qMax(1, qRound(kFontPx * settings.textSize)));
    return font;
}

/// @param view     what does not fit into it beside its place moves back
/// @param offsetY  how far down earlier texts of the same place reach
/// @return height taken
double paintText(QPainter& painter, const VisibleText& text, const QSize& view, double offsetY)
{
    const QFont font = fontOf(text.settings);
    const QFontMetricsF metrics(font);
    const QRectF textArea =
        metrics.boundingRect(QRectF(0.0, 0.0, text.area.width(), 0.0), Qt::AlignLeft, text.text);
    QRectF box(text.area.left(), text.area.top() + offsetY, textArea.width() + 2.0 * kPaddingX,
               textArea.height() + 2.0 * kPaddingY);
    const QPointF back(qMin(0.0, view.width() - box.right()),
                       qMin(0.0, view.height() - box.bottom()));
    box.translate(back);
    painter.save();
    painter.setClipRect(back.isNull() ? text.area : box);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(box, colorOf(text.settings.backColor, kBackOpacity));
    painter.setPen(colorOf(text.settings.lineColor));
    painter.drawRect(box.adjusted(0.0, 0.0, -1.0, -1.0));
    painter.setFont(font);
    painter.setPen(colorOf(text.settings.textColor));
    painter.drawText(box.adjusted(kPaddingX, kPaddingY, 0.0, 0.0), Qt::AlignLeft, text.text);
    painter.restore();
    return box.height() + kGap;
}

}  // namespace

bool nbTextPainter::hasTexts(const QSize& logicalSize)
{
    return !NotificationManager::getInstance()
                ->getVisibleTexts(logicalSize.width(), logicalSize.height())
                .empty();
}

void nbTextPainter::paintLabel(QPainter& painter, const QPointF& place, const QString& text)
{
    constexpr double kOffset = 6.0;
    constexpr double kOutline = 3.0;
    QPainterPath letters;
    letters.addText(place + QPointF(kOffset, -kOffset), fontOf({}), text);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(letters, QPen(Qt::black, kOutline));
    painter.fillPath(letters, Qt::white);
    painter.restore();
}

void nbTextPainter::paintTexts(QPainter& painter, const QSize& logicalSize)
{
    std::map<std::pair<double, double>, double> taken;
    for (const VisibleText& text : NotificationManager::getInstance()->getVisibleTexts(
             logicalSize.width(), logicalSize.height())) {
        double& offset = taken[{ text.area.left(), text.area.top() }];
        offset += paintText(painter, text, logicalSize, offset);
    }
}
