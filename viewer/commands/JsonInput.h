// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/commands/JsonReader.h"
#include "viewer/commands/SceneLimits.h"

#include <OpenSG/OSGColor.h>
#include <OpenSG/OSGQuaternion.h>
#include <OpenSG/OSGVector.h>

#include <QDir>
#include <QJsonArray>

#include <algorithm>
#include <array>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace viewer {

/// Whether a type is one of those listed.
template <class Value, class... Listed>
constexpr bool kIsOneOf = (std::is_same_v<Value, Listed> || ...);

/// How many numbers of single precision, told by [], make a vector, colour or rotation (x, y, z,
/// w); 0 for other types. A quaternion of a real OpenSG is larger than its numbers.
template <class Value>
constexpr int kNumberCount = std::is_same_v<Value, osg::Quaternion> ? 4
    : kIsOneOf<Value, osg::Vec2f, osg::Vec3f, osg::Vec4f, osg::Pnt3f, osg::Color3f, osg::Color4f>
    ? static_cast<int>(sizeof(Value) / sizeof(float))
    : 0;

/// Reads objects of JSON as functions bool describe(JsonInput&, Value&) tell, which name the
/// entries that a Value has one after the other; other entries are refused. There is one for each
/// type in the program. A type that is no
/// object and none of those below has a function bool readJson(JsonInput&, const QJsonValue&,
/// const QString& path, Type&). Everything answers whether to go on.
class JsonInput : public JsonReader
{
public:
    /// @param filesFolder  that relative names of files are looked up in
    explicit JsonInput(QString& errorText, const QDir& filesFolder = QDir())
        : JsonReader(errorText)
        , folder(filesFolder)
    { }

    // == The object that is being read

    bool has(const char* key) const { return current.contains(QLatin1String(key)); }

    /// Looks whether an entry is there.
    bool needs(const char* key);
    /// An entry as it is; undefined where there is none.
    QJsonValue take(const char* key);
    /// Place of an entry in the document, such as "models[0].file"; that of the object for "".
    QString pathOf(const char* key) const;

    /// Fails with a place and a text where something that was read is not as it has to be.
    bool demand(bool isMet, const char* key, const QString& what)
    {
        return isMet || fail(pathOf(key), what);
    }

    // == Its entries

    /// One that has to be there.
    template <class Value>
    bool field(const char* key, Value& value)
    {
        return needs(key) && get(take(key), pathOf(key), value);
    }

    /// One that has the usual value where it is not there.
    template <class Value>
    bool field(const char* key, Value& value, const Value& usual)
    {
        value = usual;
        return maybe(key, value);
    }

    /// One that keeps its value where it is not there.
    template <class Value>
    bool maybe(const char* key, Value& value)
    {
        return !has(key) || field(key, value);
    }

    template <class Value>
    bool field(const char* key, std::optional<Value>& value)
    {
        return !has(key) || field(key, value.emplace());
    }

    /// A number, which keeps its value where it is not there, from least to most.
    bool number(const char* key, double& value, double least, double most);
    /// The same, a whole one from -most to most.
    bool wholeNumber(const char* key, int& value, int most);
    bool version(const char* key, int number);

    /// A number, by its word.
    template <class Number, std::size_t Count>
    bool words(const char* key, Number& value, const std::array<const char*, Count>& allowed)
    {
        const int found = indexOf(take(key), allowed);
        value = static_cast<Number>(std::max(found, 0));
        return found >= 0 || failWords(pathOf(key), allowed);
    }

    template <std::size_t Count>
    bool words(const char* key, int& value, const std::array<const char*, Count>& allowed,
               int usual)
    {
        value = usual;
        return !has(key) || words(key, value, allowed);
    }

    /// A mask, as the numbers of its bits.
    bool bits(const char* key, osg::UInt32& mask);

    /// A mask, as the words of its bits.
    template <std::size_t Count>
    bool names(const char* key, int& mask, const std::array<const char*, Count>& allowed)
    {
        return each(key, [&](const QJsonValue& entry, const QString& path) {
            const int bit = indexOf(entry, allowed);
            mask |= bit < 0 ? 0 : 1 << bit;
            return bit >= 0 || failWords(path, allowed);
        });
    }

