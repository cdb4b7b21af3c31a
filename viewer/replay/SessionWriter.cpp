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

void put(QJsonObject& object, const char* key, const QJsonValue& value, bool isWanted)
{
    if (isWanted) {
        object[QLatin1String(key)] = value;
    }
}

QJsonObject jsonOf(const SessionCamera& camera)
{
    QJsonObject object { { "from", jsonOf(camera.from) },
                         { "at", jsonOf(camera.at) },
                         { "up", jsonOf(camera.up) },
                         { "fov", camera.fovDeg } };
    const auto pivot = camera.pivot.value_or(camera.at);
    put(object, "pivot", jsonOf(pivot), pivot != camera.at);
    put(object, "orthographic", true, camera.orthographic);
    put(object, "zUp", true, camera.zUp);
    return object;
}

template <class Value>
void put(QJsonObject& object, const char* key, const std::optional<Value>& value)
{
    put(object, key, value ? jsonOf(*value) : QJsonValue(), value.has_value());
}

QJsonObject jsonOf(const SessionNodeExpectation& node)
{
    QJsonObject object;
    put(object, "translation", node.translation);
    put(object, "rotation", node.rotationDeg);
    put(object, "scale", node.scale);
    put(object, "tolerance", node.tolerance,
        node.tolerance != SessionNodeExpectation::kDefaultTolerance);
    return object;
}

QJsonObject jsonOf(const SessionExpectation& expectation)
{
    QJsonObject object;
    put(object, "hover", expectation.hover);
    put(object, "selection", expectation.selection);
    put(object, "orthographic", expectation.orthographic);
    put(object, "undoSteps", expectation.undoSteps);
    QJsonObject nodes;
    for (const SessionNodeExpectation& node : expectation.nodes) {
        nodes[node.node] = jsonOf(node);
    }
    put(object, "nodes", nodes, !nodes.isEmpty());
    put(object, "values", expectation.values, !expectation.values.isEmpty());
    put(object, "tolerance", expectation.tolerance,
        expectation.tolerance != SessionExpectation::kUsualTolerance);
    return object;
}

bool hasButton(Type type)
{
    return type == Type::Press || type == Type::Release || type == Type::Click ||
        type == Type::DoubleClick;
}

QJsonObject jsonOf(const SessionStep& step)
{
    QJsonObject object { { "type", stepTypeName(step.type) } };
    const Type type = step.type;
    const bool isCaption = type == Type::Caption;
    put(object, "title", step.name, isCaption);
    put(object, "text", step.text, isCaption && !step.text.isEmpty());
    put(object, "command", step.name, type == Type::Command);
    put(object, "value", step.value, type == Type::Command && !step.value.isNull());
    put(object, "name", step.name, type == Type::Checkpoint);
    put(object, "at", jsonOf(step.at),
        hasButton(type) || type == Type::Move || type == Type::Wheel);
    put(object, "button", buttonName(step.button),
        hasButton(type) && step.button != Qt::LeftButton);
    put(object, "delta", step.wheelDelta, type == Type::Wheel);
    put(object, "key", step.key, !step.key.isEmpty());
    put(object, "modifiers", QJsonArray::fromStringList(modifierNames(step.modifiers)),
        step.modifiers != Qt::NoModifier);
    put(object, "after", step.afterMs, step.afterMs != 0);
    put(object, "screenshot", true, type == Type::Checkpoint && step.screenshot);
    const QJsonObject expectation = jsonOf(step.expectation);
    put(object, "expect", expectation, type == Type::Checkpoint && !expectation.isEmpty());
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
    put(object, "files", QJsonArray::fromStringList(session.files), !session.files.isEmpty());
    put(object, "camera", session.camera);
    put(object, "selection", session.selection);
    put(object, "manipulator", session.manipulator, !session.manipulator.isEmpty());
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
