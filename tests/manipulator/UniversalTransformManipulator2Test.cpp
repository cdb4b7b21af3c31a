// SPDX-License-Identifier: MIT
// Where the gizmo stands, and what belongs to its handles.
#include "tests/manipulator/support/HandleScene.h"

namespace nbec::manipulator::test {

namespace {

using Gizmo = UniversalTransformManipulator2;
using Mode = Gizmo::ManipulatorMode;

constexpr float kTolerance = 1e-4F;

}  // namespace

TEST(UniversalTransformManipulator2, StandsAtThePivotOfItsModeOrAtTheCentreOfWhatIsNoTransform)
{
    DragScene drags;
    Gizmo without;
    EXPECT_FALSE(isShown(findNode(without.getVisualisation(), "xaShape"))) << "no node";
    drags.edit(drags.core(), [](const osg::Transform3DPtr& core) {
        core->setTranslation(Vec3f(1, 2, 3));
        core->setRotatePivot(Vec3f(0, 0, 1));
        core->setScalePivot(Vec3f(1, 0, 1));
        core->setRotation(Vec3f(0, 0, 90));
    });
    drags.activate(Mode::Universal);
    EXPECT_TRUE(drags.onGizmo(Vec3f()).equals(Pnt3f(1, 2, 4), kTolerance));
    for (const Mode mode : { Mode::ScalePivot, Mode::Scale }) {
        drags.activate(mode);
        EXPECT_TRUE(drags.onGizmo(Vec3f()).equals(Pnt3f(1, 3, 4), kTolerance));
    }
    drags.gizmo.setNode(drags.scene.node->getChild(0));
    EXPECT_EQ(drags.gizmo.getNode(), drags.scene.node->getChild(0));
    drags.activate(Mode::Rotate);
    EXPECT_TRUE(drags.onGizmo(Vec3f()).equals(Pnt3f(1, 2, 3), kTolerance));
}

TEST(UniversalTransformManipulator2, TurnsWithTheNodeInLocalSpaceAndWhereItScales)
{
    DragScene drags;
    drags.edit(drags.core(), [](const osg::Transform3DPtr& core) {
        core->setRotation(Vec3f(0, 0, 90));
        core->setScale(Vec3f(1, 5, 1));
    });
    EXPECT_TRUE(drags.onGizmo(Vec3f(1, 0, 0)).equals(Pnt3f(kUnit, 0, 0), kTolerance));
    drags.activate(Mode::Scale);
    EXPECT_TRUE(drags.onGizmo(Vec3f(1, 0, 0)).equals(Pnt3f(0, kUnit, 0), kTolerance));
    drags.activate(Mode::Translate);
    Gizmo::setLocalSpaceManipulator(true);
    Gizmo::updateAllManipulators();
    EXPECT_TRUE(drags.onGizmo(Vec3f(1, 0, 0)).equals(Pnt3f(0, kUnit, 0), kTolerance));
}

TEST(UniversalTransformManipulator2, ARingShowsItsAxisWhileItIsGrabbed)
{
    DragScene drags;
    drags.activate(Mode::Rotate);
    drags.look(Camera::Oblique, false);
    const osg::NodePtr axis = partsOf(drags.handle("rzShape"))[1];
    EXPECT_FALSE(isShown(axis));
    ASSERT_TRUE(drags.grab(kRing));
    EXPECT_TRUE(isShown(axis));
    EXPECT_FALSE(isShown(partsOf(drags.handle("rxShape"))[1]));
    EXPECT_TRUE(drags.release());
    EXPECT_FALSE(isShown(axis));
}

TEST(UniversalTransformManipulator2, TargetsBelowOthersAndTwiceNamedOnesAreLeftOut)
{
    DragScene drags;
    const osg::NodePtr beside = drags.addFurther(Vec3f(3, 0, 0));
    const osg::NodePtr below = drags.addFurther(Vec3f(0, 3, 0));
    addChild(beside, below);
    drags.gizmo.setNode(drags.scene.node,
                        { beside, beside, osg::NodePtr(), drags.scene.node, below, drags.parent });
    ASSERT_TRUE(drags.grab(kArrow));
    EXPECT_TRUE(drags.dragBy(Vec2f(72, 0)));
    EXPECT_NEAR(transformOf(beside)->getTranslation().x(), 3 + kStep, 2e-4F);
    EXPECT_EQ(transformOf(below)->getTranslation(), Vec3f(0, 3, 0));
    EXPECT_EQ(drags.parentCore()->getTranslation(), Vec3f());
}

TEST(UniversalTransformManipulator2, ThePivotGoesToTheCentreOfTheObject)
{
    DragScene drags;
    const osg::NodePtr beside = drags.addFurther(Vec3f(2, 0, 0));
    addChild(drags.scene.node, beside);
    EXPECT_TRUE(drags.gizmo.centerPivot());
    expectNear(drags.core()->getRotatePivot(), Vec3f(1, 0, 0), "rotate pivot");
    expectNear(drags.core()->getScalePivot(), Vec3f(1, 0, 0), "scale pivot");
    EXPECT_TRUE(drags.onGizmo(Vec3f()).equals(Pnt3f(1, 0, 0), kTolerance));
    drags.gizmo.setNode(osg::NodePtr());
    EXPECT_FALSE(drags.gizmo.centerPivot());
}

}  // namespace nbec::manipulator::test
