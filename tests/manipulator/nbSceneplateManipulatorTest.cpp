// SPDX-License-Identifier: MIT
#include "manipulator/nbSceneplateManipulator.h"

#include "tests/manipulator/support/DragTest.h"
#include "tests/manipulator/support/MessageLog.h"
#include "tests/manipulator/support/PlateScene.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>
#include <nbNotification/NotificationManager.h>

#include <QtGui/QVector2D>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace nbec::manipulator::test {
namespace {

using testing::ElementsAre;
using Mode = nbSceneplateManipulator::ActiveMode;

constexpr float kTolerancePx = 0.05F;

/// Records what the manipulator sends. Its plates do not change, so that every value stands for
/// itself.
class SceneplateManipulatorTest : public testing::Test
{
protected:
    SceneplateManipulatorTest()
    {
        messages.listen("setMatRenderEnabled");
        messages.listen("updateMatRender");
        messages.listen("sceneplateChanged", [this](nbMessage& message) {
            EXPECT_EQ(message.names(), (Names { "scaleFactor", "offset", "rotation" }));
            EXPECT_TRUE(nbMessage::get(message, "scaleFactor", last.scaleFactor));
            EXPECT_TRUE(nbMessage::get(message, "offset", last.offset));
            EXPECT_TRUE(nbMessage::get(message, "rotation", last.rotation));
        });
    }

    ~SceneplateManipulatorTest() override { nbController::clear(); }

    osg::NodePtr select(const platetest::PlatePx& place)
    {
        const osg::NodePtr node = scene.addPlate(place);
        scene.manipulator.setNodes({ node });
        return node;
    }

    bool isHandleAt(const std::string& name, float x, float y)
    {
        const osg::Pnt2f px = scene.handlePx(name);
        EXPECT_NEAR(px.x(), x, kTolerancePx) << name;
        EXPECT_NEAR(px.y(), y, kTolerancePx) << name;
        return true;
    }

    MessageLog messages;
    PlateScene scene { 800, 600 };

