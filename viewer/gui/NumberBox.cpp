// SPDX-License-Identifier: MIT
#include "viewer/gui/NumberBox.h"

#include <nbUtils/nbQt.h>

#include <QApplication>
#include <QFocusEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QSignalBlocker>

#include <utility>

namespace viewer {
namespace {

constexpr int kKeptDecimals = 12;
constexpr int kRangeDigits = 7;

}  // namespace

NumberBox::NumberBox(const Style& style, QWidget* parent)
    : QDoubleSpinBox(parent)
    , shownDecimals(style.decimals)
    , measure(style.measure)
{
    setLocale(QLocale::c());
    setDecimals(kKeptDecimals);
    setRange(style.least, style.most);
    setSingleStep(style.step);
    // Half a number is no edit.
    setKeyboardTracking(false);
    setMinimumWidth(fontMetrics().horizontalAdvance("-000.00"));
    lineEdit()->installEventFilter(this);
    connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
        QPalette shown = palette();
        if (!faultOf(text).isEmpty()) {
            shown.setColor(QPalette::Text, Qt::red);
        }
        lineEdit()->setPalette(shown);
    });
    connect(this, &QAbstractSpinBox::editingFinished, this,
            [this] { lineEdit()->setPalette(palette()); });
}

void NumberBox::focusInEvent(QFocusEvent* event)
{
    isFocusNew = event->reason() == Qt::MouseFocusReason;
    QDoubleSpinBox::focusInEvent(event);
}

bool NumberBox::eventFilter(QObject* watched, QEvent* event)
{
    const auto& mouse = static_cast<const QMouseEvent&>(*event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        pressX = qRound(nbQt::position(mouse).x());
        pressValue = number();
        break;
    case QEvent::MouseMove:
        if (isFocusNew && mouse.buttons() == Qt::LeftButton) {
            scrub(mouse);
            return true;
        }
        break;
    case QEvent::MouseButtonRelease:
        isFocusNew = false;
        if (std::exchange(isScrubbing, false)) {
            emit scrubbed(false);
            return true;
        }
        break;
    default:
        break;
    }
    return QDoubleSpinBox::eventFilter(watched, event);
}

void NumberBox::scrub(const QMouseEvent& event)
{
    constexpr int kPxOfStep = 6;
    constexpr double kFinePart = 0.1;
    const int way = qRound(nbQt::position(event).x()) - pressX;
    if (!isScrubbing && qAbs(way) < QApplication::startDragDistance()) {
        return;
    }
    if (!std::exchange(isScrubbing, true)) {
        emit scrubbed(true);
    }
    const double step = singleStep() * ((event.modifiers() & Qt::ShiftModifier) ? kFinePart : 1.0);
    setValue(pressValue + step * (way / kPxOfStep));
}

void NumberBox::display(double number)
{
    if (number != this->number() || !hasFocus()) {
        const QSignalBlocker blocker(this);
        setValue(number);
        displayed = number;
        displayedValue = value();
    }
}

QString NumberBox::textFromValue(double number) const
{
    static const QRegularExpression kNothing("\\.?0+$");
    QString text = QString::number(number, 'f', shownDecimals);
    if (shownDecimals > 0) {
        text.remove(kNothing);
    }
    return text == "-0" ? "0" : text;
}

nbValueExpression NumberBox::read(const QString& text) const
{
    QString number = text;
    if (!suffix().isEmpty() && number.endsWith(suffix().trimmed())) {
        number.chop(suffix().trimmed().size());
    }
    return nbValueExpression::evaluate(number.toStdString(), measure);
}

double NumberBox::valueFromText(const QString& text) const
{
    const QString shown = textFromValue(value());
    return text == shown || text == shown + suffix() ? value() : read(text).value;
}

QString NumberBox::faultOf(const QString& text) const
{
    const nbValueExpression typed = read(text);
    const QString rest = QString::fromUtf8(text.toUtf8().mid(static_cast<int>(typed.place)));
    switch (typed.fault) {
    case nbValueExpression::Fault::None:
        break;
    case nbValueExpression::Fault::NotUnderstood:
        return rest.isEmpty() ? tr("\"%1\" is not complete").arg(text)
                              : tr("\"%1\" is not understood from \"%2\" on").arg(text, rest);
    case nbValueExpression::Fault::UnitOfSomethingElse:
        return tr("\"%1\": \"%2\" is no unit of this number").arg(text, rest);
    case nbValueExpression::Fault::NotFinite:
        return tr("\"%1\" is no number that can be had").arg(text);
    }
    if (typed.value < minimum() || typed.value > maximum()) {
        return tr("\"%1\" does not lie between %2 and %3")
            .arg(text, QString::number(minimum(), 'g', kRangeDigits),
                 QString::number(maximum(), 'g', kRangeDigits));
    }
    return {};
}

QValidator::State NumberBox::validate(QString& text, int&) const
{
    return faultOf(text).isEmpty() ? QValidator::Acceptable : QValidator::Intermediate;
}

void NumberBox::fixup(QString& text) const
{
    emit refused(faultOf(text));
}

}  // namespace viewer
