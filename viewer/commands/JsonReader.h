// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <optional>

namespace viewer {

/// Reads values out of JSON and remembers what is wrong, with its path. Every operation answers
/// false when the value is not what it has to be; its target then means nothing.
class JsonReader
{
public:
    /// @param errorText  gets the line; outlives this
    explicit JsonReader(QString& errorText)
        : error(errorText)
    { }

    /// Sets the line "path: what". @return false
    bool fail(const QString& path, const QString& what);

    bool checkKeys(const QJsonObject& object, const QString& path, const QStringList& known);
    /// Reads an array of exactly so many finite numbers.
    bool readNumbers(const QJsonValue& value, const QString& path, double* numbers, int count);
    /// Reads an array of exactly so many numbers of single or double precision as exactJson()
    /// writes them; one outside of the type's range is none.
    template <class Number>
    bool readExact(const QJsonValue& value, const QString& path, Number* numbers, int count);
    /// Reads one such number, which is no array.
    template <class Number>
    bool readExact(const QJsonValue& value, const QString& path, Number& number);
    bool readString(const QJsonValue& value, const QString& path, QString& text);
    bool readBool(const QJsonValue& value, const QString& path, bool& flag);
    /// Reads a whole number from -limit to limit.
    bool readInt(const QJsonValue& value, const QString& path, int limit, int& number);

private:
    QString& error;
};

/// Parses a text that is one JSON object.
/// @param error  one line with the place of the fault ("line 3, column 7: ...")
std::optional<QJsonObject> parseJsonObject(const QByteArray& text, QString& error);

/// An array in which each null has become what another one has in its place; anything else as it
/// is.
QJsonValue withoutGaps(const QJsonValue& value, const QJsonArray& present);

/// What gives a number back, bit for bit, when it is read in double precision and brought back to
/// this type, written with the fewest digits. JSON knows no negative zero: it becomes the text
/// "-0".
/// @param value  finite
QJsonValue exactJson(float value);
QJsonValue exactJson(double value);

}  // namespace viewer
