// SPDX-License-Identifier: MIT
#include "viewer/gui/CaptionBar.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPainter>

namespace viewer {
namespace {

/// Sizes by the smaller side of the area.
constexpr double kTitlePart = 0.038;
constexpr double kTextPart = 0.026;
constexpr double kMarginPart = 0.03;
constexpr double kPaddingPart = 0.022;
constexpr int kLeastTitlePx = 15;
constexpr int kLeastTextPx = 11;
constexpr int kPaddingPerAccent = 5;

const QColor kGround(16, 20, 26, 215);
const QColor kAccent(0xe8, 0xb0, 0x4a);
const QColor kTitleColor(0xff, 0xff, 0xff);
const QColor kTextColor(0xd6, 0xdc, 0xe4);

QFont fontOf(int pixels, bool bold)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(pixels);
    font.setBold(bold);
    font.setStyleStrategy(QFont::PreferAntialias);
    return font;
}

}  // namespace

void paintCaption(QPainter& painter, const QRect& area, const QString& title, const QString& text)
{
    const int side = qMin(area.width(), area.height());
    const int margin = qRound(kMarginPart * side);
    const int padding = qRound(kPaddingPart * side);
    const QFont titleFont = fontOf(qMax(kLeastTitlePx, qRound(kTitlePart * side)), true);
    const QFont textFont = fontOf(qMax(kLeastTextPx, qRound(kTextPart * side)), false);
    const int width = qMax(1, area.width() - 2 * (margin + padding));
    const QRect room(0, 0, width, area.height());
    const int flags = Qt::AlignLeft | Qt::TextWordWrap;
    const QRect titleRect = QFontMetrics(titleFont).boundingRect(room, flags, title);
    const QRect textRect =
        text.isEmpty() ? QRect() : QFontMetrics(textFont).boundingRect(room, flags, text);
    const int gap = text.isEmpty() ? 0 : padding / 3;
    const int height = titleRect.height() + gap + textRect.height();
    const QSize inner(qMax(titleRect.width(), textRect.width()) + 2, height);
    const QRect box(area.left() + margin, area.bottom() - margin - height - 2 * padding + 1,
                    inner.width() + 2 * padding, height + 2 * padding);

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kGround);
    const double radius = static_cast<double>(padding) / 3;
    painter.drawRoundedRect(box, radius, radius);
    painter.setBrush(kAccent);
    painter.drawRect(
        QRect(box.left(), box.top() + padding, qMax(2, padding / kPaddingPerAccent), height));
    painter.setFont(titleFont);
    painter.setPen(kTitleColor);
    const QPoint corner = box.topLeft() + QPoint(padding, padding);
    painter.drawText(QRect(corner, QSize(width, titleRect.height())), flags, title);
    painter.setFont(textFont);
    painter.setPen(kTextColor);
    painter.drawText(
        QRect(corner + QPoint(0, titleRect.height() + gap), QSize(width, textRect.height())), flags,
        text);
    painter.restore();
}

CaptionBar::CaptionBar(QWidget* host)
    : QWidget(host)
{
    setObjectName(QStringLiteral("captionBar"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
    host->installEventFilter(this);
}

void CaptionBar::showCaption(const QString& newTitle, const QString& newText)
{
    shownTitle = newTitle;
    shownText = newText;
    setGeometry(parentWidget()->rect());
    setVisible(!shownTitle.isEmpty());
    setAccessibleName(shownTitle);
    setAccessibleDescription(shownText);
    raise();
    update();
}

bool CaptionBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        setGeometry(parentWidget()->rect());
    }
    return QWidget::eventFilter(watched, event);
}

void CaptionBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintCaption(painter, rect(), shownTitle, shownText);
}

}  // namespace viewer
