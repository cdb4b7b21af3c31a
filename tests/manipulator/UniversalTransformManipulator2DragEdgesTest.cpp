// SPDX-License-Identifier: MIT
// What drags send, show and refuse, and what may go wrong in the middle of one.
#include "tests/manipulator/support/HandleScene.h"
#include "tests/platform/support/Edited.h"
#include "tests/platform/support/LogLines.h"

#include <nbKernelServices/nbUndoService.h>
#include <nbNotification/NotificationManager.h>
#include <nbOpenSGUtils/nbNodePermission.h>
#include <nbTransform/nbTransformModel.h>

#include <OpenSG/OSGSimpleGeometry.h>

#include <gmock/gmock.h>

namespace nbec::manipulator::test {

namespace {

using Mode = UniversalTransformManipulator2::ManipulatorMode;
using notification::NotificationManager;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr osg::Int32 kTransformPermission = 19;

void destroy(const osg::NodePtr& node)
{
    const osg::NodePtr above = node->getParent();
    nbtest::edited(above, osg::Node::ChildrenFieldMask)->subChild(node);
}

void setCore(const osg::NodePtr& node, const osg::NodeCorePtr& core)
{
    nbtest::edited(node, osg::Node::CoreFieldMask)->setCore(core);
}

Vec3f translationOf(const osg::NodePtr& node)
{
    return transformOf(node)->getTranslation();
}

}  // namespace

TEST(DragSteps, SendChangedThenUpdate)
{
    DragScene drags;
    drags.activate(Mode::RotatePivot);
    drags.listen("nbTransform::updateTransformation");
    drags.listen("nbTransform::changedTransformation");
    for (const Vec3f& handle : { kArrow, kRing }) {
        ASSERT_TRUE(drags.grab(handle));
        EXPECT_THAT(drags.takeNames(), IsEmpty());
        EXPECT_TRUE(drags.stepTo(Vec2f(-5, 5)));
        EXPECT_TRUE(drags.release());
        EXPECT_THAT(
            drags.takeNames(),
            ElementsAre("nbTransform::changedTransformation", "nbTransform::updateTransformation"));
    }
}

TEST(DragSteps, AnArrowThatPointsAtTheEyeMovesNothing)
{
    DragScene drags;
    drags.look(Camera::Side, true);
    const Pnt2f pixel = drags.rayPixelOf(drags.onGizmo(kArrow));
    ASSERT_TRUE(drags.scene.send("start", pixel));
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(drags.scene.send("process", pixel + Vec2f(10.0F * static_cast<float>(i), 7)));
    }
    EXPECT_EQ(drags.core()->getTranslation(), Vec3f(0, 0, 0));
}

// == Refusals

TEST(DragRefusals, NodesThatAreLockedOrHangInNoSceneStayAndOnlyTheFormerAreToldOfInEachStep)
{
    for (const bool isLocked : { true, false }) {
        DragScene drags;
        const osg::RefPtr<osg::NodePtr> box(osg::makeBox(1, 1, 1, 1, 1, 1));
        setCore(drags.scene.node, osg::Group::create());
        nbNodePermission::setAllowed(drags.scene.node, kTransformPermission, false);
        drags.gizmo.setNode(isLocked ? drags.scene.node : box.get());
        drags.gizmo.update(true);
        const nbtest::LogLines log;
        const Pnt2f pixel = drags.rayPixelOf(drags.onGizmo(kArrow));
        ASSERT_TRUE(drags.scene.send("start", pixel));
        EXPECT_FALSE(drags.scene.send("process", pixel));
        EXPECT_FALSE(drags.scene.send("process", pixel + Vec2f(9, 0)));
        EXPECT_EQ(log.lines,
                  isLocked ? Names(2, "Selected node cannot be transformed.")
                           : Names { "UniversalTransformManipulator2: the node is not moved, it "
                                     "hangs in no scene" });
        EXPECT_EQ(transformOf(drags.scene.node), osg::NullFC) << "nor is it converted";
    }
}

