// SPDX-License-Identifier: MIT
#include "viewer/commands/Commands.h"

#include "tests/viewer/support/StageTest.h"
#include "viewer/replay/SessionChecks.h"
#include "viewer/stage/StageTool.h"

namespace viewer {
namespace {

TEST(Commands, RunTheirOperationAndTellTheListenerOnlyOfSuccess)
{
    Commands commands;
    QStringList told;
    commands.setListener(
        [&](const QString& name, const QJsonValue&, Commands::Moment) { told.append(name); });
    double size = 1.0;
    commands.add("box.size", [&size](const QJsonValue& value, QString& error) {
        if (!(value.toDouble() > 0.0)) {
            error = "box.size: expected a number above 0";
            return false;
        }
        size = value.toDouble();
        return true;
    });
    commands.addValue("box.size", [&size] { return QJsonValue(size); });
    QString error;

    EXPECT_TRUE(commands.run("box.size", 2.5, error));
    EXPECT_FALSE(commands.run("box.size", -1, error));
    EXPECT_EQ(error, "box.size: expected a number above 0");
    EXPECT_FALSE(commands.run("box.colour", 1, error));
    EXPECT_EQ(error, "there is no command \"box.colour\"");

    EXPECT_EQ(told, QStringList { "box.size" });
    EXPECT_EQ(commands.value("box.size"), QJsonValue(2.5));
    commands.remove("box.");
    EXPECT_FALSE(commands.value("box.size"));
    EXPECT_TRUE(commands.names().isEmpty());
    EXPECT_TRUE(commands.valueNames().isEmpty());
}

TEST(Commands, NumbersAreNearWithinTheToleranceWhereverTheyStand)
{
    const QJsonObject found { { "at", QJsonArray { 1.0, 2.004 } }, { "name", "a" }, { "more", 1 } };

    EXPECT_TRUE(isNear(found, QJsonObject { { "at", QJsonArray { 1, 2 } } }, 0.005));
    EXPECT_FALSE(isNear(found, QJsonObject { { "at", QJsonArray { 1, 2 } } }, 0.003));
    EXPECT_FALSE(isNear(found, QJsonObject { { "at", QJsonArray { 1 } } }, 1.0));
    EXPECT_FALSE(isNear(found, QJsonObject { { "name", "b" } }, 1.0));
    EXPECT_FALSE(isNear(found, QJsonObject { { "missing", 0 } }, 1.0));
    EXPECT_FALSE(isNear(QJsonValue("1"), 1, 1.0));
}

/// Writes down what the stage tells it.
class RecordingTool : public StageTool
{
public:
    const char* name() const override { return "recording"; }

    void activate() override { log.append("activate"); }

    void deactivate() override { log.append("deactivate"); }

    void sceneCleared() override { log.append("cleared"); }

    void selectionChanged() override { log.append("selection"); }

    void viewChanged() override { log.append("view"); }

    std::string handleAt(const osg::Pnt2f&) override { return "knob"; }

    QStringList log;
};

class StageToolTest : public StageTest
{
protected:
    StageToolTest()
    {
        stage.addTool(tool);
        tool.log.clear();
    }

    ~StageToolTest() override { stage.removeTool(tool); }

    RecordingTool tool;
};

TEST_F(StageToolTest, AToolTakesThePlaceOfTheGizmoAndGivesItBack)
{
    stage.showGizmo(Gizmo::Scale);

    EXPECT_TRUE(stage.showManipulator("recording"));
    EXPECT_EQ(stage.gizmo().shown(), Gizmo::None);
    EXPECT_EQ(stage.manipulatorName(), "recording");
    EXPECT_EQ(stage.handleAt({ 0.0F, 0.0F }), "knob");
    stage.setActiveTool(nullptr);

    EXPECT_EQ(stage.gizmo().shown(), Gizmo::Scale);
    EXPECT_EQ(tool.log, (QStringList { "activate", "deactivate" }));
    EXPECT_FALSE(stage.showManipulator("nonsense"));
    EXPECT_EQ(stage.manipulatorName(), "scale");

    stage.setActiveTool(&tool);
    stage.showGizmo(Gizmo::Rotate);
    EXPECT_EQ(stage.activeTool(), nullptr);
    EXPECT_EQ(stage.manipulatorName(), "rotate");
}

TEST_F(StageToolTest, AToolHearsOfSelectionViewAndEndOfTheScene)
{
    stage.select(osg::NullFC);
    stage.resize(320, 240, 1.0F);
    stage.clear();

    EXPECT_EQ(tool.log, (QStringList { "selection", "view", "cleared" }));
}

TEST_F(StageToolTest, ACheckpointComparesNamedValues)
{
    stage.commands().addValue("match.fov", [] { return QJsonValue(45.02); });
    SessionStep checkpoint;
    checkpoint.name = "end";
    checkpoint.expectation.values = QJsonObject { { "match.fov", 45 } };
    checkpoint.expectation.tolerance = 0.05;

    EXPECT_EQ(findFailures(checkpoint, stage), QStringList());
    checkpoint.expectation.tolerance = 0.01;
    EXPECT_EQ(findFailures(checkpoint, stage),
              QStringList { "checkpoint \"end\": match.fov is 45.02 instead of 45" });
    checkpoint.expectation.values = QJsonObject { { "match.fow", 45 } };
    EXPECT_EQ(findFailures(checkpoint, stage),
              QStringList { "checkpoint \"end\": there is no value \"match.fow\"" });
}

}  // namespace
}  // namespace viewer
