// SPDX-License-Identifier: MIT
#include "viewer/gui/FieldRules.h"

#include "viewer/gui/NumberBox.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>

namespace viewer {
namespace {

/// Whether the wheel would change a value.
bool isField(const QWidget& widget)
{
    return qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
        qobject_cast<const QComboBox*>(&widget) != nullptr ||
        (qobject_cast<const QAbstractSlider*>(&widget) != nullptr &&
         qobject_cast<const QScrollBar*>(&widget) == nullptr);
}

/// Where the text of a field is typed; null if it has none.
const QLineEdit* lineOf(const QWidget& widget)
{
    const auto* line = qobject_cast<const QLineEdit*>(&widget);
    return line == nullptr && isField(widget) ? widget.findChild<QLineEdit*>() : line;
}

}  // namespace

FieldRules::FieldRules(QWidget& mainView)
    : view(mainView)
{
    qApp->installEventFilter(this);
}

bool FieldRules::eventFilter(QObject* watched, QEvent* event)
{
    auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr) {
        return false;
    }
    switch (event->type()) {
    case QEvent::Polish:
        if (isField(*widget) && widget->focusPolicy() == Qt::WheelFocus) {
            widget->setFocusPolicy(Qt::StrongFocus);
        }
        if (const auto* box = qobject_cast<const NumberBox*>(widget)) {
            connect(box, &NumberBox::refused, this, &FieldRules::refused, Qt::UniqueConnection);
        }
        return false;
    case QEvent::Wheel:
        if (isField(*widget) && !widget->hasFocus()) {
            // What lies around it scrolls.
            event->ignore();
            return true;
        }
        return false;
    case QEvent::Enter:
        if (widget == &view && view.isActiveWindow()) {
            view.setFocus(Qt::MouseFocusReason);
        }
        return false;
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if ((key == Qt::Key_Return || key == Qt::Key_Enter) && lineOf(*widget) != nullptr &&
            widget->window() == view.window()) {
            // After the field has read what was typed.
            QMetaObject::invokeMethod(&view, QOverload<>::of(&QWidget::setFocus),
                                      Qt::QueuedConnection);
        }
        return false;
    }
    case QEvent::ShortcutOverride: {
        const auto* keys = static_cast<QKeyEvent*>(event);
        const QLineEdit* line = lineOf(*widget);
        const bool isScenes = line != nullptr &&
            ((keys->matches(QKeySequence::Undo) && !line->isUndoAvailable()) ||
             (keys->matches(QKeySequence::Redo) && !line->isRedoAvailable()));
        event->setAccepted(event->isAccepted() && !isScenes);
        return isScenes;
    }
    default:
        return false;
    }
}

}  // namespace viewer
