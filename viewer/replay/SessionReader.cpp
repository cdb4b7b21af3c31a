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

QString placeOf(const QString& path, const char* key)
{
    return path.isEmpty() ? QString(key) : path + '.' + key;
}

/// Walks the JSON document of a session.
class Reader : private JsonReader
{
public:
    using JsonReader::JsonReader;

    bool readSession(const QJsonObject& object, Session& session);
    bool readTarget(const QJsonValue& value, const QString& path, SessionTarget& target);

private:
    bool readSize(const QJsonValue& value, QSize& sizePx);
    bool readCamera(const QJsonValue& value, SessionCamera& camera);
    bool readStep(const QJsonValue& value, const QString& path, SessionStep& step);
    bool readNamedTarget(const QJsonObject& object, const QString& path, SessionTarget& target);

    /// Each reads an entry of an object; one that is not there keeps its value.
    bool take(const QJsonObject& object, const QString& path, const char* key, QString& text)
    {
        return !object.contains(key) || readString(object.value(key), placeOf(path, key), text);
    }

    bool take(const QJsonObject& object, const QString& path, const char* key, bool& flag)
    {
        return !object.contains(key) || readBool(object.value(key), placeOf(path, key), flag);
    }

    template <std::size_t count>
    bool take(const QJsonObject& object, const QString& path, const char* key,
              std::array<double, count>& numbers)
    {
        return !object.contains(key) ||
            readNumbers(object.value(key), placeOf(path, key), numbers.data(), count);
    }

    template <class Value>
    bool take(const QJsonObject& object, const QString& path, const char* key,
              std::optional<Value>& value)
    {
        return !object.contains(key) || take(object, path, key, value.emplace());
    }

    bool takeInt(const QJsonObject& object, const QString& path, const char* key, int most,
                 int& number)
    {
        return !object.contains(key) ||
            readInt(object.value(key), placeOf(path, key), most, number);
    }

    bool readInRange(const QJsonObject& object, const QString& path, const char* key, double least,
                     double most, double& number);
    bool readModifiers(const QJsonValue& value, const QString& path, SessionStep& step);
    bool readExpectation(const QJsonValue& value, const QString& path,
                         SessionExpectation& expectation);
    bool readNodeExpectations(const QJsonValue& value, const QString& path,
                              std::vector<SessionNodeExpectation>& nodes);
    bool checkStep(const QJsonObject& object, const QString& path, const SessionStep& step);
};

bool Reader::readSize(const QJsonValue& value, QSize& sizePx)
{
    double edges[2] = { 0.0, 0.0 };
    if (!readNumbers(value, QStringLiteral("size"), edges, 2)) {
        return false;
    }
    for (const double edge : edges) {
        if (edge != std::floor(edge) || edge < kMinViewEdgePx || edge > kMaxViewEdgePx) {
            return fail(QStringLiteral("size"),
                        QStringLiteral("expected two whole numbers from %1 to %2")
                            .arg(kMinViewEdgePx)
                            .arg(kMaxViewEdgePx));
        }
    }
    sizePx = QSize(static_cast<int>(edges[0]), static_cast<int>(edges[1]));
    return true;
}

bool Reader::readCamera(const QJsonValue& value, SessionCamera& camera)
{
    const QString path = QStringLiteral("camera");
    const QJsonObject object = value.toObject();
    if (!value.isObject()) {
        return fail(path, QStringLiteral("expected an object"));
    }
    constexpr double kMaxFovDeg = 179.0;
    if (!checkKeys(object, path, sessionKeys(SessionPart::Camera)) ||
        !readNumbers(object.value("from"), path + ".from", camera.from.data(), 3) ||
        !readNumbers(object.value("at"), path + ".at", camera.at.data(), 3) ||
        !readNumbers(object.value("up"), path + ".up", camera.up.data(), 3) ||
        !take(object, path, "pivot", camera.pivot) ||
        !readInRange(object, path, "fov", 1.0, kMaxFovDeg, camera.fovDeg)) {
        return false;
    }
    if (camera.from == camera.at) {
        return fail(path, QStringLiteral("from and at are the same point"));
    }
    return take(object, path, "orthographic", camera.orthographic) &&
        take(object, path, "zUp", camera.zUp);
}

bool Reader::readInRange(const QJsonObject& object, const QString& path, const char* key,
                         double least, double most, double& number)
{
    const QJsonValue value = object.value(QLatin1String(key));
    number = value.toDouble(number);
    const bool isMeant = value.isDouble() || value.isUndefined();
    return (isMeant && number >= least && number <= most) ||
        fail(path + '.' + key,
             QStringLiteral("expected a number from %1 to %2").arg(least).arg(most));
}

