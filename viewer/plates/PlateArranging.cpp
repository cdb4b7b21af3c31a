// SPDX-License-Identifier: MIT
#include "viewer/plates/PlateArranging.h"

#include "viewer/plates/PlatesTool.h"
#include "viewer/stage/Stage.h"
#include "viewer/texts/Text.h"

#include <nbOpenSGUtils/nbNodeUtils.h>
#include <nbSceneplateModule/nbSceneplateArranging.h>

#include <QJsonArray>

#include <cmath>

namespace viewer {
namespace {

using Side = nbSceneplateArranging::Side;

struct AlignWord
{
    const char* word;
    osg::UInt32 axis;
    Side side;
};

constexpr AlignWord kAlignWords[] = {
    { "left", 0, Side::Low }, { "centre", 0, Side::Middle }, { "right", 0, Side::High },
    { "top", 1, Side::Low },  { "middle", 1, Side::Middle }, { "bottom", 1, Side::High },
};

bool align(Stage& stage, const std::vector<osg::NodePtr>& nodes, const QJsonValue& value,
           QString& error)
{
    for (const AlignWord& row : kAlignWords) {
        if (value.toString() == QLatin1String(row.word)) {
            nbSceneplateArranging::align(nodes, row.axis, row.side, stage.view().getWidth(),
                                         stage.view().getHeight());
            return true;
        }
    }
    error = QStringLiteral("expected left, centre, right, top, middle or bottom");
    return false;
}

bool distribute(Stage& stage, const std::vector<osg::NodePtr>& nodes, const QJsonValue& value,
                QString& error)
{
    const bool isDown = value.toString() == QLatin1String("down");
    if (!isDown && value.toString() != QLatin1String("across")) {
        error = QStringLiteral("expected across or down");
        return false;
    }
    if (!nbSceneplateArranging::distribute(nodes, isDown ? 1 : 0, stage.view().getWidth(),
                                           stage.view().getHeight())) {
        error = Text::tr("at least three scene plates are needed");
        return false;
    }
    return true;
}

bool move(Stage& stage, const std::vector<osg::NodePtr>& nodes, const QJsonValue& value,
          QString& error)
{
    constexpr double kMostPx = 1e5;
    const double across = value[0].toDouble(NAN);
    const double up = value[1].toDouble(NAN);
    if (!(std::abs(across) <= kMostPx) || !(std::abs(up) <= kMostPx)) {
        error = QStringLiteral("expected [across, up] in pixels");
        return false;
    }
    nbSceneplateArranging::move(nodes,
                                osg::Vec2f(static_cast<float>(across), static_cast<float>(-up)),
                                stage.view().getHeight());
    return true;
}

/// Such as "Title 2": the first number that no plate has.
std::string nameOfCopy(const std::string& original)
{
    int number = 2;
    std::string name;
    do {
        name = original + ' ' + std::to_string(number++);
    } while (PlatesTool::plateByName(name) != osg::NullFC);
    return name;
}

}  // namespace

void addPlateArranging(Stage& stage, PlatesTool& tool)
{
    using Arrange = bool (*)(Stage&, const std::vector<osg::NodePtr>&, const QJsonValue&, QString&);
    const auto add = [&](const char* name, Arrange arrange) {
        stage.commands().add(QLatin1String(name),
                             [&stage, &tool, arrange](const QJsonValue& value, QString& error) {
                                 const std::vector<osg::NodePtr> nodes = tool.selected();
                                 if (nodes.empty()) {
                                     error = Text::tr("no scene plate is selected");
                                     return false;
                                 }
                                 return arrange(stage, nodes, value, error);
                             });
    };
    add("plates.align", align);
    add("plates.distribute", distribute);
    add("plates.move", move);
    stage.commands().add(
        QStringLiteral("plates.duplicate"), [&tool](const QJsonValue&, QString& error) {
            const auto copies = nbSceneplateArranging::duplicate(tool.selected(), nameOfCopy);
            if (copies.empty()) {
                error = Text::tr("no scene plate is selected");
                return false;
            }
            tool.select(copies);
            return true;
        });
}

}  // namespace viewer
