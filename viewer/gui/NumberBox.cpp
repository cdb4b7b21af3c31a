// SPDX-License-Identifier: MIT
#include "viewer/gui/NumberBox.h"

#include <QLineEdit>
#include <QRegularExpression>
#include <QSignalBlocker>

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
    setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("-0000.000")));
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
    static const QRegularExpression kNothing(QStringLiteral("\\.?0+$"));
    QString text = QString::number(number, 'f', shownDecimals);
    if (shownDecimals > 0) {
        text.remove(kNothing);
    }
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
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