TEST(DragRefusals, OfSeveralNodesTheLockedOnesAreNeitherMovedNorConverted)
{
    for (const bool isLocal : { false, true }) {
        DragScene drags;
        UniversalTransformManipulator2::setLocalSpaceManipulator(isLocal);
        const osg::NodePtr free = drags.addFurther(Vec3f(3, 0, 0));
        const osg::NodePtr locked = drags.addFurther(Vec3f(0, 3, 0));
        for (const osg::NodePtr& each : { drags.scene.node, locked }) {
            setCore(each, osg::Group::create());
            nbNodePermission::setAllowed(each, kTransformPermission, false);
        }
        drags.gizmo.setNode(drags.scene.node, { locked, free });
        const nbtest::LogLines log;
        ASSERT_TRUE(drags.drag(kArrow, Vec2f(72, 0)));
        EXPECT_TRUE(drags.release());
        EXPECT_NEAR(translationOf(free).x(), 3.0F + kStep, 2e-4F);
        EXPECT_EQ(transformOf(drags.scene.node), osg::NullFC);
        EXPECT_EQ(transformOf(locked), osg::NullFC);
        EXPECT_THAT(log.lines, ElementsAre("Selected node cannot be transformed."));
    }
}

// == Conversion

TEST(DragConversion, AGroupBecomesATransformWithItsPivotsAtTheObjectsCentre)
{
    DragScene drags;
    const osg::NodePtr node = drags.scene.node;
    setCore(node, osg::Group::create());
    const osg::NodePtr holder = osg::makeCoredNode<osg::Transform3D>();
    nbtest::edited(transformOf(holder))->setTranslation(Vec3f(1, 0.5F, 0));
    const osg::RefPtr<osg::NodePtr> box(node->getChild(0));
    nbtest::edited(node, osg::Node::ChildrenFieldMask)->replaceChild(0, holder);
    holder->addChild(box.get());
    drags.activate(Mode::Rotate);
    EXPECT_LT((drags.onGizmo(Vec3f(0, 0, 0)) - Pnt3f(1, 0.5F, 0)).length(), 1e-5F);
    const osg::RefPtr<osg::NodeCorePtr> group(node->getCore());
    nbTransformModel::the()->setRotation(1, [&](osg::UInt32) {
        return nbTransformModel::Value({ node, -1 }, Vec3f(0, 0, 30));
    });
    drags.gizmo.update(false);
    EXPECT_LT((drags.onGizmo(Vec3f(0, 0, 0)) - Pnt3f(1, 0.5F, 0)).length(), 1e-5F)
        << "a typed angle turns about the same point";
    setCore(node, group.get());
    drags.gizmo.update(true);

    ASSERT_TRUE(drags.grab(kRing));
    ASSERT_NE(drags.core(), osg::NullFC);
    EXPECT_LT((drags.core()->getRotatePivot() - Vec3f(1, 0.5F, 0)).length(), 1e-5F);
    EXPECT_LT((drags.core()->getScalePivot() - Vec3f(1, 0.5F, 0)).length(), 1e-5F);
    EXPECT_TRUE(drags.dragBy(Vec2f(-40, -20)));
    EXPECT_TRUE(drags.release());
    Pnt3f center(0, 0, 0);
    box->getToWorld().multMatrixPnt(center);
    EXPECT_LT((center - Pnt3f(1, 0.5F, 0)).length(), 1e-5F) << "it turns about its centre";
    EXPECT_GT(drags.core()->getRotation().z(), 20.0F);
}

// == Several nodes

