// SPDX-License-Identifier: MIT
#include "viewer/match/PerspectiveMatchTool.h"

#include "tests/viewer/support/Files.h"
#include "tests/viewer/support/StageTest.h"

#include <nbKernelServices/nbUndoService.h>
#include <nbMagnifier/nbMagnifierRenderer.h>

#include <QTemporaryDir>
#include <QUndoStack>

#include <algorithm>
#include <cmath>

namespace viewer {
namespace {

namespace names = nbec::interaction::names;

class PerspectiveMatchToolTest : public StageTest
{
protected:
    PerspectiveMatchToolTest()
        : tool(stage)
    { }

    QLineF line(nbdPerspectiveMatch::Line which) const
    {
        return tool.camera().getPerspectiveMatch().getLine(which);
    }

    /// Drags a handle in two steps, with the button still down at the end.
    osg::Pnt2f dragOut(const char* handle, float x, float y)
    {
        osg::Pnt2f px;
        EXPECT_TRUE(tool.findHandle(handle, px)) << handle;
        send(names::kHover, px);
        EXPECT_EQ(tool.hoveredHandle(), handle);
        send(names::kStart, px);
        send(names::kProcess, osg::Pnt2f(px[0] + 0.5F * x, px[1] + 0.5F * y));
        const osg::Pnt2f end(px[0] + x, px[1] + y);
        send(names::kProcess, end);
        return end;
    }