bool Reader::readNamedTarget(const QJsonObject& object, const QString& path, SessionTarget& target)
{
    if (!checkKeys(object, path, sessionKeys(SessionPart::Target))) {
        return false;
    }
    std::array<double, 2> offset { 0.0, 0.0 };
    if (!take(object, path, object.contains("by") ? "by" : "offset", offset)) {
        return false;
    }
    target.offsetPx = QPointF(offset[0], offset[1]);
    if (object.size() > (object.contains("offset") ? 2 : 1)) {
        return fail(path, QStringLiteral("names more than one place"));
    }
    if (object.contains("by")) {
        target.kind = SessionTarget::Kind::Pointer;
        return checkKeys(object, path, { "by" });
    }
    if (object.contains("handle")) {
        target.kind = SessionTarget::Kind::Handle;
        return readString(object.value("handle"), path + ".handle", target.name);
    }
    if (object.contains("node")) {
        target.kind = SessionTarget::Kind::Node;
        return readString(object.value("node"), path + ".node", target.name);
    }
    if (object.contains("world")) {
        target.kind = SessionTarget::Kind::World;
        return readNumbers(object.value("world"), path + ".world", target.world.data(), 3);
    }
    return fail(path, QStringLiteral("expected \"handle\", \"node\", \"world\" or \"by\""));
}

bool Reader::readTarget(const QJsonValue& value, const QString& path, SessionTarget& target)
{
    if (value.isObject()) {
        return readNamedTarget(value.toObject(), path, target);
    }
    double px[2] = { 0.0, 0.0 };
    if (!readNumbers(value, path, px, 2)) {
        return false;
    }
    target.kind = SessionTarget::Kind::Pixel;
    target.offsetPx = QPointF(px[0], px[1]);
    return true;
}

bool Reader::readModifiers(const QJsonValue& value, const QString& path, SessionStep& step)
{
    if (!value.isArray()) {
        return fail(path, QStringLiteral("expected an array of names"));
    }
    const QJsonArray array = value.toArray();
    for (const QJsonValue& entry : array) {
        const auto modifier = modifierFromName(entry.toString());
        if (!modifier) {
            return fail(
                path, QStringLiteral("unknown modifier \"%1\"").arg(entry.toVariant().toString()));
        }
        step.modifiers |= *modifier;
    }
    return true;
}

bool Reader::readNodeExpectations(const QJsonValue& value, const QString& path,
                                  std::vector<SessionNodeExpectation>& nodes)
{
    if (!value.isObject()) {
        return fail(path, QStringLiteral("expected an object"));
    }
    const QJsonObject all = value.toObject();
    for (const QString& name : all.keys()) {
        const QString nodePath = path + '.' + name;
        const QJsonObject object = all.value(name).toObject();
        SessionNodeExpectation node;
        node.node = name;
        if (!checkKeys(object, nodePath, sessionKeys(SessionPart::NodeExpectation)) ||
            !take(object, nodePath, "translation", node.translation) ||
            !take(object, nodePath, "rotation", node.rotationDeg) ||
            !take(object, nodePath, "scale", node.scale) ||
            !readInRange(object, nodePath, "tolerance", 0.0, kMostTolerance, node.tolerance)) {
            return false;
        }
        if (!node.translation && !node.rotationDeg && !node.scale) {
            return fail(nodePath,
                        QStringLiteral("expected \"translation\", \"rotation\" or "
                                       "\"scale\""));
        }
        nodes.push_back(node);
    }
    return true;
}

bool Reader::readExpectation(const QJsonValue& value, const QString& path,
                             SessionExpectation& expectation)
{
    if (!value.isObject()) {
        return fail(path, QStringLiteral("expected an object"));
    }
    const QJsonObject object = value.toObject();
    if (!checkKeys(object, path, sessionKeys(SessionPart::Expectation)) ||
        !readInRange(object, path, "tolerance", 0.0, kMostTolerance, expectation.tolerance)) {
        return false;
    }
    constexpr int kMostSteps = 100000;
    if (!take(object, path, "hover", expectation.hover) ||
        !take(object, path, "selection", expectation.selection) ||
        !take(object, path, "orthographic", expectation.orthographic)) {
        return false;
    }
    if (object.contains("undoSteps") &&
        !takeInt(object, path, "undoSteps", kMostSteps, expectation.undoSteps.emplace())) {
        return false;
    }
    if (object.contains("values")) {
        if (!object.value("values").isObject()) {
            return fail(path + ".values", QStringLiteral("expected an object"));
        }
        expectation.values = object.value("values").toObject();
    }
    return !object.contains("nodes") ||
        readNodeExpectations(object.value("nodes"), path + ".nodes", expectation.nodes);
}

