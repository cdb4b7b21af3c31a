// SPDX-License-Identifier: MIT
#include "viewer/commands/Commands.h"

#include "viewer/commands/JsonReader.h"
#include "viewer/texts/Text.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace viewer {
namespace {

template <class Map>
void removeWithPrefix(Map& map, const QString& prefix)
{
    for (auto entry = map.begin(); entry != map.end();) {
        entry = entry->first.startsWith(prefix) ? map.erase(entry) : std::next(entry);
    }
}

template <class Map>
QStringList namesIn(const Map& map)
{
    QStringList all;
    for (const auto& entry : map) {
        all.append(entry.first);
    }
    return all;
}

bool areNear(const QJsonArray& found, const QJsonArray& expected, double tolerance)
{
    return std::equal(
        found.begin(), found.end(), expected.begin(), expected.end(),
        [tolerance](const QJsonValue& a, const QJsonValue& b) { return isNear(a, b, tolerance); });
}

bool areNear(const QJsonObject& found, const QJsonObject& expected, double tolerance)
{
    const QStringList keys = expected.keys();
    return std::all_of(keys.begin(), keys.end(), [&](const QString& key) {
        return isNear(found.value(key), expected.value(key), tolerance);
    });
}

}  // namespace

void Commands::addSwitch(const QString& name, SetSwitch set, std::function<bool()> isOn)
{
    add(name,
        [name, set = std::move(set), isOn = std::move(isOn)](const QJsonValue& value,
                                                             QString& error) {
            bool on = value.isNull() && isOn && !isOn();
            return ((value.isNull() && isOn) || JsonReader(error).readBool(value, name, on)) &&
                set(on, error);
        });
}

void Commands::addSwitch(const QString& name, std::function<void(bool on)> set,
                         std::function<bool()> isOn)
{
    const SetSwitch always = [set = std::move(set)](bool on, QString&) {
        set(on);
        return true;
    };
    addSwitch(name, always, std::move(isOn));
}

void Commands::addChoice(const QString& name, const QStringList& words,
                         std::function<bool(int place, QString& error)> choose)
{
    add(name, [name, words, choose = std::move(choose)](const QJsonValue& value, QString& error) {
        const int place = value.isString() ? words.indexOf(value.toString()) : -1;
        return place < 0 ? JsonReader(error).fail(
                               name, QStringLiteral("expected one of: %1").arg(words.join(", ")))
                         : choose(place, error);
    });
}

void Commands::addNumber(const QString& name, double least, double most, SetNumber set)
{
    add(name, [name, least, most, set = std::move(set)](const QJsonValue& value, QString& error) {
        const double number = value.toDouble(NAN);
        return number >= least && number <= most
            ? set(number, error)
            : JsonReader(error).fail(
                  name, QStringLiteral("expected a number from %1 to %2").arg(least).arg(most));
    });
}

void Commands::remove(const QString& prefix)
{
    removeWithPrefix(commands, prefix);
    removeWithPrefix(values, prefix);
}

bool Commands::run(const QString& name, const QJsonValue& value, QString& error)
{
    const auto found = commands.find(name);
    if (found == commands.end()) {
        error = QStringLiteral("there is no command \"%1\"").arg(name);
        return false;
    }
    if (isBusy && isBusy()) {
        error = Text::tr("%1: not while something is being dragged").arg(name);
        return false;
    }
    // A command may replace itself while it runs.
    const Run command = found->second;
    if (!command(value, error)) {
        return false;
    }
    if (listener) {
        listener(name);
    }
    return true;
}

std::optional<QJsonValue> Commands::value(const QString& name) const
{
    const auto found = values.find(name);
    return found == values.end() ? std::nullopt : std::make_optional(found->second());
}

QStringList Commands::names() const
{
    return namesIn(commands);
}

QStringList Commands::valueNames() const
{
    return namesIn(values);
}

QString Commands::filePath(const QString& name) const
{
    return QDir::cleanPath(folder.absoluteFilePath(name));
}

bool isNear(const QJsonValue& found, const QJsonValue& expected, double tolerance)
{
    if (found.type() != expected.type()) {
        return false;
    }
    switch (expected.type()) {
    case QJsonValue::Double:
        return std::abs(found.toDouble() - expected.toDouble()) <= tolerance;
    case QJsonValue::Array:
        return areNear(found.toArray(), expected.toArray(), tolerance);
    case QJsonValue::Object:
        return areNear(found.toObject(), expected.toObject(), tolerance);
    default:
        return found == expected;
    }
}

QString textOf(const QJsonValue& value)
{
    // A document holds no plain values.
    const QByteArray text = QJsonDocument(QJsonArray { value }).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(text.mid(1, text.size() - 2));
}

}  // namespace viewer
