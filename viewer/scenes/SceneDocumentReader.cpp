// SPDX-License-Identifier: MIT
#include "viewer/commands/JsonReader.h"
#include "viewer/commands/SceneLimits.h"
#include "viewer/scenes/SceneDocument.h"
#include "viewer/scenes/SceneFields.h"
#include "viewer/scenes/SceneNumbers.h"
#include "viewer/texts/TextFile.h"

#include <nbOpenSGExt/nbEulerRotation.h>

#include <QFileInfo>
#include <QJsonArray>
#include <QRegularExpression>

#include <algorithm>
#include <limits>
#include <type_traits>
#include <utility>

namespace viewer {
namespace {

constexpr qint64 kMaxSceneBytes = 256LL * 1024 * 1024;
constexpr int kMostOfAKind = 1000000;
constexpr int kMaskBits = 32;

/// The archive of SceneFields.h that reads.
class Input : private JsonReader
{
public:
    Input(const QDir& sceneFolder, QString& errorText)
        : JsonReader(errorText)
        , folder(sceneFolder)
    { }

    bool readDocument(const QJsonObject& object, SceneDocument& document)
    {
        return getObject(object, QString(), document) && checkTree(document);
    }

    template <class Value>
    bool field(const char* key, Value& value)
    {
        return has(key) ? get(take(key), pathOf(key), value)
                        : fail(place, QStringLiteral("\"%1\" is missing").arg(QLatin1String(key)));
    }

    template <class Value>
    bool field(const char* key, Value& value, const Value& usual)
    {
        value = usual;
        return !has(key) || field(key, value);
    }

    template <class Value>
    bool field(const char* key, std::optional<Value>& value)
    {
        return !has(key) || field(key, value.emplace());
    }

    bool field(const char* key, ScenePicture& picture)
    {
        return !has(key) || getPicture(take(key), pathOf(key), picture);
    }

    bool version(const char* key, int number)
    {
        return take(key) == QJsonValue(number) ||
            fail(pathOf(key), QStringLiteral("expected %1, the version of the format").arg(number));
    }

    template <class Number, std::size_t Count>
    bool words(const char* key, Number& number, const std::array<const char*, Count>& allowed)
    {
        const int found = indexOf(take(key), allowed);
        number = static_cast<Number>(std::max(found, 0));
        return found >= 0 || failWords(pathOf(key), allowed);
    }

    template <std::size_t Count>
    bool words(const char* key, int& number, const std::array<const char*, Count>& allowed,
               int usual)
    {
        number = usual;
        return !has(key) || words(key, number, allowed);
    }

    bool bits(const char* key, osg::UInt32& mask)
    {
        return readEach(key, [&](const QJsonValue& entry, const QString& path) {
            int bit = 0;
            const bool isBit = readInt(entry, path, kMaskBits - 1, bit) && bit >= 0;
            mask |= isBit ? 1U << static_cast<unsigned>(bit) : 0U;
            return isBit || fail(path, "expected a number from 0 to 31");
        });
    }

    template <std::size_t Count>
    bool names(const char* key, int& mask, const std::array<const char*, Count>& allowed)
    {
        return readEach(key, [&](const QJsonValue& entry, const QString& path) {
            const int bit = indexOf(entry, allowed);
            mask |= bit < 0 ? 0 : 1 << bit;
            return bit >= 0 || failWords(path, allowed);
        });
    }

    bool path(const char* key, QString& file)
    {
        return !has(key) || getFile(take(key), pathOf(key), file);
    }

    template <class Value>
    bool object(const char* key, Value& value)
    {
        return getObject(take(key), pathOf(key), value);
    }

    template <class Value>
    bool part(const char* key, std::optional<Value>& value)
    {
        return !has(key) || object(key, value.emplace());
    }

    template <class Value>
    bool list(const char* key, std::vector<Value>& values)
    {
        return readEach(key, [&](const QJsonValue& entry, const QString& path) {
            return getObject(entry, path, values.emplace_back());
        });
    }

private:
    // == The object that is being read

    bool has(const char* key) const { return current.contains(QLatin1String(key)); }

    QJsonValue take(const char* key)
    {
        known.append(QLatin1String(key));
        return current.value(QLatin1String(key));
    }

    QString pathOf(const char* key) const
    {
        return place.isEmpty() ? QString(QLatin1String(key)) : place + '.' + QLatin1String(key);
    }