/// Demands what a step of its type cannot do without.
bool Reader::checkStep(const QJsonObject& object, const QString& path, const SessionStep& step)
{
    using Type = SessionStep::Type;
    switch (step.type) {
    case Type::Move:
    case Type::Press:
    case Type::Release:
    case Type::Click:
    case Type::DoubleClick:
        return object.contains("at") || fail(path, QStringLiteral("\"at\" is missing"));
    case Type::Wheel:
        return (object.contains("at") || fail(path, QStringLiteral("\"at\" is missing"))) &&
            (step.wheelDelta != 0 || fail(path, QStringLiteral("\"delta\" is missing or 0")));
    case Type::Key:
    case Type::KeyPress:
    case Type::KeyRelease: {
        const QKeySequence keys(step.key, QKeySequence::PortableText);
        const bool isOneKey = keys.count() == 1 && nbQt::firstKey(keys) != Qt::Key_unknown;
        const bool isModifier = step.key == "Ctrl" || step.key == "Shift" || step.key == "Alt";
        return isOneKey || isModifier ||
            fail(path + ".key", QStringLiteral("unknown key \"%1\"").arg(step.key));
    }
    case Type::Checkpoint: {
        // The name becomes that of a file in a folder that the person chose.
        const bool isPath = step.name.contains('/') || step.name.contains('\\') ||
            step.name.startsWith('.') || step.name != oneLine(step.name);
        return (!step.name.isEmpty() || fail(path, QStringLiteral("\"name\" is missing"))) &&
            (!isPath || fail(path + ".name", QStringLiteral("may not be a path")));
    }
    case Type::Caption:
        return !step.name.isEmpty() || step.text.isEmpty() ||
            fail(path, QStringLiteral("\"title\" is missing"));
    case Type::Command:
        return object.contains("command") || fail(path, QStringLiteral("\"command\" is missing"));
    case Type::Leave:
        break;
    }
    return true;
}

bool Reader::readStep(const QJsonValue& value, const QString& path, SessionStep& step)
{
    if (!value.isObject()) {
        return fail(path, QStringLiteral("expected an object"));
    }
    const QJsonObject object = value.toObject();
    if (!checkKeys(object, path, sessionKeys(SessionPart::Step))) {
        return false;
    }
    const auto type = stepTypeFromName(object.value("type").toString());
    if (!type) {
        return fail(
            path + ".type",
            QStringLiteral("unknown type \"%1\"").arg(object.value("type").toVariant().toString()));
    }
    step.type = *type;
    if (object.contains("button")) {
        const auto button = buttonFromName(object.value("button").toString());
        if (!button) {
            return fail(path + ".button",
                        QStringLiteral("expected \"left\", \"middle\" or \"right\""));
        }
        step.button = *button;
    }
    if (object.contains("value")) {
        step.value = object.value("value");
    }
    constexpr int kMaxDelta = 120000;
    constexpr int kMaxPauseMs = 60000;
    const char* const nameKey = step.type == SessionStep::Type::Command ? "command"
        : step.type == SessionStep::Type::Caption                       ? "title"
                                                                        : "name";
    return (!object.contains("at") || readTarget(object.value("at"), path + ".at", step.at)) &&
        (!object.contains("modifiers") ||
         readModifiers(object.value("modifiers"), path + ".modifiers", step)) &&
        takeInt(object, path, "delta", kMaxDelta, step.wheelDelta) &&
        takeInt(object, path, "after", kMaxPauseMs, step.afterMs) &&
        take(object, path, "key", step.key) && take(object, path, nameKey, step.name) &&
        take(object, path, "text", step.text) &&
        take(object, path, "screenshot", step.screenshot) &&
        (!object.contains("expect") ||
         readExpectation(object.value("expect"), path + ".expect", step.expectation)) &&
        checkStep(object, path, step);
}

bool Reader::readSession(const QJsonObject& object, Session& session)
{
    if (!checkKeys(object, {}, sessionKeys(SessionPart::Session))) {
        return false;
    }
    if (object.value("session").toInt() != 1) {
        return fail(QStringLiteral("session"),
                    QStringLiteral("expected 1, the version of the format"));
    }
    if (!readSize(object.value("size"), session.sizePx)) {
        return false;
    }
    if (object.contains("files") && !object.value("files").isArray()) {
        return fail(QStringLiteral("files"), QStringLiteral("expected an array of names"));
    }
    const QJsonArray files = object.value("files").toArray();
    for (int i = 0; i < files.size(); ++i) {
        QString file;
        if (!readString(files.at(i), QStringLiteral("files[%1]").arg(i), file)) {
            return false;
        }
        session.files.append(file);
    }
    if (object.contains("camera") &&
        !readCamera(object.value("camera"), session.camera.emplace())) {
        return false;
    }
    if (!take(object, {}, "selection", session.selection) ||
        !take(object, {}, "manipulator", session.manipulator)) {
        return false;
    }
    if (!object.value("steps").isArray()) {
        return fail(QStringLiteral("steps"), QStringLiteral("expected an array"));
    }
    const QJsonArray steps = object.value("steps").toArray();
    for (int i = 0; i < steps.size(); ++i) {
        SessionStep step;
        if (!readStep(steps.at(i), QStringLiteral("steps[%1]").arg(i), step)) {
            return false;
        }
        session.steps.push_back(step);
    }
    return true;
}

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