    struct
    {
        float scaleFactor = 0.0F;
        QVector2D offset;
        float rotation = 0.0F;
    } last;
};

TEST_F(SceneplateManipulatorTest, HandlesStandAtTheFrameForEveryCameraAndViewSize)
{
    const osg::UberCameraPtr camera = scene.widget.getUberCamera();
    for (const bool isOrthographic : { false, true }) {
        for (const auto& [width, height] :
             { std::pair(800, 600), std::pair(300, 900), std::pair(1920, 400) }) {
            scene.widget.resize(width, height);
            camera->setFromAtUp(osg::Pnt3f(300, -20, 7), osg::Pnt3f(290, 3, 0),
                                osg::Vec3f(0, 0, 1));
            camera->setOrthographic(isOrthographic);
            select({ 150, 200, 160, 100 });
            scene.manipulator.update(false);

            isHandleAt("grid", 150, 200);
            isHandleAt("scaleXYLLShape", 70, 250);
            isHandleAt("scaleXYULShape", 70, 150);
            isHandleAt("scaleXYLRShape", 230, 250);
            isHandleAt("scaleXYURShape", 230, 150);
            isHandleAt("rotateShape", 150, 150 - 32);
        }
    }
    scene.widget.resize(1000, 400);
    isHandleAt("grid", 150, 200);  // without an update
}

TEST_F(SceneplateManipulatorTest, FrameTurnsWithOnePlateAndEnclosesSeveral)
{
    const osg::NodePtr turned = select({ 200, 300, 100, 60, 90 });
    isHandleAt("scaleXYLLShape", 230, 350);
    isHandleAt("rotateShape", 200 - 30 - 32, 300);

    const osg::NodePtr other = scene.addPlate({ 500, 300, 40, 40 });
    scene.manipulator.setNodes({ turned, other });
    isHandleAt("scaleXYLLShape", 170, 350);
    isHandleAt("scaleXYURShape", 520, 250);
}

TEST_F(SceneplateManipulatorTest, HandlesAreHitByTheirNames)
{
    struct Row
    {
        const char* name;
        osg::Vec2f from;  ///< of the place where the handle is grabbed
        Mode mode;
    };

    select({ 400, 300, 200, 100 });
    const Row rows[] = {
        { "scaleXYLLShape", { 4, -4 }, Mode::ScaleLowerLeft },
        { "scaleXYULShape", { -4, -4 }, Mode::ScaleUpperLeft },
        { "scaleXYLRShape", { 0, 0 }, Mode::ScaleLowerRight },
        { "scaleXYURShape", { 8, 0 }, Mode::ScaleUpperRight },
        { "rotateShape", { 0, 0 }, Mode::Rotate },
        { "rotateShape", { 0, 20 }, Mode::Rotate },
        { "grid", { 30, 20 }, Mode::Move },
        { "grid", { 103, 0 }, Mode::Move },
        { "grid", { 120, 0 }, Mode::None },
    };
    for (const Row& row : rows) {
        const bool isHit = scene.send("hover", scene.handlePx(row.name) + row.from);
        EXPECT_EQ(scene.manipulator.getActiveMode(), row.mode) << row.name;
        EXPECT_EQ(isHit, row.mode != Mode::None);
        EXPECT_EQ(nbScenegraph::isPreselectionEnabled(), !isHit);
    }
}

TEST_F(SceneplateManipulatorTest, MovingSendsTheDistanceFromTheStart)
{
    select({ 400, 300, 200, 100 });

    EXPECT_TRUE(scene.drag(osg::Pnt2f(450, 310), osg::Vec2f(60, -30)));

    EXPECT_FLOAT_EQ(last.offset.x(), 60.0F / 600);
    EXPECT_FLOAT_EQ(last.offset.y(), 30.0F / 600) << "heights of the view, y up";
    EXPECT_EQ(last.scaleFactor, 1.0F);
    EXPECT_EQ(last.rotation, 0.0F);
}

TEST_F(SceneplateManipulatorTest, ScalingAboutTheOppositeCornerIsAFactorAndAnOffset)
{
    select({ 400, 300, 200, 100 });

    EXPECT_TRUE(scene.drag("scaleXYURShape", osg::Vec2f(100, -50), false));
    EXPECT_FLOAT_EQ(last.scaleFactor, 1.5F);
    EXPECT_FLOAT_EQ(last.offset.x(), 50.0F / 600) << "the centre goes half as far";
    EXPECT_FLOAT_EQ(last.offset.y(), 25.0F / 600);

    scene.manager.selectMode("precisionTool");
    EXPECT_TRUE(scene.send("process", scene.widget.getMousePosition()));
    EXPECT_FLOAT_EQ(last.scaleFactor, 2.0F);
    EXPECT_EQ(last.offset, QVector2D(0, 0));
    scene.manager.selectMode("tool");
    EXPECT_TRUE(scene.send("process", scene.widget.getMousePosition()));
    EXPECT_FLOAT_EQ(last.scaleFactor, 1.5F);
}

TEST_F(SceneplateManipulatorTest, TurningSendsTheAngleCounterClockwiseBeyondAWholeTurn)
{
    select({ 400, 300, 200, 100 });
    const osg::Pnt2f centre(400, 300);
    scene.send("start", scene.handlePx("rotateShape"));
    for (int degrees = 0; degrees <= 450; degrees += 10) {
        const double angle = (90.0 + degrees) * std::acos(-1.0) / 180.0;
        scene.send("process",
                   osg::Pnt2f(centre.x() + static_cast<float>(82 * std::cos(angle)),
                              centre.y() - static_cast<float>(82 * std::sin(angle))));
        EXPECT_NEAR(last.rotation, degrees, 0.01);
    }
    EXPECT_EQ(last.scaleFactor, 1.0F);
    EXPECT_EQ(last.offset, QVector2D(0, 0));
}

TEST_F(SceneplateManipulatorTest, SnappingShowsGuidesWhileItHolds)
{
    select({ 300, 200, 100, 60 });
    scene.manipulator.enableSnapping(true);
    const osg::NodePtr tree = findNode(scene.manipulator.getVisualisation(), "grid")->getParent();
    const osg::NodePtr vertical = tree->getChild(tree->getNChildren() - 2);
    const osg::NodePtr horizontal = tree->getChild(tree->getNChildren() - 1);

    scene.drag("grid", osg::Vec2f(96, 40), false);
    EXPECT_FLOAT_EQ(last.offset.x(), 100.0F / 600) << "to the centre line";
    EXPECT_FLOAT_EQ(last.offset.y(), -40.0F / 600);
    EXPECT_TRUE(isShown(vertical));
    EXPECT_FALSE(isShown(horizontal));
    const osg::Matrix place = vertical->getToWorld();
    EXPECT_NEAR(scene.pixelOf(osg::Pnt3f(place[3][0], place[3][1], place[3][2])).x(), 400, 0.1F);
    scene.send("process", osg::Pnt2f(410, 200));
    EXPECT_FALSE(isShown(vertical));
    scene.send("process", osg::Pnt2f(399, 299));
    EXPECT_TRUE(isShown(vertical));
    EXPECT_TRUE(isShown(horizontal));
    scene.send("stop", osg::Pnt2f(399, 299));
    EXPECT_FALSE(isShown(vertical));
    EXPECT_FALSE(isShown(horizontal));
}

TEST_F(SceneplateManipulatorTest, PrecisionModeSnapsBodyAndArmForItsTime)
{
    select({ 300, 200, 100, 60 });
    scene.manager.selectMode("precisionTool");
    // Ctrl at the press makes the hint "toggle".
    scene.send("start", scene.handlePx("rotateShape"), "toggle");
    EXPECT_TRUE(scene.send("process", osg::Pnt2f(240, 155), "toggle"));
    EXPECT_FLOAT_EQ(last.rotation, 60.0F) << "of 53.13";
    scene.manager.selectMode("tool");
    EXPECT_TRUE(scene.send("process", osg::Pnt2f(240, 155), "toggle"));
    EXPECT_NEAR(last.rotation, 53.13F, 0.01F);
}

TEST_F(SceneplateManipulatorTest, NothingIsSentUntilSomethingChanges)
{
    select({ 400, 300, 200, 100 });
    EXPECT_TRUE(scene.send("start", osg::Pnt2f(400, 300)));
    EXPECT_TRUE(scene.send("process", osg::Pnt2f(400, 300)));
    EXPECT_TRUE(scene.send("stop", osg::Pnt2f(400, 300)));
    EXPECT_THAT(messages.takeNames(),
                ElementsAre("setMatRenderEnabled", "setMatRenderEnabled", "updateMatRender"));
    scene.drag(osg::Pnt2f(400, 300), osg::Vec2f(10, 0), false);
    EXPECT_TRUE(scene.isHandleShown("grid"));
    EXPECT_FALSE(scene.isHandleShown("rotateShape"));
    scene.send("process", osg::Pnt2f(400, 300));
    EXPECT_EQ(last.offset, QVector2D(0, 0)) << "the way back is told";
}

TEST_F(SceneplateManipulatorTest, ADragWhosePlatesOrViewChangeSendsNoMore)
{
    enum class Event
    {
        Deleted,
        Resized,
        OthersSet
    };
    for (const Event event : { Event::Deleted, Event::Resized, Event::OthersSet }) {
        scene.widget.resize(800, 600);
        const osg::NodePtr node = select({ 400, 300, 200, 100 });
        EXPECT_TRUE(scene.drag(osg::Pnt2f(400, 300), osg::Vec2f(10, 0), false));
        messages.log.clear();
        switch (event) {
        case Event::Deleted:
            nbScenegraph::getSceneplateRoot()->subChild(node);
            break;
        case Event::Resized:
            scene.widget.resize(600, 800);
            break;
        default:
            scene.manipulator.setNodes({ scene.addPlate({ 100, 100, 50, 50 }) });
            break;
        }

        EXPECT_FALSE(scene.manipulator.processManipulator(&scene.context, "select"));
        EXPECT_EQ(messages.takeNames(), event == Event::Deleted ? kResume : Names());
        EXPECT_EQ(scene.manipulator.stopManipulator(&scene.context, "select"),
                  event != Event::Deleted);
        EXPECT_EQ(messages.takeNames(), event == Event::Deleted ? Names() : kResume);
        scene.manager.endDrag();
        EXPECT_EQ(scene.isHandleShown("grid"), event != Event::Deleted);
    }
}

TEST_F(SceneplateManipulatorTest, OfSeveralPlatesTheRestGoesOn)
{
    const osg::NodePtr first = scene.addPlate({ 300, 300, 100, 100 });
    const osg::NodePtr second = scene.addPlate({ 500, 300, 100, 100 });
    scene.manipulator.setNodes(
        { first, osg::NodePtr(), nbScenegraph::getRootNode(), second, first });
    EXPECT_THAT(scene.manipulator.getNodes(), ElementsAre(first, second));

    scene.drag(osg::Pnt2f(400, 300), osg::Vec2f(10, 0), false);
    nbScenegraph::getSceneplateRoot()->subChild(first);
    EXPECT_TRUE(scene.send("process", osg::Pnt2f(430, 300)));
    EXPECT_FLOAT_EQ(last.offset.x(), 30.0F / 600);
    EXPECT_TRUE(scene.send("stop", osg::Pnt2f(430, 300)));
    EXPECT_THAT(scene.manipulator.getNodes(), ElementsAre(second));
    isHandleAt("grid", 500, 300);
}

TEST_F(SceneplateManipulatorTest, OutOfUseItShowsAndFindsNothing)
{
    select({ 400, 300, 200, 100 });
    scene.manipulator.deactivate(&scene.context);
    scene.manipulator.update(true);
    EXPECT_FALSE(scene.isHandleShown("grid"));
    EXPECT_FALSE(scene.send("hover", osg::Pnt2f(400, 300)));
    select({ 400, 300, 100, 100 });
    EXPECT_FALSE(scene.isHandleShown("grid"));
    scene.manipulator.activate(&scene.context);
    EXPECT_TRUE(scene.isHandleShown("grid"));
}

TEST_F(SceneplateManipulatorTest, AReceiverMayTakeItOutOfUse)
{
    select({ 400, 300, 200, 100 });
    nbController::addReceiver("sceneplateChanged",
                              [this](nbMessage&) { scene.manipulator.deactivate(nullptr); });
    EXPECT_FALSE(scene.drag(osg::Pnt2f(400, 300), osg::Vec2f(4, 0), false));
}

TEST_F(SceneplateManipulatorTest, ShowsTheValuesOfTheDrag)
{
    const auto shownText = [] {
        const auto texts =
            notification::NotificationManager::getInstance()->getVisibleTexts(800, 600);
        return texts.empty() ? QString() : texts.front().text;
    };
    select({ 400, 300, 200, 100, 10 });
    scene.drag(osg::Pnt2f(400, 300), osg::Vec2f(12, -3), false);
    EXPECT_EQ(shownText(), "Translation (12.00, 3.00)");
    scene.send("stop", osg::Pnt2f(412, 297));
    EXPECT_EQ(shownText(), "");
    scene.manipulator.setDescriptionEnabled(false);
    scene.drag(osg::Pnt2f(400, 300), osg::Vec2f(12, -3), false);
    EXPECT_EQ(shownText(), "");
}

TEST_F(SceneplateManipulatorTest, HandleSizeFollowsTheSettingAndThePixelRatio)
{
    select({ 400, 300, 200, 100 });
    nbSceneplateManipulator::setManipulatorSize(64.0F);
    nbSceneplateManipulator::setManipulatorSize(-1.0F);
    EXPECT_EQ(nbSceneplateManipulator::getManipulatorSize(), 64.0F);
    scene.manipulator.update(false);
    isHandleAt("rotateShape", 400, 250 - 64);
    nbSceneplateManipulator::setManipulatorSize(32.0F);

    scene.picker.setPixelRatio(3.0F);
    scene.send("hover", osg::Pnt2f(0, 0));
    isHandleAt("rotateShape", 400, 250 - 96);
}

}  // namespace
}  // namespace nbec::manipulator::test