    /// Reads an array, which may be left out, entry by entry.
    template <class Read>
    bool readEach(const char* key, const Read& read)
    {
        const QJsonValue value = take(key);
        const QString path = pathOf(key);
        const QJsonArray array = value.toArray();
        for (int i = 0; i < array.size(); ++i) {
            if (!read(array.at(i), path + QStringLiteral("[%1]").arg(i))) {
                return false;
            }
        }
        return value.isUndefined() || value.isArray() || fail(path, "expected an array");
    }

    template <class Value>
    bool getObject(const QJsonValue& json, const QString& path, Value& value)
    {
        if (!json.isObject()) {
            return fail(path, "expected an object");
        }
        const QJsonObject outer = std::exchange(current, json.toObject());
        const QString outerPlace = std::exchange(place, path);
        const QStringList outerKnown = std::exchange(known, {});
        const bool isRead =
            scenefields::describe(*this, value) && check(value) && checkKeys(current, place, known);
        current = outer;
        place = outerPlace;
        known = outerKnown;
        return isRead;
    }

    // == Values

    template <class Value>
    bool get(const QJsonValue& json, const QString& path, Value& value)
    {
        if constexpr (SceneNumbers<Value>::kCount > 0) {
            typename SceneNumbers<Value>::Array numbers {};
            const bool isRead =
                readExact(json, path, numbers.data(), static_cast<int>(numbers.size()));
            SceneNumbers<Value>::assign(value, numbers);
            return isRead && areSceneNumbers(numbers, path);
        } else if constexpr (std::is_same_v<Value, bool>) {
            return readBool(json, path, value);
        } else if constexpr (std::is_same_v<Value, int>) {
            return readInt(json, path, std::numeric_limits<int>::max(), value);
        } else if constexpr (std::is_same_v<Value, float>) {
            return readExact(json, path, value) && areSceneNumbers(std::array { value }, path);
        } else if constexpr (std::is_same_v<Value, double>) {
            return readExact(QJsonArray { json }, path, &value, 1) &&
                areSceneNumbers(std::array { value }, path);
        } else {
            return getPlain(json, path, value);
        }
    }

    template <class Numbers>
    bool areSceneNumbers(const Numbers& numbers, const QString& path)
    {
        const auto isOne = [](auto number) { return isSceneNumber(number); };
        return std::all_of(numbers.begin(), numbers.end(), isOne) ||
            fail(path, QStringLiteral("expected numbers up to %1").arg(kLargestNumber));
    }

    bool getPlain(const QJsonValue& json, const QString& path, QString& text)
    {
        return readString(json, path, text);
    }

    bool getPlain(const QJsonValue& json, const QString& path, std::string& text)
    {
        QString read;
        const bool isRead = readString(json, path, read);
        text = read.toStdString();
        return isRead;
    }

    bool getPlain(const QJsonValue& json, const QString& path,
                  std::array<QLineF, nbdPerspectiveMatch::kLineCount>& lines)
    {
        const QJsonArray array = json.toArray();
        if (array.size() != nbdPerspectiveMatch::kLineCount) {
            return fail(path, "expected an array of 6 lines");
        }
        for (int i = 0; i < array.size(); ++i) {
            std::array<double, 4> ends {};
            const QString at = path + QStringLiteral("[%1]").arg(i);
            if (!readExact(array.at(i), at, ends.data(), 4) || !areSceneNumbers(ends, at)) {
                return false;
            }
            lines[static_cast<std::size_t>(i)] = QLineF(ends[0], ends[1], ends[2], ends[3]);
        }
        return true;
    }

    bool getFile(const QJsonValue& json, const QString& path, QString& file)
    {
        QString name;
        const bool isRead = readString(json, path, name);
        file = QDir::cleanPath(folder.absoluteFilePath(name));
        return isRead && (!name.isEmpty() || fail(path, "expected the name of a file"));
    }

    bool getPicture(const QJsonValue& json, const QString& path, ScenePicture& picture)
    {
        if (!json.isObject()) {
            return getFile(json, path, picture.file);
        }
        const QJsonObject pixels = json.toObject();
        const QString at = path + ".png";
        QString text;
        if (!checkKeys(pixels, path, { "png" }) || !readString(pixels.value("png"), at, text)) {
            return false;
        }
        picture.png = *QByteArray::fromBase64Encoding(text.toLatin1(),
                                                      QByteArray::AbortOnBase64DecodingErrors);
        return !picture.png.isEmpty() || fail(at, "expected a picture in base 64");
    }

    template <std::size_t Count>
    static int indexOf(const QJsonValue& word, const std::array<const char*, Count>& words)
    {
        const QString text = word.toString();
        const auto found = std::find(words.begin(), words.end(), text);
        return found == words.end() ? -1 : static_cast<int>(found - words.begin());
    }

