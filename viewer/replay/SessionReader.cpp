// SPDX-License-Identifier: MIT
#include "viewer/commands/JsonReader.h"
#include "viewer/replay/Session.h"
#include "viewer/replay/SessionNames.h"
#include "viewer/texts/FileRules.h"
#include "viewer/texts/TextFile.h"

#include <nbUtils/nbQt.h>

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

#include <cmath>

namespace viewer {
namespace {

constexpr double kMostTolerance = 1e9;
constexpr qint64 kMaxSessionBytes = 64LL * 1024 * 1024;

/// Walks the JSON document of a session.
class Reader : private JsonReader
{
public:
    using JsonReader::JsonReader;

    bool readTarget(const QJsonValue& value, const QString& path, SessionTarget& target)
    {
        if (value.isObject()) {
            Part part;
            return open(value, path, sessionKeys(SessionPart::Target), part) &&
                readNamedTarget(part, target);
        }
        double px[2] = { 0.0, 0.0 };
        if (!readNumbers(value, path, px, 2)) {
            return false;
        }
        target.kind = SessionTarget::Kind::Pixel;
        target.offsetPx = QPointF(px[0], px[1]);
        return true;
    }

    bool readSession(const QJsonObject& all, Session& session)
    {
        Part part;
        if (!open(all, {}, sessionKeys(SessionPart::Session), part)) {
            return false;
        }
        if (part.value("session").toInt() != 1) {
            return fail("session", "expected 1, the version of the format");
        }
        const auto readFile = [&](const QJsonValue& value, const QString& path) {
            QString file;
            const bool isRead = readString(value, path, file);
            session.files.append(file);
            return isRead;
        };
        const auto readOne = [&](const QJsonValue& value, const QString& path) {
            return readStep(value, path, session.steps.emplace_back());
        };
        return readSize(part.value("size"), session.sizePx) && takeEach(part, "files", readFile) &&
            (!part.has("camera") || readCamera(part.value("camera"), session.camera.emplace())) &&
            take(part, "selection", session.selection) &&
            take(part, "manipulator", session.manipulator) &&
            (part.has("steps") || fail("steps", "expected an array")) &&
            takeEach(part, "steps", readOne);
    }

private:
    /// An object of the document.
    struct Part
    {
        bool has(const char* key) const { return object.contains(QLatin1String(key)); }

        QJsonValue value(const char* key) const { return object.value(QLatin1String(key)); }

        QString place(const char* key) const { return path.isEmpty() ? key : path + '.' + key; }

        QJsonObject object;
        QString path;
    };

    /// Looks whether a value is an object without unknown entries.
    bool open(const QJsonValue& value, const QString& path, const QStringList& keys, Part& part)
    {
        part = { value.toObject(), path };
        return (value.isObject() || fail(path, "expected an object")) &&
            checkKeys(part.object, path, keys);
    }

    /// Each reads an entry of an object; one that is not there keeps its value.
    bool take(const Part& part, const char* key, QString& text)
    {
        return !part.has(key) || readString(part.value(key), part.place(key), text);
    }

    bool take(const Part& part, const char* key, bool& flag)
    {
        return !part.has(key) || readBool(part.value(key), part.place(key), flag);
    }

    template <std::size_t count>
    bool take(const Part& part, const char* key, std::array<double, count>& numbers)
    {
        return !part.has(key) || need(part, key, numbers);
    }

    template <class Value>
    bool take(const Part& part, const char* key, std::optional<Value>& value)
    {
        return !part.has(key) || take(part, key, value.emplace());
    }

    bool takeInt(const Part& part, const char* key, int most, int& number)
    {
        return !part.has(key) || readInt(part.value(key), part.place(key), most, number);
    }

    /// Reads entry by entry of an array, which may be left out.
    template <class Read>
    bool takeEach(const Part& part, const char* key, const Read& read)
    {
        const QJsonValue value = part.value(key);
        const QJsonArray array = value.toArray();
        for (int i = 0; i < array.size(); ++i) {
            if (!read(array.at(i), part.place(key) + QStringLiteral("[%1]").arg(i))) {
                return false;
            }
        }
        return value.isUndefined() || value.isArray() || fail(part.place(key), "expected an array");
    }

    template <std::size_t count>
    bool need(const Part& part, const char* key, std::array<double, count>& numbers)
    {
        return readNumbers(part.value(key), part.place(key), numbers.data(), count);
    }

