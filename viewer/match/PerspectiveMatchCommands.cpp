// SPDX-License-Identifier: MIT
#include "viewer/match/PerspectiveMatchCommands.h"

#include "viewer/match/PerspectiveMatchTool.h"
#include "viewer/stage/Stage.h"
#include "viewer/texts/Text.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGBoxVolume.h>

#include <QJsonArray>
#include <QJsonObject>

namespace viewer {
namespace {

constexpr int kCornerCount = 8;

QString named(const char* name)
{
    return QStringLiteral("match.") + QLatin1String(name);
}

template <std::size_t size>
QStringList listOf(const std::array<const char*, size>& words)
{
    QStringList list;
    for (const char* word : words) {
        list.append(QLatin1String(word));
    }
    return list;
}

QJsonArray endsOf(const QLineF& line)
{
    return { line.x1(), line.y1(), line.x2(), line.y2() };
}

bool readLine(const QJsonValue& value, int& line, QLineF& ends, QString& error)
{
    line = PerspectiveMatchTool::lineByName(value[QStringLiteral("line")].toString());
    const QJsonArray numbers = value[QStringLiteral("ends")].toArray();
    bool areNumbers = numbers.size() == 4;
    for (const QJsonValue& number : numbers) {
        areNumbers = areNumbers && number.isDouble();
    }
    if (line < 0 || !areNumbers) {
        error = QStringLiteral("expected \"line\", one of x1 to z2, and \"ends\", four numbers");
        return false;
    }
    ends = QLineF(numbers[0].toDouble(), numbers[1].toDouble(), numbers[2].toDouble(),
                  numbers[3].toDouble());
    return true;
}

QJsonArray cornersOf(Stage& stage)
{
    QJsonArray corners;
    const osg::BoxVolume bounds = nbNodeUtils::getWorldBounds(stage.selectedObject());
    if (stage.selectedObject() == osg::NullFC || bounds.isEmpty()) {
        return corners;
    }
    for (int corner = 0; corner < kCornerCount; ++corner) {
        const osg::Pnt3f point(((corner & 4) != 0 ? bounds.getMax() : bounds.getMin())[0],
                               ((corner & 2) != 0 ? bounds.getMax() : bounds.getMin())[1],
                               ((corner & 1) != 0 ? bounds.getMax() : bounds.getMin())[2]);
        osg::Pnt2f px;
        if (!nbCameraNavigation::project(stage.pose(), point, stage.view().getWidth(),
                                         stage.view().getHeight(), px)) {
            return {};
        }
        corners.append(QJsonArray { static_cast<double>(px[0]), static_cast<double>(px[1]) });
    }
    return corners;
}

constexpr std::array<const char*, 3> kAxisNames { "x", "y", "z" };

bool isAmount(double value)
{
    constexpr double kMost = 1e6;
    return value > 1.0 / kMost && value < kMost;
}

void addModes(Commands& commands, PerspectiveMatchTool& tool, Stage& stage)
{
    commands.add(named("setPhotograph"), [&tool, &stage](const QJsonValue& value, QString& error) {
        if (!value.isString()) {
            error = QStringLiteral("expected the name of a picture file, or \"\"");
            return false;
        }
        const QString file = value.toString();
        return tool.setPhotograph(file.isEmpty() ? file : stage.commands().filePath(file), error);
    });
    commands.addNumber(named("setVeil"), 0.0, 1.0, [&tool](double opacity, QString&) {
        tool.setVeil(opacity);
        return true;
    });
    commands.addSwitch(
        named("setActive"),
        [&tool, &stage](bool on, QString& error) {
            if (on && stage.pose().orthographic) {
                error = Text::tr("an orthographic view cannot be matched: switch to perspective");
                return false;
            }
            stage.useTool(tool, on);
            return true;
        },
        [&tool] { return tool.isActive(); });
    commands.addSwitch(named("showLines"), [&tool](bool on, QString&) {
        tool.showLines(on);
        return true;
    });
    commands.addSwitch(named("setEdgeSnapping"), [&tool](bool on, QString&) {
        tool.setSnapsToEdges(on);
        return true;
    });
    commands.addSwitch(named("setLocked"), [&tool](bool on, QString&) {
        tool.camera().setLocked(on);
        return true;
    });
}

void addEdits(Commands& commands, PerspectiveMatchTool& tool)
{
    commands.addChoice(
        named("setLinesType"), listOf(kLinesTypeNames), [&tool](int choice, QString& error) {
            const auto type = static_cast<nbCameraTypes::VanishingLinesType>(choice);
            return tool.edit([type](const auto& match) { match.setVanishingLinesType(type); },
                             error);
        });
    commands.addChoice(
        named("setFovMode"), listOf(kFovModeNames), [&tool](int choice, QString& error) {
            const auto mode = static_cast<nbCameraTypes::FovMode>(choice);
            return tool.edit([mode, &tool](const auto&) { tool.camera().setFovMode(mode); }, error);
        });
    commands.addNumber(named("setMagnifyFactor"),
                       static_cast<double>(nbdPerspectiveMatch::kSmallestMagnifyFactor),
                       static_cast<double>(nbdPerspectiveMatch::kLargestMagnifyFactor),
                       [&tool](double factor, QString& error) {
                           return tool.setMagnifyFactor(static_cast<float>(factor), error);
                       });
    commands.add(named("setLine"), [&tool](const QJsonValue& value, QString& error) {
        int line = 0;
        QLineF ends;
        return readLine(value, line, ends, error) &&
            tool.edit(
                [line, ends](const auto& match) {
                    match.setLine(static_cast<nbdPerspectiveMatch::Line>(line), ends);
                },
                error);
    });
    commands.addChoice(named("turn"), listOf(kAxisNames),
                       [&tool](int axis, QString& error) { return tool.turn(axis, error); });
    commands.add(named("placeByLine"), [&tool](const QJsonValue& value, QString& error) {
        const int line = PerspectiveMatchTool::lineByName(value["line"].toString());
        const double length = value["length"].toDouble();
        if (line < 0 || !isAmount(length)) {
            error = QStringLiteral("expected a line from x1 to z2 and a length above 0");
            return false;
        }
        return tool.placeByLine(line, length, error);
    });
    commands.add(named("setLens"), [&tool](const QJsonValue& value, QString& error) {
        const double focalLength = value["focalLength"].toDouble();
        const double sensorWidth = value["sensorWidth"].toDouble();
        if (!isAmount(focalLength) || !isAmount(sensorWidth)) {
            error = QStringLiteral("expected focalLength and sensorWidth above 0");
            return false;
        }
        return tool.setLens(focalLength, sensorWidth, error);
    });
    commands.add(named("layLines"),
                 [&tool](const QJsonValue&, QString& error) { return tool.layLines(error); });
    commands.add(named("solve"), [&tool](const QJsonValue&, QString& error) {
        return tool.edit([](const auto&) {}, error);
    });
}

void addValues(Commands& commands, PerspectiveMatchTool& tool, Stage& stage)
{
    const auto match = [&tool] { return tool.camera().getPerspectiveMatch(); };
    commands.addValue(named("photograph"), [&tool] { return tool.photograph(); });
    commands.addValue(named("veil"), [&tool] { return tool.veil(); });
    commands.addValue(named("active"), [&tool] { return tool.isActive(); });
    commands.addValue(named("linesShown"), [&tool] { return tool.areLinesShown(); });
    commands.addValue(named("locked"), [&tool] { return tool.camera().isLocked(); });
    commands.addValue(named("linesType"), [match] {
        return QJsonValue(kLinesTypeNames[match().getVanishingLinesType()]);
    });
    commands.addValue(named("fovMode"),
                      [&tool] { return QJsonValue(kFovModeNames[tool.camera().getFovMode()]); });
    commands.addValue(named("magnifyFactor"),
                      [match] { return static_cast<double>(match().getMagnifyFactor()); });
    commands.addValue(named("lines"), [match] {
        QJsonObject lines;
        for (int line = 0; line < PerspectiveMatchTool::kLineCount; ++line) {
            lines[QLatin1String(PerspectiveMatchTool::lineName(line))] =
                endsOf(match().getLine(static_cast<nbdPerspectiveMatch::Line>(line)));
        }
        return lines;
    });
    commands.addValue(named("result"), [&tool] { return tool.resultText(); });
    commands.addValue(named("quality"), [&tool] { return tool.qualityText(); });
    commands.addValue(named("residuals"), [&tool] {
        QJsonArray residuals;
        for (const double residual : tool.residualsPx()) {
            residuals.append(residual);
        }
        return residuals;
    });
    commands.addValue(named("edgeSnapping"), [&tool] { return tool.snapsToEdges(); });
    commands.addValue(named("fov"), [&stage] { return static_cast<double>(stage.pose().fovDeg); });
    commands.addValue(named("corners"), [&stage] { return cornersOf(stage); });
}

}  // namespace

void addPerspectiveMatchCommands(PerspectiveMatchTool& tool, Stage& stage)
{
    Commands& commands = stage.commands();
    addModes(commands, tool, stage);
    addEdits(commands, tool);
    addValues(commands, tool, stage);
}

}  // namespace viewer
