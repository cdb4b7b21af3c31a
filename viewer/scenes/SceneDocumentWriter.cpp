// SPDX-License-Identifier: MIT
#include "viewer/commands/JsonNumbers.h"
#include "viewer/scenes/SceneDocument.h"
#include "viewer/scenes/SceneFields.h"
#include "viewer/scenes/SceneNumbers.h"
#include "viewer/texts/Text.h"
#include "viewer/texts/TextFile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstring>
#include <type_traits>

namespace viewer {
namespace {

template <class Value>
bool isSame(const Value& a, const Value& b)
{
    if constexpr (SceneNumbers<Value>::kCount > 0) {
        const auto ofA = SceneNumbers<Value>::of(a);
        const auto ofB = SceneNumbers<Value>::of(b);
        return std::memcmp(ofA.data(), ofB.data(), sizeof(ofA)) == 0;
    } else if constexpr (std::is_floating_point_v<Value>) {
        return std::memcmp(&a, &b, sizeof(Value)) == 0;
    } else {
        return a == b;
    }
}

/// The archive of SceneFields.h that writes.
class Output
{
public:
    explicit Output(const QDir& sceneFolder)
        : folder(sceneFolder)
    { }

    template <class Value>
    bool field(const char* key, const Value& value)
    {
        return set(key, jsonOf(value));
    }

    template <class Value>
    bool field(const char* key, const Value& value, const Value& usual)
    {
        return isSame(value, usual) || field(key, value);
    }

    template <class Value>
    bool field(const char* key, const std::optional<Value>& value)
    {
        return !value || field(key, *value);
    }

    bool field(const char* key, const ScenePicture& picture)
    {
        QByteArray png = picture.png;
        if (png.isEmpty() && picture.pixels.isNull()) {
            return path(key, picture.file);
        }
        if (png.isEmpty()) {
            QBuffer buffer(&png);
            picture.pixels.save(&buffer, "PNG");
        }
        return set(key, QJsonObject { { "png", QString::fromLatin1(png.toBase64()) } });
    }

    bool version(const char* key, int number) { return field(key, number); }

    template <class Number, std::size_t Count>
    bool words(const char* key, Number number, const std::array<const char*, Count>& names)
    {
        return field(key, QString(QLatin1String(names.at(static_cast<std::size_t>(number)))));
    }

    template <std::size_t Count>
    bool words(const char* key, int number, const std::array<const char*, Count>& names, int usual)
    {
        return number == usual || words(key, number, names);
    }

    bool bits(const char* key, osg::UInt32 mask)
    {
        QJsonArray numbers;
        for (int bit = 0; mask != 0; ++bit, mask >>= 1U) {
            if ((mask & 1U) != 0) {
                numbers.append(bit);
            }
        }
        return numbers.isEmpty() || set(key, numbers);
    }

    template <std::size_t Count>
    bool names(const char* key, int mask, const std::array<const char*, Count>& words)
    {
        QJsonArray texts;
        for (std::size_t bit = 0; bit < Count; ++bit) {
            if ((mask >> bit & 1) != 0) {
                texts.append(QLatin1String(words[bit]));
            }
        }
        return texts.isEmpty() || set(key, texts);
    }

    bool path(const char* key, const QString& file)
    {
        return file.isEmpty() || field(key, folder.relativeFilePath(file));
    }

    template <class Value>
    bool object(const char* key, Value& value)
    {
        return set(key, objectOf(value));
    }

    template <class Value>
    bool part(const char* key, std::optional<Value>& value)
    {
        return !value || object(key, *value);
    }

    template <class Value>
    bool list(const char* key, std::vector<Value>& values)
    {
        QJsonArray array;
        for (Value& value : values) {
            array.append(objectOf(value));
        }
        return array.isEmpty() || set(key, array);
    }

    template <class Value>
    QJsonObject objectOf(Value& value) const
    {
        Output part(folder);
        scenefields::describe(part, value);
        return part.entries;
    }

private:
    bool set(const char* key, const QJsonValue& value)
    {
        entries[QLatin1String(key)] = value;
        return true;
    }

    template <class Value>
    static QJsonValue jsonOf(const Value& value)
    {
        if constexpr (SceneNumbers<Value>::kCount > 0) {
            return arrayOf(SceneNumbers<Value>::of(value));
        } else if constexpr (std::is_floating_point_v<Value>) {
            return exactJson(value);
        } else if constexpr (std::is_same_v<Value, std::string>) {
            return QString::fromStdString(value);
        } else {
            return value;
        }
    }

    static QJsonValue jsonOf(const std::array<QLineF, nbdPerspectiveMatch::kLineCount>& lines)
    {
        QJsonArray array;
        for (const QLineF& line : lines) {
            array.append(arrayOf(std::array { line.x1(), line.y1(), line.x2(), line.y2() }));
        }
        return array;
    }

    template <class Numbers>
    static QJsonArray arrayOf(const Numbers& numbers)
    {
        QJsonArray array;
        for (const auto number : numbers) {
            array.append(exactJson(number));
        }
        return array;
    }

    QDir folder;
    QJsonObject entries;
};

}  // namespace

QByteArray sceneText(const SceneDocument& document, const QDir& folder)
{
    SceneDocument copy = document;
    return QJsonDocument(Output(folder).objectOf(copy)).toJson();
}

bool writeSceneFile(const QString& path, const SceneDocument& document, QString& error)
{
    const QDir folder = QFileInfo(path).absoluteDir();
    const QByteArray text = sceneText(document, folder);
    // Nothing is saved that could not be opened.
    if (!parseScene(text, folder, error)) {
        error = Text::tr("%1: cannot be saved: %2").arg(path, error);
        return false;
    }
    return writeWhole(path, text, error);
}

}  // namespace viewer
