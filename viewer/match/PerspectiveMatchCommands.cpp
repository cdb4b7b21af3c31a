// SPDX-License-Identifier: MIT
#include "viewer/match/PerspectiveMatchCommands.h"

#include "viewer/match/PerspectiveMatchTool.h"
#include "viewer/stage/Stage.h"
#include "viewer/texts/Text.h"

#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGBoxVolume.h>

#include <QJsonArray>
#include <QJsonObject>

#include <functional>

namespace viewer {
namespace {

constexpr int kCornerCount = 8;

/// Adds the commands of one tool.
class CommandTable
{
public:
    explicit CommandTable(Stage& stage)
        : commands(stage.commands())
    { }

    using Refusable = bool(QString& error);

    void addPlain(const char* name, std::function<Refusable> run)
    {
        commands.add(full(name), [run = std::move(run)](const QJsonValue&, QString& error) {
            return run(error);
        });
    }

    void addSwitch(const char* name, Commands::SetSwitch set, std::function<bool()> isOn = {})
    {
        commands.addSwitch(full(name), std::move(set), std::move(isOn));
    }

    void addNumber(const char* name, double least, double most, Commands::SetNumber set)
    {
        commands.addNumber(full(name), least, most, std::move(set));
    }

    /// A choice of words; the command gets the place of the word.
    template <std::size_t size>
    void addChoice(const char* name, const std::array<const char*, size>& words,
                   std::function<bool(int choice, QString& error)> run)
    {
        commands.add(full(name),
                     [words, run = std::move(run)](const QJsonValue& value, QString& error) {
                         QStringList known;
                         for (const char* word : words) {
                             known.append(QLatin1String(word));
                         }
                         const int choice = known.indexOf(value.toString());
                         if (choice < 0) {
                             error = QStringLiteral("expected one of: %1").arg(known.join(", "));
                             return false;
                         }
                         return run(choice, error);
                     });
    }

    void add(const char* name, Commands::Run run) { commands.add(full(name), std::move(run)); }

    void addValue(const char* name, Commands::Read read)
    {
        commands.addValue(full(name), std::move(read));
    }

private:
    static QString full(const char* name) { return QStringLiteral("match.") + QLatin1String(name); }