    /// The name of a file, which becomes absolute, and may be left out.
    bool path(const char* key, QString& file)
    {
        return !has(key) || readFile(take(key), pathOf(key), file);
    }

    template <class Value>
    bool object(const char* key, Value& value)
    {
        return readObject(take(key), pathOf(key), value);
    }

    template <class Value>
    bool part(const char* key, std::optional<Value>& value)
    {
        return !has(key) || object(key, value.emplace());
    }

    /// An array of objects, which may be left out.
    template <class Value>
    bool list(const char* key, std::vector<Value>& values)
    {
        return each(key, [&](const QJsonValue& entry, const QString& path) {
            return readObject(entry, path, values.emplace_back());
        });
    }

    /// Reads an array, which may be left out, entry by entry.
    /// @param read  bool (const QJsonValue& entry, const QString& path)
    template <class Read>
    bool each(const char* key, const Read& read)
    {
        const QJsonValue value = take(key);
        const QJsonArray array = value.toArray();
        for (int i = 0; i < array.size(); ++i) {
            if (!read(array.at(i), pathOf(key) + QStringLiteral("[%1]").arg(i))) {
                return false;
            }
        }
        return demand(value.isUndefined() || value.isArray(), key, "expected an array");
    }

    // == Values

    template <class Value>
    bool readObject(const QJsonValue& json, const QString& path, Value& value)
    {
        if (!json.isObject()) {
            return fail(path, "expected an object");
        }
        const QJsonObject outer = std::exchange(current, json.toObject());
        const QString outerPlace = std::exchange(place, path);
        const QStringList outerKnown = std::exchange(known, {});
        const bool isRead = describe(*this, value) && checkKeys(current, place, known);
        current = outer;
        place = outerPlace;
        known = outerKnown;
        return isRead;
    }

    bool readFile(const QJsonValue& json, const QString& path, QString& file);

    /// Place of a word among others; -1 for none.
    template <std::size_t Count>
    static int indexOf(const QJsonValue& word, const std::array<const char*, Count>& words)
    {
        const auto found = std::find(words.begin(), words.end(), word.toString());
        return found == words.end() ? -1 : static_cast<int>(found - words.begin());
    }

    template <class Numbers>
    bool areSceneNumbers(const Numbers& numbers, const QString& path)
    {
        const auto isOne = [](auto number) { return isSceneNumber(number); };
        return std::all_of(numbers.begin(), numbers.end(), isOne) ||
            fail(path, QStringLiteral("expected numbers up to %1").arg(kLargestNumber));
    }

private:
    template <class Value>
    bool get(const QJsonValue& json, const QString& path, Value& value)
    {
        if constexpr (kNumberCount < Value >> 0) {
            std::array<float, kNumberCount<Value>> numbers {};
            const bool isRead = readExact(json, path, numbers.data(), kNumberCount<Value>);
            std::copy(numbers.begin(), numbers.end(), &value[0]);
            return isRead && areSceneNumbers(numbers, path);
        } else if constexpr (std::is_floating_point_v<Value>) {
            return readExact(json, path, value) && areSceneNumbers(std::array { value }, path);
        } else if constexpr (std::is_same_v<Value, bool>) {
            return readBool(json, path, value);
        } else if constexpr (std::is_same_v<Value, int>) {
            return readInt(json, path, std::numeric_limits<int>::max(), value);
        } else if constexpr (std::is_same_v<Value, QString>) {
            return readString(json, path, value);
        } else {
            return readJson(*this, json, path, value);
        }
    }

    template <std::size_t Count>
    bool failWords(const QString& path, const std::array<const char*, Count>& words)
    {
        const QString all = QStringList(words.begin(), words.end()).join(", ");
        return fail(path, QStringLiteral("expected one of: %1").arg(all));
    }

    QDir folder;
    QJsonObject current;
    QString place;
    QStringList known;
};

bool readJson(JsonInput& in, const QJsonValue& json, const QString& path, std::string& text);
bool readJson(JsonInput& in, const QJsonValue& json, const QString& path, QJsonObject& object);

template <std::size_t Count>
bool readJson(JsonInput& in, const QJsonValue& json, const QString& path,
              std::array<double, Count>& numbers)
{
    return in.readNumbers(json, path, numbers.data(), Count);
}

}  // namespace viewer
