// SPDX-License-Identifier: MIT
#include "viewer/gui/MessageBar.h"

#include <QEvent>

namespace viewer {
namespace {

constexpr int kShownMs = 12000;
constexpr int kMarginPx = 12;

}  // namespace

MessageBar::MessageBar(QWidget* host)
    : QLabel(host)
{
    setObjectName("messageBar");
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    setStyleSheet(QStringLiteral(
        "background: #7a2f24; color: #fff4ee; padding: 8px 12px; border-radius: 4px;"));
    setCursor(Qt::PointingHandCursor);
    hide();
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, &QWidget::hide);
    host->installEventFilter(this);
}

void MessageBar::showMessage(const QString& text)
{
    setText(text);
    show();
    raise();
    place();
    timer.start(kShownMs);
}

bool MessageBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && isVisible()) {
        place();
    }
    return QLabel::eventFilter(watched, event);
}

void MessageBar::mousePressEvent(QMouseEvent*)
{
    hide();
}

void MessageBar::place()
{
    const QRect area = parentWidget()->rect();
    const int widest = qMax(area.width() - 2 * kMarginPx, 1);
    const int width = qMin(fontMetrics().horizontalAdvance(text()) + 3 * kMarginPx, widest);
    const int height = heightForWidth(width);
    setGeometry((area.width() - width) / 2, qMax(area.height() - height - kMarginPx, 0), width,
                height);
}

}  // namespace viewer
