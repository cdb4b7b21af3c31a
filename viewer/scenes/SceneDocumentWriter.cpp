// SPDX-License-Identifier: MIT
#include "viewer/commands/JsonWriter.h"
#include "viewer/scenes/SceneDocument.h"
#include "viewer/scenes/SceneFields.h"
#include "viewer/scenes/SceneNumbers.h"
#include "viewer/texts/Text.h"
#include "viewer/texts/TextFile.h"

#include <QFileInfo>
#include <QJsonArray>

#include <cstring>
#include <type_traits>

namespace viewer {
namespace {

using Layout = JsonWriter::Layout;

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

/// What is set out in several lines; everything else is short.
template <class Value>
constexpr Layout kLayoutOf = std::is_same_v<Value, SceneDocument> ||
        std::is_same_v<Value, SceneModel> || std::is_same_v<Value, SceneSurface> ||
        std::is_same_v<Value, SceneComponent> || std::is_same_v<Value, SceneMatch>
    ? Layout::Lines
    : Layout::Inline;

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
        writer.key(QLatin1String(key));
        put(value);
        return true;
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
        if (picture.png.isEmpty()) {
            return path(key, picture.file);
        }
        writer.key(QLatin1String(key));
        writer.beginObject(Layout::Inline);
        writer.key(QStringLiteral("png"));
        writer.value(QString::fromLatin1(picture.png.toBase64()));
        writer.endObject();
        return true;
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
        return array(key, numbers);
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
        return array(key, texts);
    }

    bool path(const char* key, const QString& file)
    {
        return file.isEmpty() || field(key, folder.relativeFilePath(file));
    }

    template <class Value>
    bool object(const char* key, Value& value)
    {
        writer.key(QLatin1String(key));
        putObject(value);
        return true;
    }

    template <class Value>
    bool part(const char* key, std::optional<Value>& value)
    {
        return !value || object(key, *value);
    }

    template <class Value>
    bool list(const char* key, std::vector<Value>& values)
    {
        if (values.empty()) {
            return true;
        }
        writer.key(QLatin1String(key));
        writer.beginArray(Layout::Lines);
        for (Value& value : values) {
            putObject(value);
        }
        writer.endArray();
        return true;
    }

    QByteArray textOf(SceneDocument& document)
    {
        putObject(document);
        return writer.take();
    }

private:
    bool array(const char* key, const QJsonArray& values)
    {
        return values.isEmpty() || field(key, QJsonValue(values));
    }

    template <class Value>
    void putObject(Value& value)
    {
        writer.beginObject(kLayoutOf<std::remove_const_t<Value>>);
        scenefields::describe(*this, value);
        writer.endObject();
    }

    template <class Value>
    void put(const Value& value)
    {
        if constexpr (SceneNumbers<Value>::kCount > 0) {
            putNumbers(SceneNumbers<Value>::of(value));
        } else if constexpr (std::is_floating_point_v<Value>) {
            writer.raw(exactJson(value));
        } else if constexpr (std::is_same_v<Value, std::string>) {
            writer.value(QString::fromStdString(value));
        } else {
            writer.value(QJsonValue(value));
        }
    }

    void put(const std::array<QLineF, nbdPerspectiveMatch::kLineCount>& lines)
    {
        writer.beginArray(Layout::Lines);
        for (const QLineF& line : lines) {
            putNumbers(std::array<double, 4> { line.x1(), line.y1(), line.x2(), line.y2() });
        }
        writer.endArray();
    }

    template <class Numbers>
    void putNumbers(const Numbers& numbers)
    {
        writer.beginArray(Layout::Inline);
        for (const auto number : numbers) {
            writer.raw(exactJson(number));
        }
        writer.endArray();
    }

    QDir folder;
    JsonWriter writer;
};

}  // namespace

QByteArray sceneText(const SceneDocument& document, const QDir& folder)
{
    SceneDocument copy = document;
    return Output(folder).textOf(copy);
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
