// SPDX-License-Identifier: MIT
#include "viewer/stage/Stage.h"

#include "tests/viewer/support/SceneTest.h"
#include "viewer/loading/BuiltModel.h"
#include "viewer/loading/ModelReader.h"
#include "viewer/stage/HandleCursor.h"

#include <nbInteraction/EventNames.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <QJsonArray>
#include <QTemporaryDir>

#include <set>
#include <string>

#include <malloc.h>

namespace viewer {
namespace {

namespace names = nbec::interaction::names;

using StageWithStartScene = StageTest;

TEST_F(StageWithStartScene, ADragFromEmptySpaceSelectsWhatLiesInTheRectangle)
{
    const osg::Pnt2f corner(3.0F, 3.0F);
    view.setPressPosition(corner);
    send(names::kStart, corner);
    send(names::kProcess, osg::Pnt2f(1197.0F, 797.0F));
    EXPECT_TRUE(view.getRectSelection());
    send(names::kStop, osg::Pnt2f(1197.0F, 797.0F));
    EXPECT_FALSE(view.getRectSelection());
    std::set<std::string> found;
    for (const osg::NodePtr& object : stage.selectedObjects()) {
        found.insert(nbNodeUtils::getName(object));
    }
    EXPECT_EQ(found.count("Vase") + found.count("Knot") + found.count("Pawn"), 3U);
    EXPECT_EQ(found.count("Table"), 0U) << "it reaches out of the view";
    view.clearPressPosition();
}

TEST_F(StageWithStartScene, WhatIsExportedIsReadAgainWhereItStands)
{
    const QTemporaryDir folder;
    stage.commands().setOutputFolder(folder.path());
    ASSERT_TRUE(stage.commands().run("object.translation", QJsonArray { 1, 2, 3 }, error));
    const osg::BoxVolume bounds = nbNodeUtils::getWorldBounds(stage.selectedObject());
    const std::size_t triangles = stage.triangleCount();
    for (const char* name : { "a.glb", "b.obj" }) {
        ASSERT_TRUE(stage.commands().run("scene.export", name, error)) << error.toStdString();
        const std::optional<ModelData> model = readModelFile(folder.filePath(name), {}, error);
        ASSERT_TRUE(model) << error.toStdString();
        EXPECT_EQ(model->triangleCount(), triangles);
        stage.clear();
        stage.add(*model);
        ASSERT_TRUE(stage.selectByName("Knot")) << name;
        const osg::BoxVolume again = nbNodeUtils::getWorldBounds(stage.selectedObject());
        EXPECT_NEAR((again.getMin() - bounds.getMin()).length(), 0.0F, 1e-4F) << name;
    }
    EXPECT_FALSE(stage.commands().run("scene.export", "c.none", error));
    EXPECT_TRUE(error.contains("c.none")) << error.toStdString();

    // What goes beside a model neither leads out of the folder nor replaces what belongs to others.
    ASSERT_TRUE(QFile::link(folder.filePath("a.glb"), folder.filePath("d.mtl")));
    ASSERT_TRUE(QFile::copy(folder.filePath("a.glb"), folder.filePath("e.bin")));
    for (const char* name : { "d.obj", "e.gltf" }) {
        EXPECT_FALSE(stage.commands().run("scene.export", name, error)) << name;
        EXPECT_FALSE(QFile::exists(folder.filePath(name)));
    }
    EXPECT_TRUE(stage.commands().run("scene.export", "b.obj", error)) << error.toStdString();
}

TEST_F(StageWithStartScene, CursorsPointAlongTheAxesOnTheScreen)
{
    stage.setOrthographic(true);
    stage.setStandardView(nbCameraNavigation::StandardView::Front);
    stage.frameSelection();
    stage.update();

    EXPECT_EQ(cursorOfHandle(stage, "xaShape").action, HandleAction::MoveAlong);
    EXPECT_NEAR(cursorOfHandle(stage, "xaShape").angleDeg, 0.0, 0.5);
    EXPECT_NEAR(cursorOfHandle(stage, "ysShape").angleDeg, 90.0, 0.5);
    EXPECT_EQ(cursorOfHandle(stage, "ysShape").action, HandleAction::ScaleAlong);
    EXPECT_EQ(cursorOfHandle(stage, "zaShape").action, HandleAction::MoveInPlane)
        << "the axis points at the eye";
    EXPECT_EQ(cursorOfHandle(stage, "rxShape").action, HandleAction::Turn);
    EXPECT_EQ(cursorOfHandle(stage, "").action, HandleAction::None);
}

using LongSession = SceneTest;

TEST_F(LongSession, LeavesMemoryWhereItWasAfterItsFirstTenth)
{
#if defined(NBMANIPULATOR_SYSTEM_OPENSG)
    GTEST_SKIP() << "a real OpenSG keeps 16 bytes for every container that there ever was";
#endif
    constexpr int kModels = 200;
    constexpr int kDragsOfEach = 25;
    constexpr double kMostGrowth = 1.05;
    const auto bytesInUse = [] { return mallinfo2().uordblks + mallinfo2().hblkhd; };
    std::size_t afterTheFirstTenth = 0;
    for (int i = 0; i < kModels; ++i) {
        stage.clear();
        addModel(model("boxes.obj"));
        stage.frameAll(true);
        ASSERT_TRUE(stage.selectByName("Crate"));
        stage.update();
        const osg::Pnt2f arrow = placeOf(SessionTarget::Kind::Handle, "yaShape");
        for (int drag = 0; drag < kDragsOfEach; ++drag) {
            send(names::kHover, arrow);
            ASSERT_TRUE(send(names::kStart, arrow));
            send(names::kProcess, arrow + osg::Vec2f(0.0F, 10.0F));
            send(names::kProcess, arrow + osg::Vec2f(0.0F, 20.0F + static_cast<float>(drag)));
            send(names::kStop, arrow);
            ASSERT_EQ(steps(), 1);
            ASSERT_TRUE(stage.undo());
        }
        afterTheFirstTenth = i < kModels / 10 ? bytesInUse() : afterTheFirstTenth;
    }
    // A sanitizer that has the heap tells nothing of it, and looks for leaks itself.
    EXPECT_LE(static_cast<double>(bytesInUse()),
              kMostGrowth * static_cast<double>(afterTheFirstTenth));
}

}  // namespace
}  // namespace viewer
