// SPDX-License-Identifier: MIT
#include "viewer/match/PerspectiveMatchCommands.h"

#include "viewer/match/MatchWords.h"
#include "viewer/match/PerspectiveMatchTool.h"
#include "viewer/stage/Stage.h"
#include "viewer/texts/Text.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGBoxVolume.h>

#include <QJsonArray>
#include <QJsonObject>

namespace viewer {
namespace {

constexpr unsigned kCornerCount = 8;

bool readLine(const QJsonValue& value, int& line, QLineF& ends, QString& error)
{
    line = PerspectiveMatchTool::lineByName(value["line"].toString());
    const QJsonArray numbers = value["ends"].toArray();
    bool areNumbers = numbers.size() == 4;
    for (const QJsonValue& number : numbers) {
        areNumbers = areNumbers && number.isDouble();
    }
    if (line < 0 || !areNumbers) {
        error = "expected \"line\", one of x1 to z2, and \"ends\", four numbers";
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
    const osg::Pnt3f ends[] = { bounds.getMin(), bounds.getMax() };
    for (unsigned corner = 0; corner < kCornerCount; ++corner) {
        const osg::Pnt3f point(ends[corner >> 2U & 1U][0], ends[corner >> 1U & 1U][1],
                               ends[corner & 1U][2]);
        osg::Pnt2f px;
        if (!stage.project(point, px)) {
            return {};
        }
        corners.append(QJsonArray { px[0], px[1] });
    }
    return corners;
}

bool isAmount(double value)
{
    constexpr double kMost = 1e6;
    return value > 1.0 / kMost && value < kMost;
}

void addModes(Commands& commands, PerspectiveMatchTool& tool, Stage& stage)
{
    commands.add("match.setPhotograph", [&tool, &stage](const QJsonValue& value, QString& error) {
        if (!value.isString()) {
            error = "expected the name of a picture file, or \"\"";
            return false;
        }
        const QString file = value.toString();
        return tool.photograph().set(file.isEmpty() ? file : stage.commands().filePath(file),
                                     error);
    });
    commands.addNumber("match.setVeil", 0.0, 1.0, [&tool](double opacity, QString&) {
        tool.setVeil(opacity);
        return true;
    });
    commands.addSwitch(
        "match.setActive",
        [&tool, &stage](bool on, QString& error) {
            if (on && stage.pose().orthographic) {
                error = Text::tr("an orthographic view cannot be matched: switch to perspective");
                return false;
            }
            stage.useTool(tool, on);
            return true;
        },
        [&tool] { return tool.isActive(); });
    commands.addSwitch("match.showLines", [&tool](bool on) { tool.showLines(on); });
    commands.addSwitch("match.setEdgeSnapping", [&tool](bool on) { tool.setSnapsToEdges(on); });
    commands.addSwitch("match.setLocked", [&tool](bool on) { tool.camera().setLocked(on); });
}

void addEdits(Commands& commands, PerspectiveMatchTool& tool)
{
    commands.addChoice(
        "match.setLinesType", QStringList(kLinesTypeNames.begin(), kLinesTypeNames.end()),
        [&tool](int choice, QString& error) {
            const auto type = static_cast<nbCameraTypes::VanishingLinesType>(choice);
            return tool.edit([type](const auto& match) { match.setVanishingLinesType(type); },
                             error);
        });
    commands.addChoice(
        "match.setFovMode", QStringList(kFovModeNames.begin(), kFovModeNames.end()),
        [&tool](int choice, QString& error) {
            const auto mode = static_cast<nbCameraTypes::FovMode>(choice);
            return tool.edit([mode, &tool](const auto&) { tool.camera().setFovMode(mode); }, error);
        });
    commands.addChoice("match.fit", { "height", "width" }, [&tool](int choice, QString& error) {
        return tool.fitPhotograph(choice == 1, error);
    });
    commands.addNumber("match.setMagnifyFactor", nbdPerspectiveMatch::kSmallestMagnifyFactor,
                       nbdPerspectiveMatch::kLargestMagnifyFactor,
                       [&tool](double factor, QString& error) {
                           return tool.setMagnifyFactor(static_cast<float>(factor), error);
                       });
    commands.add("match.setLine", [&tool](const QJsonValue& value, QString& error) {
        int line = 0;
        QLineF ends;
        return readLine(value, line, ends, error) &&
            tool.edit(
                [line, ends](const auto& match) {
                    match.setLine(static_cast<nbdPerspectiveMatch::Line>(line), ends);
                },
                error);
    });
    commands.addChoice("match.turn", { "x", "y", "z" },
                       [&tool](int axis, QString& error) { return tool.turn(axis, error); });
    commands.add("match.placeByLine", [&tool](const QJsonValue& value, QString& error) {
        const int line = PerspectiveMatchTool::lineByName(value["line"].toString());
        const double length = value["length"].toDouble();
        if (line < 0 || !isAmount(length)) {
            error = "expected a line from x1 to z2 and a length above 0";
            return false;
        }
        return tool.placeByLine(line, length, error);
    });
    commands.add("match.setLens", [&tool](const QJsonValue& value, QString& error) {
        const double focalLength = value["focalLength"].toDouble();
        const double sensorWidth = value["sensorWidth"].toDouble();
        if (!isAmount(focalLength) || !isAmount(sensorWidth)) {
            error = "expected focalLength and sensorWidth above 0";
            return false;
        }
        return tool.setLens(focalLength, sensorWidth, error);
    });
    commands.add("match.layLines",
                 [&tool](const QJsonValue&, QString& error) { return tool.layLines(error); });
    commands.add("match.solve", [&tool](const QJsonValue&, QString& error) {
        return tool.edit([](const auto&) {}, error);
    });
}

void addValues(Commands& commands, PerspectiveMatchTool& tool, Stage& stage)
{
    const auto match = [&tool] { return tool.camera().getPerspectiveMatch(); };
    commands.addValue("match.photograph", [&tool] { return tool.photograph().name(); });
    commands.addValue("match.fitted",
                      [&tool] { return tool.photograph().fitsWidth() ? "width" : "height"; });
    commands.addValue("match.veil", [&tool] { return tool.veil(); });
    commands.addValue("match.active", [&tool] { return tool.isActive(); });
    commands.addValue("match.linesShown", [&tool] { return tool.areLinesShown(); });
    commands.addValue("match.locked", [&tool] { return tool.camera().isLocked(); });
    commands.addValue("match.linesType", [match] {
        return QJsonValue(kLinesTypeNames[match().getVanishingLinesType()]);
    });
    commands.addValue("match.fovMode",
                      [&tool] { return QJsonValue(kFovModeNames[tool.camera().getFovMode()]); });
    commands.addValue("match.magnifyFactor", [match] { return match().getMagnifyFactor(); });
    commands.addValue("match.lines", [match] {
        QJsonObject lines;
        for (int line = 0; line < PerspectiveMatchTool::kLineCount; ++line) {
            const QLineF at = match().getLine(static_cast<nbdPerspectiveMatch::Line>(line));
            lines[PerspectiveMatchTool::lineName(line)] =
                QJsonArray { at.x1(), at.y1(), at.x2(), at.y2() };
        }
        return lines;
    });
    commands.addValue("match.result", [&tool] { return resultText(tool); });
    commands.addValue("match.quality", [&tool] { return qualityText(tool); });
    commands.addValue("match.residuals", [&tool] {
        QJsonArray residuals;
        for (const double residual : residualsPx(tool)) {
            residuals.append(residual);
        }
        return residuals;
    });
    commands.addValue("match.edgeSnapping", [&tool] { return tool.snapsToEdges(); });
    commands.addValue("match.fov", [&stage] { return stage.pose().fovDeg; });
    commands.addValue("match.corners", [&stage] { return cornersOf(stage); });
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