    PerspectiveMatchTool tool;
};

TEST_F(PerspectiveMatchToolTest, ADragIsOneStepAndMovesOneEndAndTheCamera)
{
    ASSERT_TRUE(run("match.setActive", true));
    const CameraPose before = stage.pose();
    const QLineF lineBefore = line(nbdPerspectiveMatch::XLine1);

    stage.update();
    dragOut("x1b", 0.0F, -40.0F);
    stage.interaction().cancelDrag();
    stage.update();
    EXPECT_FALSE(stage.isViewHeld()) << "nothing was matched";
    const osg::Pnt2f end = dragOut("x1b", 0.0F, -40.0F);
    EXPECT_TRUE(nbMagnifierRenderer::isVisible());
    send(names::kStop, end);

    EXPECT_FALSE(nbMagnifierRenderer::isVisible());
    EXPECT_EQ(line(nbdPerspectiveMatch::XLine1).p1(), lineBefore.p1());
    EXPECT_NEAR(line(nbdPerspectiveMatch::XLine1).y2(), lineBefore.y2() + 40.0 / 800.0, 1e-6);
    EXPECT_GT(stage.pose().from.dist(before.from), 0.01F);
    EXPECT_EQ(steps(), 1);
    EXPECT_EQ(nbUndoService::the()->getStack()->undoText(), "Move end of line X1");
    stage.update();
    ASSERT_TRUE(stage.isViewHeld()) << "a match is not lost by chance";
    int refused = 0;
    stage.setRefusalCallback([&refused](auto&) { ++refused; });
    const CameraPose matched = stage.pose();
    stage.frameAll();
    stage.interaction().triggerEvent(
        nbec::interaction::InteractionEvent(names::kStart, names::kCamera, names::kOrbit));
    stage.interaction().triggerEvent(
        nbec::interaction::InteractionEvent(names::kStop, names::kCamera, names::kOrbit));
    stage.interaction().triggerEvent(
        nbec::interaction::InteractionEvent(names::kTrigger, names::kCamera, names::kZoom));
    EXPECT_EQ(stage.pose().from, matched.from);
    EXPECT_EQ(refused, 3);
    EXPECT_TRUE(stage.undo());
    EXPECT_EQ(stage.pose().from, before.from);
    stage.update();
    EXPECT_FALSE(stage.isViewHeld());
    stage.frameAll();
    EXPECT_NE(stage.pose().from, before.from);
    stage.setPose(before);
    EXPECT_EQ(line(nbdPerspectiveMatch::XLine1), lineBefore);
}

TEST_F(PerspectiveMatchToolTest, EachEditIsAStepAndTellsWhoFollowsTheCamera)
{
    ASSERT_TRUE(run("match.setActive", true));
    int told = 0;
    stage.setChangedCallback([&told] { ++told; });

    const QLineF moved = line(nbdPerspectiveMatch::ZLine2).translated(0.04, 0.02);
    const QJsonArray ends { moved.x1(), moved.y1(), moved.x2(), moved.y2() };
    EXPECT_TRUE(run("match.setLine", QJsonObject { { "line", "z2" }, { "ends", ends } }));
    EXPECT_EQ(line(nbdPerspectiveMatch::ZLine2), moved);
    stage.update();
    EXPECT_GT(told, 0) << value("match.result").toString().toStdString();
    EXPECT_TRUE(run("match.setLinesType", "xz"));
    EXPECT_TRUE(run("match.setFovMode", "fixed"));
    EXPECT_TRUE(run("match.setMagnifyFactor", 6.5));
    EXPECT_TRUE(run("match.layLines"));

    EXPECT_EQ(steps(), 5);
    EXPECT_EQ(value("match.linesType"), QJsonValue("xz"));
    EXPECT_EQ(value("match.fovMode"), QJsonValue("fixed"));
    EXPECT_EQ(value("match.magnifyFactor"), QJsonValue(6.5));
    while (stage.undo()) { }
    EXPECT_EQ(value("match.linesType"), QJsonValue("xyz"));
    EXPECT_EQ(value("match.magnifyFactor"), QJsonValue(4.0));
    stage.setChangedCallback(nullptr);
}

TEST_F(PerspectiveMatchToolTest, TellsHowSureItIsAndTakesWhatElseIsKnown)
{
    ASSERT_TRUE(run("match.setActive", true));
    ASSERT_TRUE(run("match.solve"));
    EXPECT_EQ(tool.labels()[3].text, "Y2");
    const QLineF ofY = line(nbdPerspectiveMatch::YLine2);
    const QJsonArray off { ofY.x1() + 0.03, ofY.y1(), ofY.x2(), ofY.y2() };
    ASSERT_TRUE(run("match.setLine", QJsonObject { { "line", "y2" }, { "ends", off } }));
    EXPECT_TRUE(tool.labels()[3].text.startsWith("Y2: ")) << "how many pixels it is off";
    EXPECT_TRUE(value("match.quality").toString().contains("Y2"));
    EXPECT_TRUE(stage.undo());

    const CameraPose before = stage.pose();
    EXPECT_TRUE(run("match.turn", "x"));
    EXPECT_EQ(line(nbdPerspectiveMatch::ZLine2), ofY);
    EXPECT_EQ(value("match.result"), "Orientation and field of view follow the lines.");
    EXPECT_TRUE(stage.undo());
    EXPECT_EQ(stage.pose().from, before.from);

    EXPECT_TRUE(run("match.setLens", QJsonObject { { "focalLength", 35 }, { "sensorWidth", 36 } }));
    const double halfWidth = 18.0 / 35.0;
    EXPECT_NEAR(std::tan(0.5 * value("match.fov").toDouble() * M_PI / 180.0),
                halfWidth * stage.view().getHeight() / stage.view().getWidth(), 1e-5);
    EXPECT_EQ(value("match.fovMode"), QJsonValue("fixed"));
    EXPECT_TRUE(stage.undo());

    EXPECT_TRUE(run("match.placeByLine", QJsonObject { { "line", "x1" }, { "length", 2.0 } }));
    EXPECT_GT(stage.pose().from.dist(before.from), 0.1F);
    osg::Pnt2f origin;
    ASSERT_TRUE(stage.project(osg::Pnt3f(0.F, 0.F, 0.F), origin));
    osg::Pnt2f begin;
    ASSERT_TRUE(tool.findHandle("x1a", begin));
    EXPECT_LT(origin.dist(begin), 0.2F);
    EXPECT_TRUE(stage.undo());

    send(names::kHover, begin);
    ASSERT_EQ(tool.hoveredHandle(), "x1a");
    EXPECT_TRUE(tool.nudge(QPoint(1, 0), true));
    osg::Pnt2f nudged;
    ASSERT_TRUE(tool.findHandle("x1a", nudged));
    EXPECT_NEAR(nudged.x() - begin.x(), 1.0F, 0.01F);
}

TEST_F(PerspectiveMatchToolTest, APhotographFitsByWidthUnderLinesAndModelsThatStayOnIt)
{
    const QTemporaryDir folder;
    const QString file = writePlainPicture(folder.filePath("wide.png"), { 900, 300 }, Qt::gray);
    ASSERT_TRUE(run("match.setActive", true) && !run("match.fit", "width"));
    ASSERT_TRUE(run("match.setPhotograph", file));
    const auto onPhotograph = [this](const osg::Pnt2f& px) {
        const nbPhotographFit place = tool.photograph().place();
        return osg::Vec2f((px.x() - place.left) / place.width,
                          (stage.view().getHeight() - px.y() - place.bottom) / place.height);
    };
    const auto places = [&] {
        osg::Pnt2f end;
        EXPECT_TRUE(tool.findHandle("x1b", end));
        const float middle = stage.view().getHeight() * 0.5F;
        const float up = middle / std::tan(0.5F * stage.pose().fovDeg / 57.29578F);
        return std::pair(onPhotograph(end), onPhotograph(osg::Pnt2f(0.0F, middle - 0.1F * up)));
    };
    const auto before = places();
    const CameraPose pose = stage.pose();

    ASSERT_TRUE(run("match.fit", "width"));
    EXPECT_FLOAT_EQ(tool.photograph().place().width, static_cast<float>(stage.view().getWidth()));
    EXPECT_LT((places().first - before.first).length(), 1e-5F);
    EXPECT_NEAR(places().second.y(), before.second.y(), 1e-4F);

    nbUndoService::the()->undo();
    EXPECT_FALSE(tool.photograph().fitsWidth());
    EXPECT_LT((places().first - before.first).length(), 1e-5F);
    EXPECT_FLOAT_EQ(stage.pose().fovDeg, pose.fovDeg);
}

TEST_F(PerspectiveMatchToolTest, ADraggedEndGoesToTheEdgeOfThePhotographNearby)
{
    QTemporaryDir folder;
    QImage picture(stage.view().getWidth(), stage.view().getHeight(), QImage::Format_RGB32);
    picture.fill(Qt::black);
    ASSERT_TRUE(run("match.setActive", true));
    osg::Pnt2f fixed;
    osg::Pnt2f end;
    ASSERT_TRUE(tool.findHandle("x1a", fixed) && tool.findHandle("x1b", end));
    // Bright below the line from the first end to 20 pixels under the second one.
    for (int x = 0; x < picture.width(); ++x) {
        const double part = (x - fixed.x()) / static_cast<double>(end.x() - fixed.x());
        const double edge = fixed.y() + part * static_cast<double>(end.y() + 20.F - fixed.y());
        for (int y = std::max(0, qRound(edge)); y < picture.height(); ++y) {
            picture.setPixel(x, y, 0xffffffffU);
        }
    }
    const QString file = folder.filePath("edge.png");
    ASSERT_TRUE(picture.save(file));
    ASSERT_TRUE(run("match.setPhotograph", file));
    ASSERT_TRUE(run("match.setEdgeSnapping", true));

    send(names::kStop, dragOut("x1b", 0.0F, 16.0F));

    osg::Pnt2f laid;
    ASSERT_TRUE(tool.findHandle("x1b", laid));
    EXPECT_NEAR(laid.y(), end.y() + 20.F, 1.5F);
    EXPECT_TRUE(run("match.setEdgeSnapping", false));
}

TEST_F(PerspectiveMatchToolTest, RefusesWhatItCannotDoInOneLine)
{
    const QJsonObject threeNumbers { { "line", "x1" }, { "ends", QJsonArray { 1, 2, 3 } } };
    const QJsonObject unknownLine { { "line", "w1" }, { "ends", QJsonArray { 1, 2, 3, 4 } } };
    expectRefusals({
        { "match.setPhotograph", "missing.png" },
        { "match.setVeil", 1.5 },
        { "match.setActive", "yes" },
        { "match.setLinesType", "xw" },
        { "match.setMagnifyFactor", 0.5 },
        { "match.setLine", threeNumbers },
        { "match.turn", "w" },
        { "match.placeByLine", QJsonObject { { "line", "x1" }, { "length", 0 } } },
        { "match.setLens", QJsonObject { { "focalLength", 35 } } },
        { "match.setLine", unknownLine },
    });

    stage.setOrthographic(true);
    EXPECT_FALSE(run("match.setActive", true));
    EXPECT_TRUE(error.contains(QStringLiteral("orthographic")));
    EXPECT_TRUE(value("match.result").toString().contains(QStringLiteral("rthographic")));
}

TEST_F(PerspectiveMatchToolTest, ALockedCameraStaysAndHiddenLinesCannotBeGrabbed)
{
    ASSERT_TRUE(run("match.setActive", true));
    ASSERT_TRUE(run("match.setLocked", true));
    const CameraPose before = stage.pose();
    const QLineF lineBefore = line(nbdPerspectiveMatch::YLine1);

    send(names::kStop, dragOut("y1a", 25.0F, 0.0F));
    EXPECT_FALSE(run("match.solve"));
    EXPECT_FALSE(run("match.setLinesType", "xy"));
    EXPECT_EQ(line(nbdPerspectiveMatch::YLine1), lineBefore);
    EXPECT_EQ(stage.pose().from, before.from);
    EXPECT_EQ(steps(), 0);

    ASSERT_TRUE(run("match.setLocked", false));
    ASSERT_TRUE(run("match.showLines", false));
    osg::Pnt2f px;
    EXPECT_FALSE(tool.findHandle("y1a", px));
    EXPECT_EQ(stage.handles(), osg::NodePtr());
    ASSERT_TRUE(run("match.showLines", true));
    send(names::kStop, dragOut("y1a", 25.0F, 0.0F));
    EXPECT_EQ(steps(), 1);
}

TEST_F(PerspectiveMatchToolTest, APhotographIsTakenWhenItIsDroppedAndGoesWithTheScene)
{
    QTemporaryDir folder;
    const QString file = writePlainPicture(folder.filePath("street.png"), { 30, 20 }, Qt::gray);
    EXPECT_FALSE(stage.takePicture(file, osg::Pnt2f(10.0F, 10.0F), error));
    ASSERT_TRUE(run("match.setActive", true));

    EXPECT_TRUE(stage.takePicture(file, osg::Pnt2f(10.0F, 10.0F), error));
    EXPECT_EQ(value("match.photograph"), QJsonValue("street.png"));
    EXPECT_FLOAT_EQ(view.getUberViewport()->getPhotographVeil(),
                    static_cast<float>(PerspectiveMatchTool::kUsualVeil));
    ASSERT_TRUE(run("match.setActive", false));
    EXPECT_EQ(value("match.photograph"), QJsonValue("street.png"));
    EXPECT_EQ(view.getUberViewport()->getPhotographVeil(), 0.0F);

    ASSERT_TRUE(run("match.setLinesType", "yz"));
    stage.showStartScene();
    EXPECT_EQ(value("match.photograph"), QJsonValue(""));
    EXPECT_EQ(value("match.linesType"), QJsonValue("xyz"));
    EXPECT_EQ(steps(), 0);
}

}  // namespace
}  // namespace viewer
