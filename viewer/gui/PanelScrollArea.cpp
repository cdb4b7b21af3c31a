// SPDX-License-Identifier: MIT
#include "viewer/gui/PanelScrollArea.h"

#include <QEvent>
#include <QScrollBar>

namespace viewer {
namespace {

/// Lines of text that are seen at least.
constexpr int kLeastLines = 4;

}  // namespace

PanelScrollArea::PanelScrollArea(QWidget* content, QWidget* parent)
    : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Keys are for what is in it.
    setFocusPolicy(Qt::NoFocus);
    setWidget(content);
    content->installEventFilter(this);
    measure();
}

void PanelScrollArea::measure()
{
    const int needed = widget()->minimumSizeHint().width();
    if (needed > widest) {
        widest = needed;
        updateGeometry();
    }
}

QSize PanelScrollArea::minimumSizeHint() const
{
    const int bar = verticalScrollBar()->sizeHint().width();
    return { widest + bar, kLeastLines * fontMetrics().lineSpacing() };
}

QSize PanelScrollArea::sizeHint() const
{
    return { minimumSizeHint().width(), widget()->sizeHint().height() };
}

bool PanelScrollArea::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        measure();
    }
    return QScrollArea::eventFilter(watched, event);
}

}  // namespace viewer