    template <std::size_t Count>
    bool failWords(const QString& path, const std::array<const char*, Count>& words)
    {
        const QString all = QStringList(words.begin(), words.end()).join(", ");
        return fail(path, QStringLiteral("expected one of: %1").arg(all));
    }

    bool checkNodePath(const char* key, const QString& path)
    {
        static const QRegularExpression kPattern(
            QStringLiteral("^(N(/N)*)?\\z").replace('N', "([0-9]{1,9}(\\+[0-9]{1,9})?|-)"));
        return kPattern.match(path).hasMatch() ||
            fail(pathOf(key), "expected numbers such as \"0/3\"");
    }

    // == What values mean together; the object is still the current one

    template <class Value>
    bool check(const Value&)
    {
        return true;
    }

    bool check(const CameraPose& pose)
    {
        return (pose.fovDeg > 0.0F && pose.fovDeg < 180.0F) ||
            fail(pathOf("fov"), "expected a number between 0 and 180");
    }

    bool check(const nbTransformState& state)
    {
        if (!isScale(state.scale[0]) || !isScale(state.scale[1]) || !isScale(state.scale[2])) {
            return fail(pathOf("scale"), "expected numbers other than 0");
        }
        const QString order = QString::fromStdString(state.eulerRotationOrder);
        const int number = nbEulerRotation::getOrderNumber(state.eulerRotationOrder);
        return order.toLower() == QLatin1String(nbEulerRotation::getOrderName(number)) ||
            fail(pathOf("order"), "expected the letters x, y and z");
    }

    bool check(const SceneNode& node) { return checkNodePath("path", node.path); }

    bool check(const SceneSurface& surface)
    {
        return checkNodePath("object", surface.object) &&
            ((surface.part >= 0 && surface.part < kMostOfAKind) ||
             fail(pathOf("part"), "expected a place, counted from 0"));
    }

    bool check(const SceneModel& model)
    {
        return model.file.isEmpty() != model.builtIn.isEmpty() ||
            fail(place, "expected either \"file\" or \"builtIn\"");
    }

    bool check(const SceneClipPlane& plane)
    {
        return (plane.outline > 0.0F || fail(pathOf("outline"), "expected a number above 0")) &&
            (plane.frame.transform || fail(pathOf("frame"), "\"transform\" is missing"));
    }

    bool check(const ScenePlate& plate) { return checkShare("opacity", plate.opacity); }

    bool check(const SceneMatch& match) { return checkShare("veil", match.veil); }

    bool checkShare(const char* key, double share)
    {
        return (share >= 0.0 && share <= 1.0) || fail(pathOf(key), "expected a number from 0 to 1");
    }

    // == The tree

    /// What of the document has been met in the tree: models, frames, planes.
    using Met = std::array<std::vector<bool>, 3>;

    bool checkTree(const SceneDocument& document)
    {
        const QString path = "tree";
        if (document.tree.empty()) {
            return document.clipPlanes.empty() || fail(path, "clip planes need one");
        }
        const std::vector<bool> planes(document.clipPlanes.size());
        Met met { std::vector<bool>(document.models.size()), planes, planes };
        if (!meet(document.tree, path, met)) {
            return false;
        }
        return std::all_of(met.begin(), met.end(),
                           [](const std::vector<bool>& all) {
                               return std::find(all.begin(), all.end(), false) == all.end();
                           }) ||
            fail(path, "a model, frame or plane is missing");
    }

    bool meet(const std::vector<SceneBranch>& branches, const QString& path, Met& met)
    {
        for (std::size_t i = 0; i < branches.size(); ++i) {
            const SceneBranch& branch = branches[i];
            const QString at = path + QStringLiteral("[%1]").arg(i);
            std::vector<bool>& all = met[static_cast<std::size_t>(branch.kind)];
            const auto number = static_cast<std::size_t>(branch.number);
            if (branch.number < 0 || number >= all.size() || all[number]) {
                return fail(at, "there is none of this number, or it came before");
            }
            all[number] = true;
            if (branch.kind != SceneBranch::Kind::Plane && !branch.children.empty()) {
                return fail(at, "only a plane has children");
            }
            if (!meet(branch.children, at + ".children", met)) {
                return false;
            }
        }
        return true;
    }

    QDir folder;
    QJsonObject current;
    QString place;
    QStringList known;
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
    if (!object || !Input(folder, error).readDocument(*object, document)) {
        return std::nullopt;
    }
    return document;
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

}  // namespace viewer
