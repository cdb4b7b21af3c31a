// SPDX-License-Identifier: MIT
#include "viewer/replay/Session.h"
#include "viewer/replay/SessionNames.h"
#include "viewer/texts/TextFile.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace viewer {
namespace {

using Type = SessionStep::Type;

QJsonArray jsonOf(const std::array<double, 3>& point)
{
    return { point[0], point[1], point[2] };
}

QJsonArray jsonOf(const QPointF& point)
{
    return { point.x(), point.y() };
}

QJsonValue jsonOf(const SessionTarget& target)
{
    QJsonObject object;
    switch (target.kind) {
    case SessionTarget::Kind::Pixel:
        return jsonOf(target.offsetPx);
    case SessionTarget::Kind::Pointer:
        object["by"] = jsonOf(target.offsetPx);
        return object;
    case SessionTarget::Kind::Handle:
        object["handle"] = target.name;
        break;
    case SessionTarget::Kind::Node:
        object["node"] = target.name;
        break;
    case SessionTarget::Kind::World:
        object["world"] = jsonOf(target.world);
        break;
    }
    if (!target.offsetPx.isNull()) {
        object["offset"] = jsonOf(target.offsetPx);
    }
    return object;
}

QJsonValue jsonOf(const QJsonValue& value)
{
    return value;
}

template <class Value>
void set(QJsonObject& object, const char* key, const std::optional<Value>& value)
{
    if (value) {
        object[QLatin1String(key)] = jsonOf(*value);
    }
}

QJsonObject jsonOf(const SessionNodeExpectation& node)
{
    QJsonObject object;
    set(object, "translation", node.translation);
    set(object, "rotation", node.rotationDeg);
    set(object, "scale", node.scale);
    if (node.tolerance != SessionNodeExpectation::kDefaultTolerance) {
        object["tolerance"] = node.tolerance;
    }
    return object;
}

QJsonObject jsonOf(const SessionExpectation& expectation)
{
    QJsonObject object;
    set(object, "hover", expectation.hover);
    set(object, "selection", expectation.selection);
    set(object, "orthographic", expectation.orthographic);
    set(object, "undoSteps", expectation.undoSteps);
    QJsonObject nodes;
    for (const SessionNodeExpectation& node : expectation.nodes) {
        nodes[node.node] = jsonOf(node);
    }
    if (!nodes.isEmpty()) {
        object["nodes"] = nodes;
    }
    if (!expectation.values.isEmpty()) {
        object["values"] = expectation.values;
    }
    if (expectation.tolerance != SessionExpectation().tolerance) {
        object["tolerance"] = expectation.tolerance;
    }
    return object;
}

bool hasPlace(Type type)
{
    return type == Type::Move || type == Type::Press || type == Type::Release ||
        type == Type::Click || type == Type::DoubleClick || type == Type::Wheel;
}

bool hasButton(Type type)
{
    return type == Type::Press || type == Type::Release || type == Type::Click ||
        type == Type::DoubleClick;
}

QJsonObject jsonOf(const SessionCamera& camera)
{
    QJsonObject object { { "from", jsonOf(camera.from) },
                         { "at", jsonOf(camera.at) },
                         { "up", jsonOf(camera.up) },
                         { "fov", camera.fovDeg } };
    if (camera.pivot && camera.pivot != camera.at) {
        object["pivot"] = jsonOf(*camera.pivot);
    }
    if (camera.orthographic) {
        object["orthographic"] = true;
    }
    if (camera.zUp) {
        object["zUp"] = true;
    }
    return object;
}

QJsonObject jsonOf(const SessionStep& step)
{
    QJsonObject object { { "type", stepTypeName(step.type) } };
    const auto put = [&object](const char* key, const QJsonValue& value, bool isWanted) {
        if (isWanted) {
            object[QLatin1String(key)] = value;
        }
    };
    put("title", step.name, step.type == Type::Caption);
    put("text", step.text, step.type == Type::Caption && !step.text.isEmpty());
    put("command", step.name, step.type == Type::Command);
    put("value", step.value, step.type == Type::Command && !step.value.isNull());
    put("name", step.name, step.type == Type::Checkpoint);
    put("at", jsonOf(step.at), hasPlace(step.type));
    put("button", buttonName(step.button), hasButton(step.type) && step.button != Qt::LeftButton);
    put("delta", step.wheelDelta, step.type == Type::Wheel);
    put("key", step.key, !step.key.isEmpty());
    put("modifiers", QJsonArray::fromStringList(modifierNames(step.modifiers)),
        step.modifiers != Qt::NoModifier);
    put("after", step.afterMs, step.afterMs != 0);
    if (step.type == Type::Checkpoint) {
        put("screenshot", true, step.screenshot);
        const QJsonObject expectation = jsonOf(step.expectation);
        put("expect", expectation, !expectation.isEmpty());
    }
    return object;
}

/// A value of a command in which files that are there are named from a folder.
QJsonValue fromFolder(const QJsonValue& value, const QDir& folder)
{
    if (value.isString()) {
        const QString file = value.toString();
        const bool isFile = QDir::isAbsolutePath(file) && QFileInfo(file).isFile();
        return isFile ? folder.relativeFilePath(file) : file;
    }
    if (value.isObject()) {
        QJsonObject object = value.toObject();
        for (const QString& key : object.keys()) {
            object[key] = fromFolder(object[key], folder);
        }
        return object;
    }
    return value;
}

}  // namespace

QByteArray sessionText(const Session& session)
{
    QJsonObject object {
        { "session", 1 }, { "size", QJsonArray { session.sizePx.width(), session.sizePx.height() } }
    };
    if (!session.files.isEmpty()) {
        object["files"] = QJsonArray::fromStringList(session.files);
    }
    if (session.camera) {
        object["camera"] = jsonOf(*session.camera);
    }
    if (session.selection) {
        object["selection"] = *session.selection;
    }
    if (!session.manipulator.isEmpty()) {
        object["manipulator"] = session.manipulator;
    }
    QJsonArray steps;
    for (const SessionStep& step : session.steps) {
        steps.append(jsonOf(step));
    }
    object["steps"] = steps;
    return QJsonDocument(object).toJson();
}

bool writeSessionFile(const QString& path, const Session& session, QString& error)
{
    Session relative = session;
    const QDir folder = QFileInfo(path).absoluteDir();
    for (QString& file : relative.files) {
        file = folder.relativeFilePath(file);
    }
    for (SessionStep& step : relative.steps) {
        step.value = fromFolder(step.value, folder);
    }
    return writeWhole(path, sessionText(relative), error);
}

}  // namespace viewer