TEST(SeveralNodes, ADestroyedOneIsPassedOverAndTheRestGoesOn)
{
    DragScene drags;
    const osg::NodePtr gone = drags.addFurther(Vec3f(3, 0, 0));
    const osg::NodePtr stays = drags.addFurther(Vec3f(0, 3, 0));
    drags.gizmo.setNode(drags.scene.node, { gone, stays });
    for (const Mode mode : { Mode::Translate, Mode::Scale, Mode::RotatePivot }) {
        drags.activate(mode);
        ASSERT_TRUE(drags.drag(mode == Mode::Scale ? Vec3f(1.5F, 0, 0) : kArrow, Vec2f(36, 0)));
        if (mode == Mode::Translate) {
            destroy(gone);
        }
        EXPECT_TRUE(drags.dragBy(Vec2f(72, 0)));
        EXPECT_TRUE(drags.release());
    }
    EXPECT_NEAR(translationOf(stays).x(), kStep, 2e-4F);
    EXPECT_NEAR(drags.core()->getTranslation().x(), kStep, 2e-4F);
}

// == On-screen text

TEST(DragText, ShowsTheEditedValuesWhereTheModeHasAText)
{
    const std::tuple<Mode, Vec3f, Vec2f, const char*> rows[] = {
        { Mode::Translate, kArrow, { 72, 0 }, "Translation (0.99, 0.00, 0.00)" },
        { Mode::TranslateRotateScale, kArrow, { 72, 0 }, "Translation (0.99, 0.00, 0.00)" },
        { Mode::Rotate, kRing, { -51, -22 }, "Rotation (0.00, 0.00, 45.00)" },
        { Mode::Scale, { 1.5F, 0, 0 }, { 73, 0 }, "Scale (2.00, 1.00, 1.00)" },
        { Mode::RotatePivot, kArrow, { 72, 0 }, "Rotate Pivot (0.99, 0.00, 0.00)" },
        { Mode::ScalePivot, kArrow, { 72, 0 }, "Scale Pivot (0.99, 0.00, 0.00)" },
        { Mode::Universal, kArrow, { -9, 4 }, "" },
        { Mode::TranslateRotate, kRing, { -9, 4 }, "" },
        { Mode::TranslateRotateScale, { 1.5F, 0, 0 }, { -9, 4 }, "" },
        { Mode::RotatePivot, kRing, { -9, 4 }, "" },
    };
    for (const auto& [mode, grab, offsetPx, text] : rows) {
        DragScene drags;
        drags.activate(mode);
        ASSERT_TRUE(drags.grab(grab));
        EXPECT_THAT(HandleScene::texts(), IsEmpty());
        EXPECT_TRUE(drags.dragBy(offsetPx));
        EXPECT_EQ(HandleScene::texts(), *text == '\0' ? Names() : Names { text });
    }
    DragScene silent;
    silent.gizmo.setDescriptionEnabled(false);
    ASSERT_TRUE(silent.grab(kArrow));
    EXPECT_TRUE(silent.stepTo(Vec2f(-9, 4)));
    EXPECT_THAT(HandleScene::texts(), IsEmpty());
}

TEST(DragText, HasItsNotifierAndFollowsTheViewsShape)
{
    DragScene drags;
    ASSERT_TRUE(drags.grab(kArrow));
    EXPECT_TRUE(drags.stepTo(Vec2f(3, 0)));
    const auto notifier = NotificationManager::getInstance()->getNotifier("transformInfo");
    ASSERT_NE(notifier, nullptr);
    notification::NotifierSettings expected;
    expected.textSize = 1.0F;
    expected.lineColor = osg::Color3f(0.5F, 0.5F, 0.5F);
    expected.backColor = osg::Color3f(0.05F, 0.05F, 0.05F);
    expected.textColor = osg::Color3f(1, 1, 1);
    expected.textAreaFrom = Vec2f(30, 30);
    expected.textAreaTo = Vec2f(-1, -1);
    expected.textPosition = Vec2f(0, 26);
    EXPECT_EQ(notifier->getSettings(), expected);
    drags.scene.widget.resize(300, 600);
    EXPECT_TRUE(drags.stepTo(Vec2f(4, 0)));
    EXPECT_EQ(notifier->getSettings().textPosition, Vec2f(0, 52));
}

// == In the middle of a drag

