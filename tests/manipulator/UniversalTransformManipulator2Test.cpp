// SPDX-License-Identifier: MIT
// Where the gizmo stands, and what belongs to its handles.
#include "tests/manipulator/support/HandleScene.h"
#include "tests/platform/support/Edited.h"

#include <nbKernel/nbScenegraph.h>
#include <nbTransform/nbTransformModel.h>

namespace nbec::manipulator::test {

namespace {

using Gizmo = UniversalTransformManipulator2;
using Mode = Gizmo::ManipulatorMode;

constexpr float kTolerance = 1e-4F;

/// A gizmo on one node, with two further ones: one turned, with pivots apart, and one below a
/// turned and scaled parent.
class Marks : public testing::Test
{
protected:
    Marks()
    {
        turned = drags.addFurther(Vec3f(3, 0, 0));
        below = drags.addFurther(Vec3f(0, 3, 0));
        const osg::NodePtr holder = osg::makeCoredNode<osg::Transform3D>();
        nbScenegraph::getRootNode()->addChild(holder);
        holder->addChild(below);
        const auto change = [](const osg::NodePtr& node, const Vec3f& scale) {
            const auto core = transformOf(node);
            const nbEdit edit(core, osg::FieldBits::AllFields);
            core->setRotation(Vec3f(10, 20, 30));
            core->setScale(scale);
            core->setRotatePivot(Vec3f(0.5F, 0.25F, 0));
            core->setScalePivot(Vec3f(-0.5F, 0, 0.75F));
        };
        change(turned, Vec3f(1, 2, 1));
        change(holder, Vec3f(2, 1, 1));
        drags.gizmo.setNode(drags.scene.node, { turned, below });
    }

    /// The middle of a mark's lines. @param length  receives that of its first line
    Vec3f markAt(osg::UInt32 index, float& length)
    {
        const osg::NodePtr marks = drags.gizmo.getVisualisation()->getChild(0)->getChild(0);
        const auto geometry = osg::GeometryPtr::dcast(marks->getCore());
        const osg::GeoPositionsPtr points = geometry->getPositions();
        osg::UInt32 drawn = 0;
        for (osg::UInt32 i = 0; i < geometry->getLengths()->getSize(); ++i) {
            drawn += geometry->getLengths()->getValue(i);
        }
        EXPECT_EQ(drawn, 12U) << "two marks of three lines";
        EXPECT_NE(geometry->getMaterial(), osg::NullFC);
        Vec3f sum;
        for (osg::UInt32 i = 0; i < 6; ++i) {
            sum += points->getValue(6 * index + i).subZero();
        }
        length = (points->getValue(6 * index + 1) - points->getValue(6 * index)).length();
        return sum * (1.0F / 6.0F);
    }

    void expectMarksAtPivots(bool scalePivot)
    {
        const osg::NodePtr frame = drags.gizmo.getVisualisation()->getChild(3)->getChild(0);
        const float size = transformOf(frame)->getScale().x();
        const auto pivotOf =
            scalePivot ? nbTransformModel::getScalePivot : nbTransformModel::getRotationPivot;
        osg::UInt32 index = 0;
        for (const osg::NodePtr& node : { turned, below }) {
            float length = 0.0F;
            expectNear(markAt(index++, length), pivotOf(node, true), "mark", 1e-4F);
            EXPECT_NEAR(length, 0.3F * size, 1e-5F);
        }
    }

    DragScene drags;
    osg::NodePtr turned;
    osg::NodePtr below;
};

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
    ASSERT_TRUE(drags.drag(kArrow, Vec2f(72, 0)));
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

TEST_F(Marks, StandAtThePivotsAfterEveryStepAndGrowWithTheCamerasDistance)
{
    const std::pair<Mode, Vec3f> rows[] = { { Mode::Translate, kArrow },
                                            { Mode::Rotate, kRing },
                                            { Mode::Scale, kScaleHandle },
                                            { Mode::RotatePivot, kArrow },
                                            { Mode::ScalePivot, kArrow } };
    for (const bool local : { false, true }) {
        Gizmo::setLocalSpaceManipulator(local);
        for (const auto& [mode, handle] : rows) {
            SCOPED_TRACE(static_cast<int>(mode));
            drags.activate(mode);
            const bool scalePivot = mode == Mode::Scale || mode == Mode::ScalePivot;
            expectMarksAtPivots(scalePivot);
            ASSERT_TRUE(drags.grab(handle));
            for (float offset = 3; offset < 13; offset += 3) {
                EXPECT_TRUE(drags.stepTo(Vec2f(offset, -offset)));
                expectMarksAtPivots(scalePivot);
            }
            EXPECT_TRUE(drags.release());
            expectMarksAtPivots(scalePivot);
        }
    }
    drags.activate(Mode::Translate);
    for (float distance = 11; distance < 16; ++distance) {
        drags.scene.lookFrom(Pnt3f(0, 0, distance));
        // One of them moves meanwhile.
        nbtest::edited(transformOf(turned))->setTranslation(Vec3f(3, 0, distance < 13 ? 0 : 1));
        Gizmo::updateAllManipulators();
        expectMarksAtPivots(false);
    }
}

}  // namespace nbec::manipulator::test
