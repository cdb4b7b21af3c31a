// SPDX-License-Identifier: MIT
#include "manipulator/course/TypedValues.h"

#include <nbUtils/nbValueExpression.h>

#include <algorithm>

namespace nbec::manipulator {

namespace {

nbValueExpression::Measure measureOf(DragParameters::Kind kind)
{
    using Kind = DragParameters::Kind;
    const bool isAngle = kind == Kind::Angle || kind == Kind::Turns;
    const bool isLength = kind == Kind::Offset || kind == Kind::HalfSizes || kind == Kind::Length;
    return isAngle ? nbValueExpression::Measure::Angle
        : isLength ? nbValueExpression::Measure::Length
                   : nbValueExpression::Measure::Number;
}

std::optional<double> valueOf(const QString& text, DragParameters::Kind kind)
{
    const nbValueExpression typed =
        nbValueExpression::evaluate(text.toStdString(), measureOf(kind));
    return typed.fault == nbValueExpression::Fault::None ? std::optional<double>(typed.value)
                                                         : std::nullopt;
}

}  // namespace

std::vector<std::size_t> freeNumbers(const HandleAction& action)
{
    using Kind = DragParameters::Kind;
    std::vector<std::size_t> places;
    if (action.kind == Kind::Offset || action.kind == Kind::HalfSizes ||
        action.kind == Kind::Pixels || action.kind == Kind::Turns) {
        for (std::size_t i = 0; i < DragParameters::kMostValues; ++i) {
            if (hasAxis(action.axes, i)) {
                places.push_back(i);
            }
        }
    }
    return places.empty() ? std::vector<std::size_t> { 0 } : places;
}

bool TypedValues::isActive() const
{
    return std::any_of(texts.begin(), texts.end(),
                       [](const QString& text) { return !text.isEmpty(); });
}

bool TypedValues::add(QChar key)
{
    static const QString kOthers = QString::fromUtf8(".,+-*/()% acdegmr\u00b0");
    if (!key.isDigit() && !kOthers.contains(key)) {
        return false;
    }
    texts[current] += key;
    return true;
}

std::optional<DragParameters> TypedValues::in(const DragParameters& dragged,
                                              const HandleAction& action)
{
    const std::vector<std::size_t> places = freeNumbers(action);
    DragParameters result = dragged;
    result.isExact = true;
    isEvaluated = true;
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (texts[i].isEmpty()) {
            continue;
        }
        const std::optional<double> value = valueOf(texts[i], action.kind);
        isEvaluated = isEvaluated && value;
        result.values[places[i]] = value.value_or(0.0);
    }
    return isEvaluated ? std::optional<DragParameters>(result) : std::nullopt;
}

QString TypedValues::getText() const
{
    QString result;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (!texts[i].isEmpty() || i == current) {
            result += result.isEmpty() ? QString() : QStringLiteral(", ");
            result += texts[i];
        }
    }
    return result;
}

}  // namespace nbec::manipulator
