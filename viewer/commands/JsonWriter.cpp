// SPDX-License-Identifier: MIT
#include "viewer/commands/JsonWriter.h"

#include "viewer/commands/Commands.h"

#include <QJsonArray>
#include <QJsonObject>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

namespace viewer {
namespace {

constexpr std::size_t kMostDigits = 64;
constexpr int kIndent = 4;

template <class Number>
QByteArray shortest(Number value)
{
    std::array<char, kMostDigits> digits {};
    const std::to_chars_result end =
        std::to_chars(digits.data(), digits.data() + digits.size(), value);
    return QByteArray(digits.data(), static_cast<int>(end.ptr - digits.data()));
}

bool isNegativeZero(double value)
{
    return value == 0.0 && std::signbit(value);
}

}  // namespace

void JsonWriter::beginObject(Layout layout)
{
    begin(layout, '{');
}

void JsonWriter::endObject()
{
    end('}');
}

void JsonWriter::beginArray(Layout layout)
{
    begin(layout, '[');
}

void JsonWriter::endArray()
{
    end(']');
}

void JsonWriter::key(const QString& name)
{
    separate();
    text += textOf(name).toUtf8() + ": ";
    isNamed = true;
}

void JsonWriter::value(const QJsonValue& any)
{
    if (any.isObject()) {
        const QJsonObject object = any.toObject();
        beginObject(Layout::Inline);
        for (auto entry = object.begin(); entry != object.end(); ++entry) {
            key(entry.key());
            value(entry.value());
        }
        endObject();
    } else if (any.isArray()) {
        beginArray(Layout::Inline);
        const QJsonArray array = any.toArray();
        for (const QJsonValue& entry : array) {
            value(entry);
        }
        endArray();
    } else if (any.isDouble()) {
        number(any.toDouble());
    } else {
        raw(textOf(any).toUtf8());
    }
}

void JsonWriter::number(double value)
{
    raw(value == 0.0 ? QByteArray("0") : shortest(value));
}

void JsonWriter::raw(const QByteArray& json)
{
    separate();
    text += json;
}

QByteArray JsonWriter::take()
{
    text += '\n';
    return std::exchange(text, {});
}

void JsonWriter::begin(Layout layout, char bracket)
{
    separate();
    const bool isWithinLine = !levels.empty() && levels.back().layout == Layout::Inline;
    text += bracket;
    levels.push_back({ isWithinLine ? Layout::Inline : layout });
}

void JsonWriter::end(char bracket)
{
    const Level level = levels.back();
    levels.pop_back();
    if (level.layout == Layout::Lines && !level.isEmpty) {
        text += '\n' + QByteArray(kIndent * static_cast<int>(levels.size()), ' ');
    }
    text += bracket;
}

/// Puts what stands between the last entry and the next one.
void JsonWriter::separate()
{
    if (isNamed || levels.empty()) {
        isNamed = false;
        return;
    }
    Level& level = levels.back();
    if (!level.isEmpty) {
        text += level.layout == Layout::Lines ? "," : ", ";
    }
    level.isEmpty = false;
    if (level.layout == Layout::Lines) {
        text += '\n' + QByteArray(kIndent * static_cast<int>(levels.size()), ' ');
    }
}

QByteArray exactJson(float value)
{
    return isNegativeZero(static_cast<double>(value)) ? QByteArrayLiteral("\"-0\"")
                                                      : shortest(shortDouble(value));
}

double shortDouble(float value)
{
    // What is read in double precision first may be rounded the other way, or be out of range.
    const double found = shortest(value).toDouble();
    const bool isGivenBack = std::abs(found) <= double(std::numeric_limits<float>::max()) &&
        static_cast<float>(found) == value;
    return isGivenBack ? found : static_cast<double>(value);
}

QByteArray exactJson(double value)
{
    return isNegativeZero(value) ? QByteArrayLiteral("\"-0\"") : shortest(value);
}

}  // namespace viewer
