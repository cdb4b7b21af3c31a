// SPDX-License-Identifier: MIT
#include "viewer/core/Session.h"
#include "viewer/core/SessionNames.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

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

QJsonObject jsonOf(const SessionNodeExpectation& node)
{
    QJsonObject object;
    if (node.translation) {
        object["translation"] = jsonOf(*node.translation);
    }
    if (node.rotationDeg) {
        object["rotation"] = jsonOf(*node.rotationDeg);
    }
    if (node.scale) {
        object["scale"] = jsonOf(*node.scale);
    }
    object["tolerance"] = node.tolerance;
    return object;
}

QJsonObject jsonOf(const SessionExpectation& expectation)
{
    QJsonObject object;
    if (expectation.hover) {
        object["hover"] = *expectation.hover;
    }
    if (expectation.selection) {
        object["selection"] = *expectation.selection;
    }
    if (expectation.orthographic) {
        object["orthographic"] = *expectation.orthographic;
    }
    if (expectation.undoSteps) {
        object["undoSteps"] = *expectation.undoSteps;
    }
    QJsonObject nodes;
    for (const SessionNodeExpectation& node : expectation.nodes) {
        nodes[node.node] = jsonOf(node);
    }
    if (!nodes.isEmpty()) {
        object["nodes"] = nodes;
    }
    if (!expectation.values.isEmpty()) {
        object["values"] = expectation.values;
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

void addCheckpoint(const SessionStep& step, QJsonObject& object)
{
    object["name"] = step.name;
    if (step.screenshot) {
        object["screenshot"] = true;
    }
    const QJsonObject expectation = jsonOf(step.expectation);
    if (!expectation.isEmpty()) {
        object["expect"] = expectation;
    }
}

QJsonObject jsonOf(const SessionStep& step)
{
    QJsonObject object;
    object["type"] = stepTypeName(step.type);
    if (hasPlace(step.type)) {
        object["at"] = jsonOf(step.at);
    }
    if (hasButton(step.type) && step.button != Qt::LeftButton) {
        object["button"] = buttonName(step.button);
    }
    if (step.modifiers != Qt::NoModifier) {
        object["modifiers"] = QJsonArray::fromStringList(modifierNames(step.modifiers));
    }
    if (step.type == Type::Wheel) {
        object["delta"] = step.wheelDelta;
    }
    if (!step.key.isEmpty()) {
        object["key"] = step.key;
    }
    if (step.afterMs != 0) {
        object["after"] = step.afterMs;
    }
    if (step.type == Type::Command) {
        object["command"] = step.name;
        if (!step.value.isNull()) {
            object["value"] = step.value;
        }
    }
    if (step.type == Type::Checkpoint) {
        addCheckpoint(step, object);
    }
    return object;
}

QJsonObject jsonOf(const SessionCamera& camera)
{
    QJsonObject object;
    object["from"] = jsonOf(camera.from);
    object["at"] = jsonOf(camera.at);
    object["up"] = jsonOf(camera.up);
    if (camera.pivot) {
        object["pivot"] = jsonOf(*camera.pivot);
    }
    object["fov"] = camera.fovDeg;
    object["orthographic"] = camera.orthographic;
    object["zUp"] = camera.zUp;
    return object;
}

}  // namespace

QByteArray sessionText(const Session& session)
{
    QJsonObject object;
    object["session"] = 1;
    object["size"] = QJsonArray { session.sizePx.width(), session.sizePx.height() };
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
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

bool writeSessionFile(const QString& path, const Session& session, QString& error)
{
    Session relative = session;
    const QDir folder = QFileInfo(path).absoluteDir();
    for (QString& file : relative.files) {
        file = folder.relativeFilePath(file);
    }
    QSaveFile output(path);
    const QByteArray text = sessionText(relative);
    if (!output.open(QIODevice::WriteOnly) || output.write(text) != text.size() ||
        !output.commit()) {
        error = QStringLiteral("%1: %2").arg(path, output.errorString());
        return false;
    }
    return true;
}

}  // namespace viewer
