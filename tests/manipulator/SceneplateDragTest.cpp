// SPDX-License-Identifier: MIT
// Handle, message, module, plate and back: drags of scene plates as a person sees them.
#include "manipulator/nbSceneplatePickTool.h"
#include "tests/manipulator/support/PlateScene.h"

#include <nbInteraction/ToolInteractionContext.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbSceneplateModule/nbSceneplateModule.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace nbec::manipulator::test {
namespace {

using testing::ElementsAre;

/// How far a grabbed point may be from the pointer, pixels: plates are drawn on whole pixels.
constexpr float kTolerancePx = 0.6F;

struct View
{
    const char* name;
    int widthPx;
    int heightPx;
};

class SceneplateDragTest : public testing::TestWithParam<View>
{
protected:
    SceneplateDragTest() { nbUndoService::the()->clear(); }

    ~SceneplateDragTest() override { nbUndoService::the()->clear(); }

    osg::NodePtr addPlate(const platetest::PlatePx& place) { return scene.addPlate(place); }

    void select(const std::vector<osg::NodePtr>& nodes)
    {
        module.select(nodes, "select");
        scene.manipulator.setNodes(module.getSelection());
    }

    void expectNear(const osg::Pnt2f& px, const osg::Pnt2f& expected, const char* what) const
    {
        EXPECT_NEAR(px.x(), expected.x(), kTolerancePx) << what;
        EXPECT_NEAR(px.y(), expected.y(), kTolerancePx) << what;
    }

    void begin() { nbUndoService::the()->beginGroup("Drag"); }

    void release()
    {
        scene.send("stop", scene.widget.getMousePosition());
        nbUndoService::the()->endGroup();
        scene.manipulator.update(false);
    }

    PlateScene scene { GetParam().widthPx, GetParam().heightPx };
    nbSceneplateModule module;
};

TEST_P(SceneplateDragTest, CornersFollowAndTheOppositeOneStays)
{
    struct Row
    {
        const char* handle;
        float alongX, alongY;
    };

    const Row rows[] = { { "scaleXYLLShape", -1, -1 },
                         { "scaleXYULShape", -1, 1 },
                         { "scaleXYLRShape", 1, -1 },
                         { "scaleXYURShape", 1, 1 } };
    for (const float rotation : { 0.0F, 40.0F, -170.0F }) {
        for (const Row& row : rows) {
            const osg::NodePtr node = addPlate({ 200, 150, 120, 80, rotation });
            select({ node });
            const osg::Pnt2f fixed = exactCorner(node, scene.widget, -row.alongX, -row.alongY);
            const osg::Pnt2f corner = exactCorner(node, scene.widget, row.alongX, row.alongY);
            const osg::Vec2f pull = (corner - fixed) * 0.3F;
            begin();
            EXPECT_TRUE(scene.drag(row.handle, pull, false)) << row.handle << rotation;

            expectNear(exactCorner(node, scene.widget, -row.alongX, -row.alongY), fixed, "fixed");
            expectNear(exactCorner(node, scene.widget, row.alongX, row.alongY), corner + pull,
                       row.handle);
            expectNear(scene.handlePx(row.handle), corner + pull, "box");
            EXPECT_NEAR(platetest::plateOf(node)->getScale(), 1.3F, 0.01F);

            scene.manager.selectMode("precisionTool");
            scene.send("process", scene.widget.getMousePosition());
            expectNear(nbSceneplateLayout::centre(platetest::plateOf(node), scene.widget.getWidth(),
                                                  scene.widget.getHeight()),
                       osg::Pnt2f(200, 150), "centre");
            scene.manager.selectMode("tool");
            release();
            nbScenegraph::getSceneplateRoot()->subChild(node);
        }
    }
}

TEST_P(SceneplateDragTest, SeveralPlatesAreOneBodyDuringTheDrag)
{
    const osg::NodePtr left = addPlate({ 120, 150, 60, 60 });
    const osg::NodePtr right = addPlate({ 280, 150, 60, 60, 45 });
    select({ left, right });
    const osg::Pnt2f centre = scene.handlePx("grid");
    const osg::Vec2f arm = scene.handlePx("rotateShape") - centre;
    begin();
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

TEST_P(SceneplateDragTest, HandlesWinOverThePickToolWhichSelectsBesideThem)
{
    const osg::NodePtr left = addPlate({ 100, 150, 80, 80 });
    const osg::NodePtr right = addPlate({ 250, 150, 80, 80 });
    nbSceneplatePickTool tool;
    interaction::Picker platePicker;
    platePicker.setFilter(interaction::Picker::SceneplateFilter);
    interaction::ToolInteractionContext toolContext;
    toolContext.setPicker(&platePicker);
    toolContext.setTool(&tool);
    scene.manager.addContext(&toolContext);
    module.addChangedCallback([this] { scene.manipulator.setNodes(module.getSelection()); });

    scene.send("start", osg::Pnt2f(100, 150));
    scene.send("stop", osg::Pnt2f(100, 150));
    EXPECT_THAT(module.getSelection(), ElementsAre(left));
    EXPECT_TRUE(scene.isHandleShown("grid"));
    scene.send("start", osg::Pnt2f(250, 150), "toggle");
    scene.send("stop", osg::Pnt2f(250, 150), "toggle");
    EXPECT_THAT(module.getSelection(), ElementsAre(left, right));

    const osg::Vec2f before = platetest::plateOf(left)->getPosition();
    EXPECT_TRUE(scene.drag(osg::Pnt2f(100, 150), osg::Vec2f(10, 0)));
    EXPECT_NE(platetest::plateOf(left)->getPosition(), before) << "the body is dragged";
    EXPECT_THAT(module.getSelection(), ElementsAre(left, right));
    scene.manager.removeContext(&toolContext);
}

INSTANTIATE_TEST_SUITE_P(Views, SceneplateDragTest,
                         testing::Values(View { "wide", 800, 600 }, View { "small", 400, 300 },
                                         View { "high", 401, 1023 }),
                         [](const testing::TestParamInfo<View>& row) { return row.param.name; });

}  // namespace
}  // namespace nbec::manipulator::test
