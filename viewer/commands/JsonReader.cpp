// SPDX-License-Identifier: MIT
#include "viewer/commands/JsonReader.h"

#include "viewer/texts/FileRules.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace viewer {
namespace {

constexpr double kMaxCoordinate = 1e9;

/// "line 3, column 7" of a byte in a text; both count from 1.
QString placeInText(const QByteArray& text, int offset)
{
    const QByteArray before = text.left(offset);
    const int line = before.count('\n') + 1;
    const int column = offset - before.lastIndexOf('\n');
    return QStringLiteral("line %1, column %2").arg(line).arg(column);
}

/// A number as exactJson() writes it; not finite if it is none of the type.
template <class Number>
Number exactNumber(const QJsonValue& value)
{
    if (value == QJsonValue("-0")) {
        return Number(-0.0);
    }
    const double read = value.isDouble() ? value.toDouble() : NAN;
    const bool isInRange = std::abs(read) <= double(std::numeric_limits<Number>::max());
    return isInRange ? static_cast<Number>(read) : std::numeric_limits<Number>::quiet_NaN();
}

}  // namespace

bool JsonReader::fail(const QString& path, const QString& what)
{
    constexpr int kLongest = 400;
    error = oneLine(path.isEmpty() ? what : path + QStringLiteral(": ") + what);
    if (error.size() > kLongest) {
        error = error.left(kLongest) + "...";
    }
    return false;
}

bool JsonReader::checkKeys(const QJsonObject& object, const QString& path, const QStringList& known)
{
    for (const QString& key : object.keys()) {
        if (!known.contains(key)) {
            return fail(path, QStringLiteral("unknown entry \"%1\"").arg(key));
        }
    }
    return true;
}

bool JsonReader::readNumbers(const QJsonValue& value, const QString& path, double* numbers,
                             int count)
{
    const QJsonArray array = value.toArray();
    bool areNumbers = value.isArray() && array.size() == count;
    for (int i = 0; areNumbers && i < count; ++i) {
        numbers[i] = array.at(i).toDouble(NAN);
        areNumbers = std::abs(numbers[i]) <= kMaxCoordinate;
    }
    return areNumbers || fail(path, QStringLiteral("expected an array of %1 numbers").arg(count));
}

template <class Number>
bool JsonReader::readExact(const QJsonValue& value, const QString& path, Number* numbers, int count)
{
    const QJsonArray array = value.toArray();
    bool areNumbers = value.isArray() && array.size() == count;
    for (int i = 0; areNumbers && i < count; ++i) {
        numbers[i] = exactNumber<Number>(array.at(i));
        areNumbers = std::isfinite(numbers[i]);
    }
    return areNumbers || fail(path, QStringLiteral("expected an array of %1 numbers").arg(count));
}

template <class Number>
bool JsonReader::readExact(const QJsonValue& value, const QString& path, Number& number)
{
    number = exactNumber<Number>(value);
    return std::isfinite(number) || fail(path, "expected a number");
}

template bool JsonReader::readExact(const QJsonValue&, const QString&, float*, int);
template bool JsonReader::readExact(const QJsonValue&, const QString&, double*, int);
template bool JsonReader::readExact(const QJsonValue&, const QString&, float&);
template bool JsonReader::readExact(const QJsonValue&, const QString&, double&);

bool JsonReader::readString(const QJsonValue& value, const QString& path, QString& text)
{
    text = value.toString();
    return value.isString() || fail(path, "expected a text");
}

bool JsonReader::readBool(const QJsonValue& value, const QString& path, bool& flag)
{
    flag = value.toBool();
    return value.isBool() || fail(path, "expected true or false");
}

bool JsonReader::readInt(const QJsonValue& value, const QString& path, int limit, int& number)
{
    const double read = value.toDouble(NAN);
    if (!value.isDouble() || read != std::floor(read) || !(std::abs(read) <= limit)) {
        return fail(path, QStringLiteral("expected a whole number up to %1").arg(limit));
    }
    number = static_cast<int>(read);
    return true;
}

std::optional<QJsonObject> parseJsonObject(const QByteArray& text, QString& error)
{
    QJsonParseError jsonError;
    const QJsonDocument document = QJsonDocument::fromJson(text, &jsonError);
    if (document.isObject()) {
        return document.object();
    }
    error = document.isNull() ? placeInText(text, jsonError.offset) + ": " + jsonError.errorString()
                              : QStringLiteral("expected a JSON object");
    return std::nullopt;
}

QJsonValue withoutGaps(const QJsonValue& value, const QJsonArray& present)
{
    QJsonArray whole = value.toArray();
    for (int i = 0; i < qMin(whole.size(), present.size()); ++i) {
        if (whole.at(i).isNull()) {
            whole[i] = present.at(i);
        }
    }
    return value.isArray() ? whole : value;
}

QJsonValue exactJson(float value)
{
    constexpr std::size_t kMostDigits = 64;
    std::array<char, kMostDigits> digits {};
    char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    const double found =
        QByteArray(digits.data(), static_cast<int>(end - digits.data())).toDouble();
    // What is read in double precision first may be rounded the other way, or be out of range.
    const bool isGivenBack = std::abs(found) <= double(std::numeric_limits<float>::max()) &&
        static_cast<float>(found) == value;
    return exactJson(isGivenBack ? found : static_cast<double>(value));
}

QJsonValue exactJson(double value)
{
    return value == 0.0 && std::signbit(value) ? QJsonValue("-0") : QJsonValue(value);
}

}  // namespace viewer
