// SPDX-License-Identifier: MIT
#include "manipulator/course/DragReadout.h"

#include "manipulator/course/TypedValues.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

namespace nbec::manipulator {

namespace {

using Kind = DragParameters::Kind;

constexpr int kAngleDecimals = 1;
constexpr int kFactorDecimals = 2;

QString number(double value, int decimals, bool isSigned)
{
    QString text = QString::number(value, 'f', decimals);
    const bool isNothing = text.toDouble() == 0.0;
    if (isNothing && text.startsWith(QLatin1Char('-'))) {
        text.remove(0, 1);
    }
    return isSigned && value > 0.0 && !isNothing ? QLatin1Char('+') + text : text;
}

/// The numbers that the handle changes.
QString numbers(const HandleAction& action, const DragParameters& parameters, int decimals,
                bool isSigned)
{
    QStringList parts;
    for (const std::size_t i : freeNumbers(action)) {
        parts << number(parameters.values[i], decimals, isSigned);
    }
    return parts.join(QStringLiteral(", "));
}

QString axesOf(const HandleAction& action)
{
    static const QString kNames = QStringLiteral("xyz");
    QStringList parts;
    for (const std::size_t i : freeNumbers(action)) {
        parts << kNames.mid(static_cast<int>(i), 1);
    }
    return parts.join(QStringLiteral(", "));
}

QString tr(const char* text)
{
    return QCoreApplication::translate("nbForegroundTextContext", text);
}

}  // namespace

QString describeDrag(const HandleAction& action, const DragParameters& parameters, int decimals)
{
    switch (action.kind) {
    case Kind::Offset:
        return tr(QT_TRANSLATE_NOOP("nbForegroundTextContext", "%1 along %2"))
            .arg(numbers(action, parameters, decimals, true), axesOf(action));
    case Kind::Angle:
        return tr(QT_TRANSLATE_NOOP("nbForegroundTextContext", "%1 deg"))
            .arg(number(parameters.values[0], kAngleDecimals, false));
    case Kind::Factor:
        return QStringLiteral("x ") + number(parameters.values[0], kFactorDecimals, false);
    case Kind::HalfSizes:
    case Kind::Length:
        return numbers(action, parameters, decimals, false);
    case Kind::Pixels:
        return tr(QT_TRANSLATE_NOOP("nbForegroundTextContext", "%1 px"))
            .arg(numbers(action, parameters, 0, true));
    default:
        return QString();
    }
}

}  // namespace nbec::manipulator