    bool readSize(const QJsonValue& value, QSize& sizePx)
    {
        double edges[2] = { 0.0, 0.0 };
        if (!readNumbers(value, "size", edges, 2)) {
            return false;
        }
        for (const double edge : edges) {
            if (edge != std::floor(edge) || edge < kMinViewEdgePx || edge > kMaxViewEdgePx) {
                return fail("size",
                            QStringLiteral("expected two whole numbers from %1 to %2")
                                .arg(kMinViewEdgePx)
                                .arg(kMaxViewEdgePx));
            }
        }
        sizePx = QSize(static_cast<int>(edges[0]), static_cast<int>(edges[1]));
        return true;
    }

    bool readCamera(const QJsonValue& value, SessionCamera& camera)
    {
        constexpr double kMaxFovDeg = 179.0;
        Part part;
        return open(value, "camera", sessionKeys(SessionPart::Camera), part) &&
            need(part, "from", camera.from) && need(part, "at", camera.at) &&
            need(part, "up", camera.up) && take(part, "pivot", camera.pivot) &&
            takeInRange(part, "fov", 1.0, kMaxFovDeg, camera.fovDeg) &&
            (camera.from != camera.at || fail(part.path, "from and at are the same point")) &&
            take(part, "orthographic", camera.orthographic) && take(part, "zUp", camera.zUp);
    }

    bool takeInRange(const Part& part, const char* key, double least, double most, double& number)
    {
        const QJsonValue value = part.value(key);
        number = value.toDouble(number);
        const bool isMeant = value.isDouble() || value.isUndefined();
        return (isMeant && number >= least && number <= most) ||
            fail(part.place(key),
                 QStringLiteral("expected a number from %1 to %2").arg(least).arg(most));
    }

    bool readNamedTarget(const Part& part, SessionTarget& target)
    {
        using Kind = SessionTarget::Kind;
        std::array<double, 2> offset { 0.0, 0.0 };
        if (!take(part, part.has("by") ? "by" : "offset", offset)) {
            return false;
        }
        target.offsetPx = QPointF(offset[0], offset[1]);
        if (part.object.size() > (part.has("offset") ? 2 : 1)) {
            return fail(part.path, "names more than one place");
        }
        if (part.has("by")) {
            target.kind = Kind::Pointer;
            return checkKeys(part.object, part.path, { "by" });
        }
        if (part.has("world")) {
            target.kind = Kind::World;
            return need(part, "world", target.world);
        }
        target.kind = part.has("handle") ? Kind::Handle : Kind::Node;
        return (part.has("handle") || part.has("node") ||
                fail(part.path, "expected \"handle\", \"node\", \"world\" or \"by\"")) &&
            take(part, "handle", target.name) && take(part, "node", target.name);
    }

    bool readNodeExpectation(const QJsonValue& value, const QString& path,
                             SessionNodeExpectation& node)
    {
        Part part;
        return open(value, path, sessionKeys(SessionPart::NodeExpectation), part) &&
            take(part, "translation", node.translation) &&
            take(part, "rotation", node.rotationDeg) && take(part, "scale", node.scale) &&
            takeInRange(part, "tolerance", 0.0, kMostTolerance, node.tolerance) &&
            (node.translation || node.rotationDeg || node.scale ||
             fail(path, "expected \"translation\", \"rotation\" or \"scale\""));
    }

    bool readExpectation(const QJsonValue& value, const QString& path,
                         SessionExpectation& expectation)
    {
        constexpr int kMostSteps = 100000;
        Part part;
        if (!open(value, path, sessionKeys(SessionPart::Expectation), part) ||
            !takeInRange(part, "tolerance", 0.0, kMostTolerance, expectation.tolerance) ||
            !take(part, "hover", expectation.hover) ||
            !take(part, "selection", expectation.selection) ||
            !take(part, "orthographic", expectation.orthographic)) {
            return false;
        }
        if (part.has("undoSteps") &&
            !takeInt(part, "undoSteps", kMostSteps, expectation.undoSteps.emplace())) {
            return false;
        }
        for (const char* key : { "values", "nodes" }) {
            if (part.has(key) && !part.value(key).isObject()) {
                return fail(part.place(key), "expected an object");
            }
        }
        expectation.values = part.value("values").toObject();
        const QJsonObject nodes = part.value("nodes").toObject();
        for (const QString& name : nodes.keys()) {
            SessionNodeExpectation& node = expectation.nodes.emplace_back();
            node.node = name;
            if (!readNodeExpectation(nodes.value(name), part.place("nodes") + '.' + name, node)) {
                return false;
            }
        }
        return true;
    }

