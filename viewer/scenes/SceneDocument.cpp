// SPDX-License-Identifier: MIT
#include "viewer/scenes/SceneDocument.h"

#include "viewer/commands/JsonInput.h"
#include "viewer/scenes/SceneFields.h"
#include "viewer/texts/FileRules.h"
#include "viewer/texts/Text.h"

#include <QBuffer>
#include <QFileInfo>
#include <QJsonDocument>

#include <cstring>

namespace viewer {

// == What a JsonInput finds here of values that are no objects

using MatchLines = std::array<QLineF, nbdPerspectiveMatch::kLineCount>;

static bool readJson(JsonInput& in, const QJsonValue& json, const QString& path, MatchLines& lines)
{
    const QJsonArray array = json.toArray();
    if (array.size() != nbdPerspectiveMatch::kLineCount) {
        return in.fail(path, "expected an array of 6 lines");
    }
    for (int i = 0; i < array.size(); ++i) {
        std::array<double, 4> ends {};
        const QString at = path + QStringLiteral("[%1]").arg(i);
        if (!in.readExact(array.at(i), at, ends.data(), 4) || !in.areSceneNumbers(ends, at)) {
            return false;
        }
        lines[static_cast<std::size_t>(i)] = QLineF(ends[0], ends[1], ends[2], ends[3]);
    }
    return true;
}

static bool readJson(JsonInput& in, const QJsonValue& json, const QString& path,
                     ScenePicture& picture)
{
    if (!json.isObject()) {
        return in.readFile(json, path, picture.file);
    }
    const QJsonObject pixels = json.toObject();
    const QString at = path + ".png";
    QString text;
    if (!in.checkKeys(pixels, path, { "png" }) || !in.readString(pixels.value("png"), at, text)) {
        return false;
    }
    picture.png =
        *QByteArray::fromBase64Encoding(text.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    return !picture.png.isEmpty() || in.fail(at, "expected a picture in base 64");
}

namespace {

constexpr qint64 kMaxSceneBytes = 256LL * 1024 * 1024;

// == The tree

/// What of the document has been met in the tree: models, frames, planes.
using Met = std::array<std::vector<bool>, 3>;

bool meet(const std::vector<SceneBranch>& branches, const QString& path, Met& met,
          JsonReader& reader)
{
    for (std::size_t i = 0; i < branches.size(); ++i) {
        const SceneBranch& branch = branches[i];
        const QString at = path + QStringLiteral("[%1]").arg(i);
        std::vector<bool>& all = met[static_cast<std::size_t>(branch.kind)];
        const auto number = static_cast<std::size_t>(branch.number);
        if (branch.number < 0 || number >= all.size() || all[number]) {
            return reader.fail(at, "there is none of this number, or it came before");
        }
        all[number] = true;
        if (branch.kind != SceneBranch::Kind::Plane && !branch.children.empty()) {
            return reader.fail(at, "only a plane has children");
        }
        if (!meet(branch.children, at + ".children", met, reader)) {
            return false;
        }
    }
    return true;
}

bool checkTree(const SceneDocument& document, JsonReader reader)
{
    const QString path = "tree";
    if (document.tree.empty()) {
        return document.clipPlanes.empty() || reader.fail(path, "clip planes need one");
    }
    const std::vector<bool> planes(document.clipPlanes.size());
    Met met { std::vector<bool>(document.models.size()), planes, planes };
    if (!meet(document.tree, path, met, reader)) {
        return false;
    }
    return std::all_of(met.begin(), met.end(),
                       [](const std::vector<bool>& all) {
                           return std::find(all.begin(), all.end(), false) == all.end();
                       }) ||
        reader.fail(path, "a model, frame or plane is missing");
}

// == Writing

template <class Value>
bool isSame(const Value& a, const Value& b)
{
    if constexpr (kNumberCount < Value >> 0 || std::is_floating_point_v<Value>) {
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

    bool field(const char* key, const ScenePicture& picture, const ScenePicture& /*usual*/)
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

    /// What is written is read before it is kept.
    bool demand(bool /*isMet*/, const char* /*key*/, const QString& /*what*/) { return true; }

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
        describe(part, value);
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
        if constexpr (kNumberCount < Value >> 0) {
            std::array<float, kNumberCount<Value>> numbers {};
            std::copy_n(&value[0], numbers.size(), numbers.begin());
            return arrayOf(numbers);
        } else if constexpr (std::is_floating_point_v<Value>) {
            return exactJson(nearestSceneNumber(value));
        } else if constexpr (std::is_same_v<Value, std::string>) {
            return QString::fromStdString(value);
        } else {
            return value;
        }
    }

    static QJsonValue jsonOf(const MatchLines& lines)
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
            array.append(exactJson(nearestSceneNumber(number)));
        }
        return array;
    }

    QDir folder;
    QJsonObject entries;
};

}  // namespace

bool isSceneFileName(const QString& path)
{
    return QFileInfo(path).suffix().compare(QLatin1String(kSceneSuffix), Qt::CaseInsensitive) == 0;
}

std::optional<SceneDocument> parseScene(const QByteArray& text, const QDir& folder, QString& error)
{
    const std::optional<QJsonObject> object = parseJsonObject(text, error);
    SceneDocument document;
    const bool isRead = object && JsonInput(error, folder).readObject(*object, {}, document) &&
        checkTree(document, JsonReader(error));
    return isRead ? std::make_optional(document) : std::nullopt;
}

std::optional<SceneDocument> readSceneFile(const QString& path, QString& error)
{
    QByteArray text;
    if (!readWhole(path, kMaxSceneBytes, text, error)) {
        return std::nullopt;
    }
    QString problem;
    auto document = parseScene(text, QFileInfo(path).absoluteDir(), problem);
    if (!document) {
        error = QStringLiteral("%1: %2").arg(path, problem);
    }
    return document;
}

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