    Commands& commands;
};

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

void addModes(CommandTable& table, PerspectiveMatchTool& tool, Stage& stage)
{
    table.add("setPhotograph", [&tool, &stage](const QJsonValue& value, QString& error) {
        if (!value.isString()) {
            error = QStringLiteral("expected the name of a picture file, or \"\"");
            return false;
        }
        const QString file = value.toString();
        return tool.setPhotograph(file.isEmpty() ? file : stage.commands().filePath(file), error);
    });
    table.addNumber("setVeil", 0.0, 1.0, [&tool](double opacity, QString&) {
        tool.setVeil(opacity);
        return true;
    });
    table.addSwitch(
        "setActive",
        [&tool, &stage](bool on, QString& error) {
            if (on && stage.pose().orthographic) {
                error = Text::tr("an orthographic view cannot be matched: switch to perspective");
                return false;
            }
            stage.useTool(tool, on);
            return true;
        },
        [&tool] { return tool.isActive(); });
    table.addSwitch("showLines", [&tool](bool on, QString&) {
        tool.showLines(on);
        return true;
    });
    table.addSwitch("setEdgeSnapping", [&tool](bool on, QString&) {
        tool.setSnapsToEdges(on);
        return true;
    });
    table.addSwitch("setLocked", [&tool](bool on, QString&) {
        tool.camera().setLocked(on);
        return true;
    });
}

void addEdits(CommandTable& table, PerspectiveMatchTool& tool)
{
    table.addChoice("setLinesType", kLinesTypeNames, [&tool](int choice, QString& error) {
        const auto type = static_cast<nbCameraTypes::VanishingLinesType>(choice);
        return tool.edit([type](const auto& match) { match.setVanishingLinesType(type); }, error);
    });
    table.addChoice("setFovMode", kFovModeNames, [&tool](int choice, QString& error) {
        const auto mode = static_cast<nbCameraTypes::FovMode>(choice);
        return tool.edit([mode, &tool](const auto&) { tool.camera().setFovMode(mode); }, error);
    });
    table.addNumber("setMagnifyFactor",
                    static_cast<double>(nbdPerspectiveMatch::kSmallestMagnifyFactor),
                    static_cast<double>(nbdPerspectiveMatch::kLargestMagnifyFactor),
                    [&tool](double factor, QString& error) {
                        return tool.setMagnifyFactor(static_cast<float>(factor), error);
                    });
    table.add("setLine", [&tool](const QJsonValue& value, QString& error) {
        int line = 0;
        QLineF ends;
        return readLine(value, line, ends, error) &&
            tool.edit(
                [line, ends](const auto& match) {
                    match.setLine(static_cast<nbdPerspectiveMatch::Line>(line), ends);
                },
                error);
    });
    table.addChoice("turn", kAxisNames,
                    [&tool](int axis, QString& error) { return tool.turn(axis, error); });
    table.add("placeByLine", [&tool](const QJsonValue& value, QString& error) {
        const int line = PerspectiveMatchTool::lineByName(value["line"].toString());
        const double length = value["length"].toDouble();
        if (line < 0 || !isAmount(length)) {
            error = QStringLiteral("expected a line from x1 to z2 and a length above 0");
            return false;
        }
        return tool.placeByLine(line, length, error);
    });
    table.add("setLens", [&tool](const QJsonValue& value, QString& error) {
        const double focalLength = value["focalLength"].toDouble();
        const double sensorWidth = value["sensorWidth"].toDouble();
        if (!isAmount(focalLength) || !isAmount(sensorWidth)) {
            error = QStringLiteral("expected focalLength and sensorWidth above 0");
            return false;
        }
        return tool.setLens(focalLength, sensorWidth, error);
    });
    table.addPlain("layLines", [&tool](QString& error) { return tool.layLines(error); });
    table.addPlain("solve",
                   [&tool](QString& error) { return tool.edit([](const auto&) {}, error); });
}

void addValues(CommandTable& table, PerspectiveMatchTool& tool, Stage& stage)
{
    const auto match = [&tool] { return tool.camera().getPerspectiveMatch(); };
    table.addValue("photograph", [&tool] { return tool.photograph(); });
    table.addValue("veil", [&tool] { return tool.veil(); });
    table.addValue("active", [&tool] { return tool.isActive(); });
    table.addValue("linesShown", [&tool] { return tool.areLinesShown(); });
    table.addValue("locked", [&tool] { return tool.camera().isLocked(); });
    table.addValue("linesType", [match] {
        return QJsonValue(kLinesTypeNames[match().getVanishingLinesType()]);
    });
    table.addValue("fovMode",
                   [&tool] { return QJsonValue(kFovModeNames[tool.camera().getFovMode()]); });
    table.addValue("magnifyFactor",
                   [match] { return static_cast<double>(match().getMagnifyFactor()); });
    table.addValue("lines", [match] {
        QJsonObject lines;
        for (int line = 0; line < PerspectiveMatchTool::kLineCount; ++line) {
            lines[QLatin1String(PerspectiveMatchTool::lineName(line))] =
                endsOf(match().getLine(static_cast<nbdPerspectiveMatch::Line>(line)));
        }
        return lines;
    });
    table.addValue("result", [&tool] { return tool.resultText(); });
    table.addValue("quality", [&tool] { return tool.qualityText(); });
    table.addValue("residuals", [&tool] {
        QJsonArray residuals;
        for (const double residual : tool.residualsPx()) {
            residuals.append(residual);
        }
        return residuals;
    });
    table.addValue("edgeSnapping", [&tool] { return tool.snapsToEdges(); });
    table.addValue("fov", [&stage] { return static_cast<double>(stage.pose().fovDeg); });
    table.addValue("corners", [&stage] { return cornersOf(stage); });
}

}  // namespace

void addPerspectiveMatchCommands(PerspectiveMatchTool& tool, Stage& stage)
{
    CommandTable table(stage);
    addModes(table, tool, stage);
    addEdits(table, tool);
    addValues(table, tool, stage);
}

}  // namespace viewer
