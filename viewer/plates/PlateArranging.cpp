// SPDX-License-Identifier: MIT
#include "viewer/plates/PlateArranging.h"

#include "viewer/plates/PlatesTool.h"
#include "viewer/stage/Stage.h"
#include "viewer/texts/Text.h"

#include <nbSceneplateModule/nbSceneplateArranging.h>

#include <cmath>

namespace viewer {
namespace {

using Side = nbSceneplateArranging::Side;
constexpr Side kSides[] = { Side::Low, Side::Middle, Side::High };

bool move(Stage& stage, const PlatesTool& tool, const QJsonValue& value, QString& error)
{
    constexpr double kMostPx = 1e5;
    const double across = value[0].toDouble(NAN);
    const double up = value[1].toDouble(NAN);
    if (!(std::abs(across) <= kMostPx) || !(std::abs(up) <= kMostPx)) {
        error = "expected [across, up] in pixels";
        return false;
    }
    const osg::Vec2f way(static_cast<float>(across), static_cast<float>(-up));
    nbSceneplateArranging::move(tool.selected(), way, stage.view().getHeight());
    return true;
}

}  // namespace

void addPlateArranging(Stage& stage, PlatesTool& tool)
{
    Commands& commands = stage.commands();
    // Of each axis from its low side to its high one.
    commands.addChoice("plates.align", { "left", "centre", "right", "top", "middle", "bottom" },
                       [&stage, &tool](int place, QString& error) {
                           nbSceneplateArranging::align(tool.selected(), place < 3 ? 0 : 1,
                                                        kSides[place % 3], stage.view().getWidth(),
                                                        stage.view().getHeight());
                           return tool.hasSelection(error);
                       });
    commands.addChoice(
        "plates.distribute", { "across", "down" }, [&stage, &tool](int place, QString& error) {
            const bool isDone = nbSceneplateArranging::distribute(
                tool.selected(), static_cast<osg::UInt32>(place), stage.view().getWidth(),
                stage.view().getHeight());
            error = isDone ? error : Text::tr("at least three scene plates are needed");
            return tool.hasSelection(error) && isDone;
        });
    commands.add("plates.move", [&stage, &tool](const QJsonValue& value, QString& error) {
        return tool.hasSelection(error) && move(stage, tool, value, error);
    });
    commands.add("plates.duplicate", [&tool](const QJsonValue&, QString& error) {
        const bool isDone = tool.hasSelection(error);
        if (isDone) {
            tool.select(nbSceneplateArranging::duplicate(tool.selected(), &PlatesTool::unusedName));
        }
        return isDone;
    });
}

}  // namespace viewer
