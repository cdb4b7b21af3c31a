// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbValueExpression.h>

#include <QDoubleSpinBox>

namespace viewer {

/// A number that a person types, as nbValueExpression reads it, or steps. What is no number, or
/// lies outside the bounds, is red while it is typed; then it is refused, and the number before
/// comes back. Decimals that are not shown are kept. A drag that begins in a box without the keys
/// steps it, with Shift in tenths.
class NumberBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    /// How the number is shown and stepped.
    struct Style
    {
        static constexpr double kUsualStep = 0.1;
        static constexpr double kUsualBound = 1e6;

        double step = kUsualStep;
        double least = -kUsualBound;
        double most = kUsualBound;
        int decimals = 3;  ///< shown
        nbValueExpression::Measure measure = nbValueExpression::Measure::Number;
    };

    explicit NumberBox(const Style& style, QWidget* parent = nullptr);

    /// Shows a number without telling of it; what is being typed stays unless the number is another
    /// one.
    void display(double number);

    /// The number to its last digit.
    double number() const { return value() == displayedValue ? displayed : value(); }

    QString textFromValue(double number) const override;
    double valueFromText(const QString& text) const override;
    QValidator::State validate(QString& text, int& cursor) const override;
    /// Tells what is wrong with a text that is refused.
    void fixup(QString& text) const override;

signals:
    /// A text was refused. @param reason  one line
    void refused(const QString& reason) const;
    /// A drag that steps the number has begun, or ended.
    void scrubbed(bool isOn);

protected:
    void focusInEvent(QFocusEvent* event) override;
    /// Drags in the text.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    nbValueExpression read(const QString& text) const;
    /// Why a text is refused, one line; empty if it is not.
    QString faultOf(const QString& text) const;

    void scrub(const QMouseEvent& event);

    int shownDecimals;
    nbValueExpression::Measure measure;
    double displayed = 0.0;
    double displayedValue = 0.0;  ///< what of it the box holds
    bool isFocusNew = false;  ///< came with the press that is down
    bool isScrubbing = false;
    int pressX = 0;
    double pressValue = 0.0;
};

}  // namespace viewer
