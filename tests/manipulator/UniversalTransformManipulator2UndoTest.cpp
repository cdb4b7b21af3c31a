// SPDX-License-Identifier: MIT
// What is left of drags that end where they began, and of drags that are taken back.
#include "tests/manipulator/support/HandleScene.h"
#include "tests/platform/support/Edited.h"

#include <nbKernelServices/nbUndoService.h>

#include <OpenSG/OSGGroup.h>

namespace nbec::manipulator::test {

namespace {

/// The scene's node with a core that is no transform yet.
void makeGroup(const osg::NodePtr& node)
{
    nbtest::edited(node, osg::Node::CoreFieldMask)->setCore(osg::Group::create());
}

}  // namespace

TEST(DragUndo, ConversionAloneIsNoStepAndJoinsTheNextOne)
{
    DragScene drags;
    makeGroup(drags.scene.node);
    const osg::NodeCorePtr group = drags.scene.node->getCore();
    const osg::RefPtr<osg::NodeCorePtr> held(group);
    // The object's centre, where the new pivots will be, is not the node's origin.
    const osg::NodePtr beside = drags.addFurther(Vec3f(2, 0, 0));
    addChild(drags.scene.node, beside);
    drags.gizmo.update(true);
    const osg::Matrix before = drags.scene.node->getToWorld();
    nbUndoService* const undo = nbUndoService::the();

    ASSERT_TRUE(drags.grab(kArrow));
    EXPECT_TRUE(drags.dragBy(Vec2f(40, 0)));
    EXPECT_GT(greatestDifference(drags.scene.node->getToWorld(), before), 0.1F);
    EXPECT_TRUE(drags.dragBy(Vec2f(0, 0)));
    EXPECT_TRUE(drags.release());
    EXPECT_FALSE(undo->undo());
    EXPECT_EQ(drags.scene.node->getToWorld(), before);
    EXPECT_NE(drags.core(), osg::NullFC) << "the node stays converted";

    ASSERT_TRUE(drags.grab(kArrow));
    EXPECT_TRUE(drags.dragBy(Vec2f(40, 0)));
    EXPECT_TRUE(drags.release());
    const osg::Matrix after = drags.scene.node->getToWorld();
    EXPECT_TRUE(undo->undo());
    EXPECT_FALSE(undo->undo()) << "one step";
    EXPECT_EQ(drags.scene.node->getCore(), group);
    EXPECT_EQ(drags.scene.node->getToWorld(), before);
    EXPECT_TRUE(undo->redo());
    EXPECT_EQ(drags.scene.node->getToWorld(), after);
}

TEST(DragUndo, OfAPivotTakesTheGizmoBackWithIt)
{
    DragScene drags;
    UniversalTransformManipulator2::setLocalSpaceManipulator(true);
    drags.activate(UniversalTransformManipulator2::ManipulatorMode::RotatePivot);
    for (const Vec3f& handle : { kArrow, kRing }) {
        const Pnt3f before = drags.onGizmo(handle);
        ASSERT_TRUE(drags.grab(handle));
        EXPECT_TRUE(drags.dragBy(Vec2f(-40, -20)));
        EXPECT_TRUE(drags.release());
        EXPECT_GT((drags.onGizmo(handle) - before).length(), 0.1F);
        EXPECT_TRUE(nbUndoService::the()->undo());
        drags.gizmo.update(false);
        EXPECT_EQ(drags.onGizmo(handle), before);
    }
}

TEST(DragUndo, AfterACancelTheHandleIsGrabbedAgainAtOnce)
{
    for (const bool isConverted : { false, true }) {
        DragScene drags;
        if (isConverted) {
            makeGroup(drags.scene.node);
            drags.gizmo.update(true);
        }
        const osg::Matrix before = drags.scene.node->getToWorld();
        const Pnt3f place = drags.onGizmo(kArrow);
        for (int i = 0; i < 4; ++i) {
            ASSERT_TRUE(drags.drag.press(place)) << "drag " << i;
            EXPECT_TRUE(drags.dragBy(Vec2f(60, 0)));
            EXPECT_GT(greatestDifference(drags.scene.node->getToWorld(), before), 0.1F);
            drags.scene.manager.cancelDrag();
            EXPECT_EQ(drags.scene.node->getToWorld(), before);
        }
        EXPECT_FALSE(nbUndoService::the()->undo());
    }
}

}  // namespace nbec::manipulator::test
