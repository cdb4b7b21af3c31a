// SPDX-License-Identifier: MIT
#include "manipulator/nbSceneplateManipulator.h"

#include "tests/manipulator/support/HandleScene.h"
#include "tests/manipulator/support/PlateScene.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbSceneplateModule/nbSceneplateModule.h>

#include <QtGui/QVector2D>

#include <gmock/gmock.h>

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
        scene.gizmo.setNodes({ node });
        return node;
    }

    void expectHandleAt(const std::string& name, float x, float y)
    {
        const osg::Pnt2f px = scene.handlePx(name);
        EXPECT_NEAR(px.x(), x, kTolerancePx) << name;
        EXPECT_NEAR(px.y(), y, kTolerancePx) << name;
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
            scene.gizmo.update(false);

            expectHandleAt("grid", 150, 200);
            expectHandleAt("scaleXYLLShape", 70, 250);
            expectHandleAt("scaleXYULShape", 70, 150);
            expectHandleAt("scaleXYLRShape", 230, 250);
            expectHandleAt("scaleXYURShape", 230, 150);
            expectHandleAt("rotateShape", 150, 150 - 32);
        }
    }
    scene.widget.resize(1000, 400);
    expectHandleAt("grid", 150, 200);  // without an update
}

TEST_F(SceneplateManipulatorTest, HandlesAreHitByTheirNames)
{
    select({ 400, 300, 200, 100 });
    // A handle, how far from its place it is grabbed, and what that means.
    const std::tuple<const char*, osg::Vec2f, Mode> rows[] = {
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
    for (const auto& [name, from, mode] : rows) {
        const bool isHit = scene.send("hover", scene.handlePx(name) + from);
        EXPECT_EQ(scene.gizmo.getActiveMode(), mode) << name;
        EXPECT_EQ(isHit, mode != Mode::None);
        EXPECT_EQ(nbScenegraph::isPreselectionEnabled(), !isHit);
    }
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
    scene.gizmo.enableSnapping(true);
    const osg::NodePtr tree = findNode(scene.gizmo.getVisualisation(), "grid")->getParent();
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
    scene.send("stop", osg::Pnt2f(400, 300));
    EXPECT_TRUE(scene.isHandleShown("rotateShape"));
}

TEST_F(SceneplateManipulatorTest, ADragWhoseViewIsResizedOrWhichGetsOtherPlatesSendsNoMore)
{
    for (const bool isResized : { true, false }) {
        scene.widget.resize(800, 600);
        select({ 400, 300, 200, 100 });
        EXPECT_TRUE(scene.drag(osg::Pnt2f(400, 300), osg::Vec2f(10, 0), false));
        messages.log.clear();
        if (isResized) {
            scene.widget.resize(600, 800);
        } else {
            select({ 100, 100, 50, 50 });
        }

        EXPECT_FALSE(scene.gizmo.processManipulator(&scene.context, "select"));
        EXPECT_EQ(messages.takeNames(), Names());
        EXPECT_TRUE(scene.gizmo.stopManipulator(&scene.context, "select"));
        EXPECT_EQ(messages.takeNames(), kResume);
        scene.manager.endDrag();
        EXPECT_TRUE(scene.isHandleShown("grid"));
    }
}

TEST_F(SceneplateManipulatorTest, OfSeveralPlatesTheRestGoesOn)
{
    const osg::NodePtr first = scene.addPlate({ 300, 300, 100, 100 });
    const osg::NodePtr second = scene.addPlate({ 500, 300, 100, 100 });
    scene.gizmo.setNodes({ first, osg::NodePtr(), nbScenegraph::getRootNode(), second, first });
    EXPECT_THAT(scene.gizmo.getNodes(), ElementsAre(first, second));

    scene.drag(osg::Pnt2f(400, 300), osg::Vec2f(10, 0), false);
    nbScenegraph::getSceneplateRoot()->subChild(first);
    EXPECT_TRUE(scene.send("process", osg::Pnt2f(430, 300)));
    EXPECT_FLOAT_EQ(last.offset.x(), 30.0F / 600);
    EXPECT_TRUE(scene.send("stop", osg::Pnt2f(430, 300)));
    EXPECT_THAT(scene.gizmo.getNodes(), ElementsAre(second));
    expectHandleAt("grid", 500, 300);
}

TEST_F(SceneplateManipulatorTest, AReceiverMayTakeItOutOfUse)
{
    select({ 400, 300, 200, 100 });
    nbController::addReceiver("sceneplateChanged",
                              [this](nbMessage&) { scene.gizmo.deactivate(nullptr); });
    EXPECT_FALSE(scene.drag(osg::Pnt2f(400, 300), osg::Vec2f(4, 0), false));
}

TEST_F(SceneplateManipulatorTest, ShowsTheValuesOfTheDrag)
{
    select({ 400, 300, 200, 100, 10 });
    scene.drag(osg::Pnt2f(400, 300), osg::Vec2f(12, -3), false);
    EXPECT_EQ(HandleScene::texts(), Names { "Translation (12.00, 3.00)" });
    scene.send("stop", osg::Pnt2f(412, 297));
    EXPECT_EQ(HandleScene::texts(), Names());
    scene.gizmo.setDescriptionEnabled(false);
    scene.drag(osg::Pnt2f(400, 300), osg::Vec2f(12, -3), false);
    EXPECT_EQ(HandleScene::texts(), Names());
}

/// How far a grabbed point may be from the pointer, pixels: plates are drawn on whole pixels.
constexpr float kDrawnTolerancePx = 0.6F;

class SceneplateDragTest : public testing::TestWithParam<std::pair<int, int>>
{
protected:
    SceneplateDragTest() { nbUndoService::the()->clear(); }

    ~SceneplateDragTest() override { nbUndoService::the()->clear(); }

    void select(const std::vector<osg::NodePtr>& nodes)
    {
        module.select(nodes, "select");
        scene.gizmo.setNodes(module.getSelection());
    }

    void expectNear(const osg::Pnt2f& px, const osg::Pnt2f& expected, const char* what) const
    {
        EXPECT_NEAR(px.x(), expected.x(), kDrawnTolerancePx) << what;
        EXPECT_NEAR(px.y(), expected.y(), kDrawnTolerancePx) << what;
    }

    void release()
    {
        scene.send("stop", scene.widget.getMousePosition());
        nbUndoService::the()->endGroup();
        scene.gizmo.update(false);
    }

    PlateScene scene { GetParam().first, GetParam().second };
    nbSceneplateModule module;
};

TEST_P(SceneplateDragTest, BoxesFollowAndTheOppositeOneStays)
{
    const std::tuple<const char*, float, float> rows[] = {
        { "scaleXYLLShape", -1, -1 }, { "scaleXYULShape", -1, 1 }, { "scaleXYLRShape", 1, -1 },
        { "scaleXYURShape", 1, 1 },   { "scaleXLShape", -1, 0 },   { "scaleYUShape", 0, 1 },
        { "scaleYLShape", 0, -1 },    { "scaleXRShape", 1, 0 },
    };
    scene.gizmo.setSideHandles([&](const osg::Vec2f& factors, const osg::Vec2f& offset) {
        nbSceneplateChange change;
        change.sizeFactors = factors;
        change.offset = offset;
        module.change(change);
    });
    for (const float rotation : { 0.0F, 40.0F, -170.0F }) {
        for (const auto& [handle, alongX, alongY] : rows) {
            const osg::NodePtr node = scene.addPlate({ 200, 150, 120, 80, rotation });
            select({ node });
            const osg::Pnt2f fixed = exactCorner(node, scene.widget, -alongX, -alongY);
            const osg::Pnt2f corner = exactCorner(node, scene.widget, alongX, alongY);
            const osg::Vec2f pull = (corner - fixed) * 0.3F;
            nbUndoService::the()->beginGroup();
            EXPECT_TRUE(scene.drag(handle, pull, false)) << handle << rotation;

            expectNear(exactCorner(node, scene.widget, -alongX, -alongY), fixed, "fixed");
            expectNear(exactCorner(node, scene.widget, alongX, alongY), corner + pull, handle);
            expectNear(scene.handlePx(handle), corner + pull, "box");
            const osg::SceneplatePtr plate = platetest::plateOf(node);
            const bool isCorner = alongX != 0 && alongY != 0;
            EXPECT_NEAR(plate->getScale(), isCorner ? 1.3F : 1.0F, 0.01F);
            const osg::Vec2f size = plate->getSize() * static_cast<float>(scene.widget.getHeight());
            EXPECT_NEAR(size.x(), isCorner || alongX == 0 ? 120.0F : 156.0F, 1.0F) << handle;
            EXPECT_NEAR(size.y(), isCorner || alongY == 0 ? 80.0F : 104.0F, 1.0F) << handle;

            scene.manager.selectMode("precisionTool");
            scene.send("process", scene.widget.getMousePosition());
            expectNear(nbSceneplateLayout::centre(platetest::plateOf(node), scene.widget.getWidth(),
                                                  scene.widget.getHeight()),
                       osg::Pnt2f(200, 150), "centre");
            scene.manager.selectMode("tool");
            scene.gizmo.cancelDrag();
            expectNear(exactCorner(node, scene.widget, alongX, alongY), corner, "taken back");
            release();
            nbScenegraph::getSceneplateRoot()->subChild(node);
        }
    }
}

TEST_P(SceneplateDragTest, SeveralPlatesAreOneBodyDuringTheDrag)
{
    const osg::NodePtr left = scene.addPlate({ 120, 150, 60, 60 });
    const osg::NodePtr right = scene.addPlate({ 280, 150, 60, 60, 45 });
    scene.gizmo.setSideHandles([](const auto&, const auto&) {});
    select({ left, right });
    const osg::Pnt2f centre = scene.handlePx("grid");
    const osg::Vec2f arm = scene.handlePx("rotateShape") - centre;
    nbUndoService::the()->beginGroup();
    EXPECT_FALSE(scene.isHandleShown("scaleXLShape"));
    EXPECT_TRUE(scene.drag("rotateShape", osg::Vec2f(-arm.y(), arm.x()) - arm, false));

    // A quarter turn clockwise takes what is on the left to the top.
    const osg::Vec2f toLeft = osg::Pnt2f(120, 150) - centre;
    expectNear(exactCorner(left, scene.widget, 0, 0), centre + osg::Vec2f(-toLeft.y(), toLeft.x()),
               "left plate");
    EXPECT_NEAR(platetest::plateOf(left)->getRotation(), -90.0F, 0.1F);
    EXPECT_NEAR(platetest::plateOf(right)->getRotation(), -45.0F, 0.1F);
    expectNear(scene.handlePx("grid"), centre, "the frame turns with them");
    release();

    const auto frame =
        nbSceneplateLayout::frame({ platetest::plateOf(left), platetest::plateOf(right) },
                                  scene.widget.getWidth(), scene.widget.getHeight());
    expectNear(scene.handlePx("grid"), frame.centre, "upright again");
    expectNear(scene.handlePx("scaleXYURShape"),
               frame.centre + osg::Vec2f(frame.size.x() / 2, -frame.size.y() / 2), "upright again");
}

INSTANTIATE_TEST_SUITE_P(Views, SceneplateDragTest,
                         testing::Values(std::pair(800, 600), std::pair(400, 300),
                                         std::pair(401, 1023)));

}  // namespace
}  // namespace nbec::manipulator::test
