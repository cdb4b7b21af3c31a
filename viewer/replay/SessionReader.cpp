// SPDX-License-Identifier: MIT
#include "viewer/commands/JsonInput.h"
#include "viewer/replay/Session.h"
#include "viewer/texts/FileRules.h"

#include <nbUtils/nbQt.h>

#include <QFileInfo>

#include <cmath>

namespace viewer {
namespace {

using Type = SessionStep::Type;

constexpr double kMostTolerance = 1e9;
constexpr qint64 kMaxSessionBytes = 64LL * 1024 * 1024;

template <class Value>
struct Word
{
    const char* name;
    Value value;
};

/// In the order of SessionStep::Type.
constexpr std::array<const char*, 13> kTypes { "move",        "press",      "release", "click",
                                               "doubleClick", "wheel",      "leave",   "key",
                                               "keyPress",    "keyRelease", "command", "caption",
                                               "checkpoint" };

constexpr Word<Qt::MouseButton> kButtons[] = { { "left", Qt::LeftButton },
                                               { "middle", Qt::MiddleButton },
                                               { "right", Qt::RightButton } };

constexpr Word<Qt::KeyboardModifier> kModifiers[] = { { "ctrl", Qt::ControlModifier },
                                                      { "shift", Qt::ShiftModifier },
                                                      { "alt", Qt::AltModifier } };

constexpr Word<SessionTarget::Kind> kPlaces[] = { { "handle", SessionTarget::Kind::Handle },
                                                  { "node", SessionTarget::Kind::Node },
                                                  { "world", SessionTarget::Kind::World },
                                                  { "by", SessionTarget::Kind::Pointer } };

/// @return nothing for an unknown word
template <class Value, std::size_t Count>
std::optional<Value> find(const Word<Value> (&words)[Count], const QJsonValue& name)
{
    for (const Word<Value>& word : words) {
        if (name == QJsonValue(word.name)) {
            return word.value;
        }
    }
    return std::nullopt;
}

/// A pixel, or an object that says what is there.
bool readTarget(JsonInput& in, const QJsonValue& value, const QString& path, SessionTarget& target)
{
    if (value.isObject()) {
        return in.readObject(value, path, target);
    }
    std::array<double, 2> px { 0.0, 0.0 };
    const bool isRead = readJson(in, value, path, px);
    target.offsetPx = QPointF(px[0], px[1]);
    return isRead;
}

/// Demands what a step of its type cannot do without.
bool checkStep(JsonInput& in, const SessionStep& step)
{
    switch (step.type) {
    case Type::Move:
    case Type::Press:
    case Type::Release:
    case Type::Click:
    case Type::DoubleClick:
        return in.needs("at");
    case Type::Wheel:
        return in.needs("at") && in.demand(step.wheelDelta != 0, "", "\"delta\" is missing or 0");
    case Type::Key:
    case Type::KeyPress:
    case Type::KeyRelease: {
        const QKeySequence keys(step.key, QKeySequence::PortableText);
        const bool isOneKey = keys.count() == 1 && nbQt::firstKey(keys) != Qt::Key_unknown;
        const bool isModifier = step.key == "Ctrl" || step.key == "Shift" || step.key == "Alt";
        return in.demand(isOneKey || isModifier, "key",
                         QStringLiteral("unknown key \"%1\"").arg(step.key));
    }
    case Type::Checkpoint: {
        // The name becomes that of a file in a folder that the person chose.
        const bool isPath = step.name.contains('/') || step.name.contains('\\') ||
            step.name.startsWith('.') || step.name != oneLine(step.name);
        return in.demand(!step.name.isEmpty(), "", "\"name\" is missing") &&
            in.demand(!isPath, "name", "may not be a path");
    }
    case Type::Caption:
        return in.demand(!step.name.isEmpty() || step.text.isEmpty(), "", "\"title\" is missing");
    case Type::Command:
        return in.needs("command");
    case Type::Leave:
        break;
    }
    return true;
}

}  // namespace

// == What the objects of a session consist of, for JsonInput

static bool describe(JsonInput& in, SessionTarget& target)
{
    const char* named = nullptr;
    for (const auto& [key, kind] : kPlaces) {
        if (in.has(key)) {
            if (named != nullptr) {
                return in.demand(false, "", "names more than one place");
            }
            named = key;
            target.kind = kind;
        }
    }
    std::array<double, 2> offset { 0.0, 0.0 };
    const bool isPointer = target.kind == SessionTarget::Kind::Pointer;
    const bool isWorld = target.kind == SessionTarget::Kind::World;
    const bool isRead =
        in.demand(named != nullptr, "", "expected \"handle\", \"node\", \"world\" or \"by\"") &&
        in.maybe(isPointer ? "by" : "offset", offset) &&
        (isPointer || (isWorld ? in.field("world", target.world) : in.field(named, target.name)));
    target.offsetPx = QPointF(offset[0], offset[1]);
    return isRead;
}

static bool describe(JsonInput& in, SessionNodeExpectation& node)
{
    return in.field("translation", node.translation) && in.field("rotation", node.rotationDeg) &&
        in.field("scale", node.scale) &&
        in.number("tolerance", node.tolerance, 0.0, kMostTolerance) &&
        in.demand(node.translation || node.rotationDeg || node.scale, "",
                  "expected \"translation\", \"rotation\" or \"scale\"");
}

static bool describe(JsonInput& in, SessionExpectation& expectation)
{
    constexpr int kMostSteps = 100000;
    QJsonObject nodes;
    if (!in.number("tolerance", expectation.tolerance, 0.0, kMostTolerance) ||
        !in.field("hover", expectation.hover) || !in.field("selection", expectation.selection) ||
        !in.field("orthographic", expectation.orthographic) ||
        !in.maybe("values", expectation.values) || !in.maybe("nodes", nodes)) {
        return false;
    }
    for (const QString& name : nodes.keys()) {
        SessionNodeExpectation& node = expectation.nodes.emplace_back();
        node.node = name;
        if (!in.readObject(nodes.value(name), in.pathOf("nodes") + '.' + name, node)) {
            return false;
        }
    }
    return !in.has("undoSteps") ||
        in.wholeNumber("undoSteps", expectation.undoSteps.emplace(), kMostSteps);
}

static bool describe(JsonInput& in, SessionStep& step)
{
    constexpr int kMaxDelta = 120000;
    constexpr int kMaxPauseMs = 60000;
    const auto unknown = [&](const char* key, const char* what, const QJsonValue& found) {
        return in.demand(
            false, key,
            QStringLiteral("unknown %1 \"%2\"").arg(what, found.toVariant().toString()));
    };
    const QJsonValue typeName = in.take("type");
    const int type = JsonInput::indexOf(typeName, kTypes);
    if (type < 0) {
        return unknown("type", "type", typeName);
    }
    step.type = static_cast<Type>(type);
    const auto button = in.has("button") ? find(kButtons, in.take("button")) : step.button;
    step.button = button.value_or(step.button);
    step.value = in.has("value") ? in.take("value") : step.value;
    const auto readModifier = [&](const QJsonValue& entry, const QString&) {
        const auto modifier = find(kModifiers, entry);
        step.modifiers |= modifier.value_or(Qt::NoModifier);
        return modifier || unknown("modifiers", "modifier", entry);
    };
    // Any step may have each of these; what another type has is passed by.
    for (const char* key : { "command", "title", "name" }) {
        in.take(key);
    }
    const char* const nameKey = step.type == Type::Command ? "command"
        : step.type == Type::Caption                       ? "title"
                                                           : "name";
    return in.demand(button.has_value(), "button", "expected \"left\", \"middle\" or \"right\"") &&
        (!in.has("at") || readTarget(in, in.take("at"), in.pathOf("at"), step.at)) &&
        in.each("modifiers", readModifier) && in.wholeNumber("delta", step.wheelDelta, kMaxDelta) &&
        in.wholeNumber("after", step.afterMs, kMaxPauseMs) && in.maybe("key", step.key) &&
        in.maybe(nameKey, step.name) && in.maybe("text", step.text) &&
        in.maybe("screenshot", step.screenshot) &&
        (!in.has("expect") || in.object("expect", step.expectation)) && checkStep(in, step);
}

/// Turns about `at` unless a pivot is told. A type of its own, since scenes describe theirs
/// otherwise.
struct SessionCamera : CameraPose
{ };

static bool describe(JsonInput& in, SessionCamera& camera)
{
    constexpr double kMaxFovDeg = 179.0;
    auto fovDeg = static_cast<double>(camera.fovDeg);
    const bool isRead = in.field("from", camera.from) && in.field("at", camera.at) &&
        in.field("up", camera.up) && in.field("pivot", camera.pivot, camera.at) &&
        in.number("fov", fovDeg, 1.0, kMaxFovDeg) &&
        in.demand(camera.from != camera.at, "", "from and at are the same point") &&
        in.field("orthographic", camera.orthographic, false) && in.field("zUp", camera.zUp, false);
    camera.fovDeg = static_cast<float>(fovDeg);
    return isRead;
}

static bool describe(JsonInput& in, Session& session)
{
    std::optional<SessionCamera> camera;
    std::array<double, 2> size { 0.0, 0.0 };
    const auto isEdge = [](double edge) {
        return edge == std::floor(edge) && edge >= kMinViewEdgePx && edge <= kMaxViewEdgePx;
    };
    const auto readFile = [&](const QJsonValue& value, const QString& path) {
        session.files.append(QString());
        return in.readString(value, path, session.files.last());
    };
    const bool isRead = in.version("session", 1) && in.field("size", size) &&
        in.demand(isEdge(size[0]) && isEdge(size[1]), "size",
                  QStringLiteral("expected two whole numbers from %1 to %2")
                      .arg(kMinViewEdgePx)
                      .arg(kMaxViewEdgePx)) &&
        in.each("files", readFile) && in.part("camera", camera) &&
        in.field("selection", session.selection) && in.maybe("manipulator", session.manipulator) &&
        in.needs("steps") && in.list("steps", session.steps);
    session.camera = camera;
    if (isRead) {
        session.sizePx = QSize(static_cast<int>(size[0]), static_cast<int>(size[1]));
    }
    return isRead;
}

bool readSessionTarget(const QJsonValue& value, const QString& path, SessionTarget& target,
                       QString& error)
{
    JsonInput in(error);
    return readTarget(in, value, path, target);
}

std::optional<Session> parseSession(const QByteArray& text, QString& error)
{
    const std::optional<QJsonObject> document = parseJsonObject(text, error);
    Session session;
    const bool isRead = document && JsonInput(error).readObject(*document, {}, session);
    return isRead ? std::make_optional(session) : std::nullopt;
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