    /// Demands what a step of its type cannot do without.
    bool checkStep(const Part& part, const SessionStep& step)
    {
        using Type = SessionStep::Type;
        const auto has = [&](const char* key) {
            return part.has(key) || fail(part.path, QStringLiteral("\"%1\" is missing").arg(key));
        };
        switch (step.type) {
        case Type::Move:
        case Type::Press:
        case Type::Release:
        case Type::Click:
        case Type::DoubleClick:
            return has("at");
        case Type::Wheel:
            return has("at") &&
                (step.wheelDelta != 0 || fail(part.path, "\"delta\" is missing or 0"));
        case Type::Key:
        case Type::KeyPress:
        case Type::KeyRelease: {
            const QKeySequence keys(step.key, QKeySequence::PortableText);
            const bool isOneKey = keys.count() == 1 && nbQt::firstKey(keys) != Qt::Key_unknown;
            const bool isModifier = step.key == "Ctrl" || step.key == "Shift" || step.key == "Alt";
            return isOneKey || isModifier ||
                fail(part.place("key"), QStringLiteral("unknown key \"%1\"").arg(step.key));
        }
        case Type::Checkpoint: {
            // The name becomes that of a file in a folder that the person chose.
            const bool isPath = step.name.contains('/') || step.name.contains('\\') ||
                step.name.startsWith('.') || step.name != oneLine(step.name);
            return (!step.name.isEmpty() || fail(part.path, "\"name\" is missing")) &&
                (!isPath || fail(part.place("name"), "may not be a path"));
        }
        case Type::Caption:
            return !step.name.isEmpty() || step.text.isEmpty() ||
                fail(part.path, "\"title\" is missing");
        case Type::Command:
            return has("command");
        case Type::Leave:
            break;
        }
        return true;
    }

    bool readStep(const QJsonValue& value, const QString& path, SessionStep& step)
    {
        Part part;
        if (!open(value, path, sessionKeys(SessionPart::Step), part)) {
            return false;
        }
        const auto unknown = [&](const char* key, const char* what, const QJsonValue& found) {
            return fail(
                part.place(key),
                QStringLiteral("unknown %1 \"%2\"").arg(what, found.toVariant().toString()));
        };
        const auto type = stepTypeFromName(part.value("type").toString());
        if (!type) {
            return unknown("type", "type", part.value("type"));
        }
        step.type = *type;
        if (part.has("button")) {
            const auto button = buttonFromName(part.value("button").toString());
            if (!button) {
                return fail(part.place("button"), "expected \"left\", \"middle\" or \"right\"");
            }
            step.button = *button;
        }
        step.value = part.has("value") ? part.value("value") : step.value;
        const auto readModifier = [&](const QJsonValue& entry, const QString&) {
            const auto modifier = modifierFromName(entry.toString());
            step.modifiers |= modifier.value_or(Qt::NoModifier);
            return modifier || unknown("modifiers", "modifier", entry);
        };
        constexpr int kMaxDelta = 120000;
        constexpr int kMaxPauseMs = 60000;
        const char* const nameKey = step.type == SessionStep::Type::Command ? "command"
            : step.type == SessionStep::Type::Caption                       ? "title"
                                                                            : "name";
        return (!part.has("at") || readTarget(part.value("at"), part.place("at"), step.at)) &&
            takeEach(part, "modifiers", readModifier) &&
            takeInt(part, "delta", kMaxDelta, step.wheelDelta) &&
            takeInt(part, "after", kMaxPauseMs, step.afterMs) && take(part, "key", step.key) &&
            take(part, nameKey, step.name) && take(part, "text", step.text) &&
            take(part, "screenshot", step.screenshot) &&
            (!part.has("expect") ||
             readExpectation(part.value("expect"), part.place("expect"), step.expectation)) &&
            checkStep(part, step);
    }
};

}  // namespace

bool readSessionTarget(const QJsonValue& value, const QString& path, SessionTarget& target,
                       QString& error)
{
    return Reader(error).readTarget(value, path, target);
}

std::optional<Session> parseSession(const QByteArray& text, QString& error)
{
    const std::optional<QJsonObject> document = parseJsonObject(text, error);
    Session session;
    if (!document || !Reader(error).readSession(*document, session)) {
        return std::nullopt;
    }
    return session;
}

std::optional<Session> readSessionFile(const QString& path, QString& error)
{
    QByteArray text;
    if (!readWhole(path, kMaxSessionBytes, text, error)) {
        return std::nullopt;
    }
    QString problem;
    std::optional<Session> session = parseSession(text, problem);
    if (!session) {
        error = QStringLiteral("%1: %2").arg(path, problem);
        return std::nullopt;
    }
    const QDir folder = QFileInfo(path).absoluteDir();
    session->folder = folder.path();
    for (QString& model : session->files) {
        model = QDir::cleanPath(folder.absoluteFilePath(model));
    }
    return session;
}

}  // namespace viewer
