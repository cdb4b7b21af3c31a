// SPDX-License-Identifier: MIT
// What the planar gizmo asks for, reads and tells around a drag.
#include "tests/manipulator/support/TextureScene.h"
#include "tests/platform/support/Edited.h"

#include <OpenSG/OSGImage.h>

namespace nbec::manipulator::test {

namespace {

using Gizmo = PlanarTextureManipulator;

constexpr float kTolerance = 1e-4F;

}  // namespace

TEST(PlanarTextureManipulator, EndsAPauseThatIsOwed)
{
    PlanarScene planar;
    planar.gizmo.setNode(planar.scene.node);
    EXPECT_EQ(planar.takeNames(), kPause);
    planar.gizmo.setNode(osg::NodePtr());
    EXPECT_EQ(planar.takeNames(), kResume);
    {
        Gizmo other;
        other.setNode(planar.scene.node);
        const Gizmo copy(other);
        planar.log.clear();
    }
    EXPECT_EQ(planar.takeNames(), kResume) << "once, not for the copy too";

    planar.gizmo.setNode(planar.scene.node);
    ASSERT_TRUE(planar.grab("xaShape", Vec3f(1.9F, 0, 0)));
    planar.log.clear();
    planar.gizmo.setNode(osg::NodePtr());
    EXPECT_EQ(planar.takeNames(), kResume);
    EXPECT_FALSE(planar.drag.stepTo(Vec2f(5, 0)));
    EXPECT_FALSE(planar.drag.release());
    EXPECT_EQ(planar.takeNames(), Names());
}

TEST(PlanarTextureManipulator, AsksForScaleValuesOnlyIfTheyAreUsed)
{
    PlanarScene planar;
    planar.gizmo.prepareManipulator(planar.scene.node);
    EXPECT_EQ(planar.takeNames(), kPause);
    planar.gizmo.setUseTextureScale(true);
    planar.scaleReply = [](nbMessage& reply) {
        reply.set("initialTextureScale", Vec3f(1.5F, 1, 1), true);
        reply.set("projectionSize", Vec2f(4, 3), true);
    };
    planar.gizmo.prepareManipulator(planar.scene.node);
    EXPECT_EQ(planar.takeNames(), (Names { "label::getScaleValues", "setMatRenderEnabled" }));
    planar.gizmo.updateManipulator();
    EXPECT_TRUE(planar.onHandle("scaleXYURShape", Vec3f()).equals(Pnt3f(2, 1.5F, 0), kTolerance));

    // A reply of the wrong type, or none, leaves the size as it was.
    for (const bool replies : { true, false }) {
        planar.scaleReply = [replies](nbMessage& reply) {
            if (replies) {
                reply.set("projectionSize", Vec3f(8, 8, 8), true);
                reply.set("initialTextureScale", Vec3f(2, 2, 2), true);
            }
        };
        testing::internal::CaptureStderr();
        planar.gizmo.prepareManipulator(planar.scene.node);
        EXPECT_EQ(testing::internal::GetCapturedStderr().empty(), !replies);
        EXPECT_EQ(planar.gizmo.getProjectionSize(), Vec2f(4, 3));
        EXPECT_EQ(planar.gizmo.getInitialTextureScale(), Vec3f(2, 2, 2));
        planar.gizmo.updateManipulator();
        EXPECT_TRUE(
            planar.onHandle("scaleXYURShape", Vec3f()).equals(Pnt3f(2, 1.5F, 0), kTolerance));
    }
}

TEST(PlanarTextureManipulator, ReadsFlagAndPictureOfTheComponent)
{
    PlanarScene planar;
    planar.gizmo.setKeepAspectRatio(true);
    planar.gizmo.prepareManipulator(planar.scene.node);
    EXPECT_FALSE(planar.gizmo.getKeepAspectRatio());
    nbtest::edited(planar.settings)->setPlanarProjectionFlags(1);
    const osg::ImagePtr image = osg::Image::create();
    image->set(osg::Image::OSG_RGB_PF, 6, 4);
    planar.material->setImage("diffuse", image);
    planar.gizmo.setAspectRatio(7.0F);

    planar.gizmo.prepareManipulator(planar.scene.node);
    EXPECT_TRUE(planar.gizmo.getKeepAspectRatio());
    EXPECT_FLOAT_EQ(planar.gizmo.getAspectRatio(), 1.5F);
}

TEST(PlanarTextureManipulator, PivotGoesToTheCentreOfTheProjection)
{
    PlanarScene planar;
    planar.edit(planar.core(), [](const osg::Transform3DPtr& node) {
        node->setRotation(Vec3f(0, 0, 30));
        node->setScale(Vec3f(2, 1, 1));
    });
    planar.edit(planar.projection, [](const osg::Transform3DPtr& projection) {
        projection->setTranslation(Vec3f(0.5F, -0.25F, 1));
    });
    const osg::Matrix before = planar.scene.node->getToWorld();

    EXPECT_TRUE(planar.gizmo.centerPivot());
    EXPECT_EQ(planar.core()->getRotatePivot(), Vec3f(0.5F, -0.25F, 1));
    EXPECT_EQ(planar.core()->getScalePivot(), Vec3f(0.5F, -0.25F, 1));
    EXPECT_TRUE(planar.scene.node->getToWorld().equals(before, kTolerance));
    planar.gizmo.setNode(osg::NodePtr());
    EXPECT_FALSE(planar.gizmo.centerPivot());
}

}  // namespace nbec::manipulator::test