TEST(BrokenDrags, ANodeTakenOutOfTheSceneStays)
{
    DragScene drags;
    const osg::RefPtr<osg::NodePtr> kept(drags.scene.node);
    ASSERT_TRUE(drags.drag(kArrow, Vec2f(10, 0)));
    destroy(drags.scene.node);
    const Vec3f before = drags.core()->getTranslation();
    EXPECT_FALSE(drags.dragBy(Vec2f(20, 0)));
    EXPECT_EQ(drags.core()->getTranslation(), before);
    EXPECT_TRUE(drags.release());
}

TEST(BrokenDrags, ASelectionOrModeChangedMeanwhileIsHarmless)
{
    DragScene drags;
    const osg::NodePtr other = drags.addFurther(Vec3f(3, 0, 0));
    ASSERT_TRUE(drags.drag(kArrow, Vec2f(20, 0)));
    drags.gizmo.setNode(drags.scene.node, { other });
    drags.dragBy(Vec2f(30, 0));
    EXPECT_LT((translationOf(other) - Vec3f(3, 0, 0)).length(), 1.0F)
        << "a node that joins a drag must not jump";
    drags.gizmo.setNode(other);
    drags.dragBy(Vec2f(40, 0));
    EXPECT_LT((translationOf(other) - Vec3f(3, 0, 0)).length(), 1.0F);
    drags.activate(Mode::Rotate);
    drags.dragBy(Vec2f(50, 0));
    drags.gizmo.setNode(osg::NodePtr());
    EXPECT_FALSE(drags.dragBy(Vec2f(60, 0)));
    EXPECT_FALSE(drags.release());
    EXPECT_LT(greatestDifference(other->getToWorld(), osg::Matrix()), 1e3F) << "and finite";
}

TEST(DragUndo, ConversionAloneIsNoStepAndJoinsTheNextOne)
{
    DragScene drags;
    setCore(drags.scene.node, osg::Group::create());
    const osg::NodeCorePtr group = drags.scene.node->getCore();
    const osg::RefPtr<osg::NodeCorePtr> held(group);
    // The object's centre, where the new pivots will be, is not the node's origin.
    const osg::NodePtr beside = drags.addFurther(Vec3f(2, 0, 0));
    addChild(drags.scene.node, beside);
    drags.gizmo.update(true);
    const osg::Matrix before = drags.scene.node->getToWorld();
    nbUndoService* const undo = nbUndoService::the();

    ASSERT_TRUE(drags.drag(kArrow, Vec2f(40, 0)));
    EXPECT_GT(greatestDifference(drags.scene.node->getToWorld(), before), 0.1F);
    EXPECT_TRUE(drags.dragBy(Vec2f(0, 0)));
    EXPECT_TRUE(drags.release());
    EXPECT_FALSE(undo->undo());
    EXPECT_EQ(drags.scene.node->getToWorld(), before);
    EXPECT_NE(drags.core(), osg::NullFC) << "the node stays converted";

    ASSERT_TRUE(drags.drag(kArrow, Vec2f(40, 0)));
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
    drags.activate(Mode::RotatePivot);
    for (const Vec3f& handle : { kArrow, kRing }) {
        const Pnt3f before = drags.onGizmo(handle);
        ASSERT_TRUE(drags.drag(handle, Vec2f(-40, -20)));
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
            setCore(drags.scene.node, osg::Group::create());
            drags.gizmo.update(true);
        }
        const osg::Matrix before = drags.scene.node->getToWorld();
        const Pnt3f place = drags.onGizmo(kArrow);
        for (int i = 0; i < 4; ++i) {
            ASSERT_TRUE(drags.press(place)) << "drag " << i;
            EXPECT_TRUE(drags.dragBy(Vec2f(60, 0)));
            EXPECT_GT(greatestDifference(drags.scene.node->getToWorld(), before), 0.1F);
            drags.scene.manager.cancelDrag();
            EXPECT_EQ(drags.scene.node->getToWorld(), before);
        }
        EXPECT_FALSE(nbUndoService::the()->undo());
    }
}

}  // namespace nbec::manipulator::test
