// SPDX-License-Identifier: MIT
#include "manipulator/course/DragReadout.h"

#include "manipulator/course/TypedValues.h"
#include "manipulator/course/ValueText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

#include <cmath>

namespace nbec::manipulator {

namespace {

using Kind = DragParameters::Kind;

constexpr int kAngleDecimals = 1;
constexpr int kFactorDecimals = 2;

QString translated(const char* text)
{
    return QCoreApplication::translate("nbForegroundTextContext", text);
}

QString axisName(const HandleAction& action, std::size_t axis)
{
    if (action.isOfView) {
        return translated(axis == 0 ? QT_TRANSLATE_NOOP("nbForegroundTextContext", "right")
                                    : QT_TRANSLATE_NOOP("nbForegroundTextContext", "up"));
    }
    return QString(QLatin1Char("xyz"[axis]));
}

/// Something of each number that the handle changes.
template <class Function>
QString listed(const HandleAction& action, const Function& textOf)
{
    QStringList parts;
    for (const std::size_t i : freeNumbers(action)) {
        parts << textOf(i);
    }
    return parts.join(QStringLiteral(", "));
}

QString numbers(const HandleAction& action, const DragParameters& parameters, int decimals,
                bool isSigned)
{
    return listed(action, [&](std::size_t i) {
        const double value = parameters.values[i];
        const QString text = describeNumber(value, decimals);
        const bool isMore = isSigned && value > 0.0 && text.toDouble() != 0.0;
        return isMore ? QLatin1Char('+') + text : text;
    });
}

/// Whole turns are told apart, as "765.0 = 2 x 360 + 45.0".
QString turn(double degrees)
{
    constexpr double kWholeTurn = 360.0;
    const double whole = std::trunc(degrees / kWholeTurn);
    const QString text = describeNumber(degrees, kAngleDecimals);
    const double rest = degrees - whole * kWholeTurn;
    return whole == 0.0
        ? text
        : QStringLiteral("%1 = %2 x 360 %3 %4")
              .arg(text, describeNumber(whole, 0), QLatin1String(rest < 0.0 ? "-" : "+"),
                   describeNumber(std::abs(rest), kAngleDecimals));
}

QString withUnit(const char* unit, const QString& value)
{
    return translated(unit).arg(value);
}

/// What the drag changes, as it has become.
QString present(const HandleAction& action, const DragParameters& value, int decimals)
{
    constexpr const char* kDegrees = QT_TRANSLATE_NOOP("nbForegroundTextContext", "%1 deg");
    switch (value.kind) {
    case Kind::Offset:
        return listed(action, [&](std::size_t i) {
            return axisName(action, i) + QLatin1Char(' ') +
                describeNumber(value.values[i], decimals);
        });
    case Kind::Angle:
        return withUnit(kDegrees, describeNumber(value.values[0], kAngleDecimals));
    case Kind::Factor:
        return listed({ Kind::Offset, action.axes }, [&](std::size_t i) {
            return describeNumber(value.values[i], kFactorDecimals);
        });
    default:
        return QString();
    }
}

QString change(const HandleAction& action, const DragParameters& parameters, int decimals)
{
    switch (action.kind) {
    case Kind::Offset:
        return translated(QT_TRANSLATE_NOOP("nbForegroundTextContext", "%1 along %2"))
            .arg(numbers(action, parameters, decimals, true),
                 listed(action, [&](std::size_t i) { return axisName(action, i); }));
    case Kind::Angle:
        return withUnit("%1 deg", turn(parameters.values[0]));
    case Kind::Turns:
        return withUnit("%1 deg", numbers(action, parameters, kAngleDecimals, false));
    case Kind::Factor:
        return QStringLiteral("x ") + describeNumber(parameters.values[0], kFactorDecimals);
    case Kind::HalfSizes:
    case Kind::Length:
        return numbers(action, parameters, decimals, false);
    case Kind::Pixels:
        return withUnit(QT_TRANSLATE_NOOP("nbForegroundTextContext", "%1 px"),
                        numbers(action, parameters, 0, true));
    default:
        return QString();
    }
}

}  // namespace

QString describeDrag(const HandleAction& action, const DragParameters& parameters,
                     const DragParameters& become, int decimals)
{
    const QString text = change(action, parameters, decimals);
    const QString now = present(action, become, decimals);
    return now.isEmpty() ? text : text + QStringLiteral(" (") + now + QLatin1Char(')');
}

}  // namespace nbec::manipulator
