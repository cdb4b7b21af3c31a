// SPDX-License-Identifier: MIT
// Handles shown, where tabs stand, and what the gizmo is connected to.
#include "tests/manipulator/support/TextureScene.h"
#include "tests/platform/support/Edited.h"

namespace nbec::manipulator::test {

constexpr float kTolerance = 1e-4F;

TEST(PlanarTextureManipulator, HidesTheHandlesOfDepthOnDemand)
{
    PlanarScene planar;
    const auto shown = [&planar] {
        return planar.shownOf({ "xsShape", "zsShape", "scaleZPlaneShape", "rotateShape" });
    };
    planar.gizmo.activateScaleManipulator();
    planar.gizmo.showZScaleValue(false);
    EXPECT_EQ(shown(), (Names { "xsShape", "zsShape" }));
    planar.gizmo.setZScaleVisible(false);
    EXPECT_EQ(shown(), Names { "xsShape" });
    planar.gizmo.activateUniversalManipulator();
    EXPECT_EQ(shown(), (Names { "xsShape", "rotateShape" }));
    planar.gizmo.hideAllElements();
    planar.gizmo.setZScaleVisible(true);
    EXPECT_EQ(shown(), Names());
    planar.gizmo.showActiveManipulator();
    EXPECT_EQ(shown(), (Names { "xsShape", "zsShape", "rotateShape" }));
    planar.gizmo.setNode(osg::NodePtr());
    EXPECT_EQ(shown(), Names());
    planar.gizmo.showAllElements();
    EXPECT_EQ(shown().size(), 4U);

    planar.gizmo.setNode(planar.scene.node);
    EXPECT_TRUE(planar.scene.send("hover", planar.rayPixelOf(planar.onHandle("grid", {}))));
    planar.gizmo.setDefaultMaterials();
    EXPECT_NE(partColor(planar.handle("grid"), 0), kHighlight);
    planar.gizmo.highlightControlElement();
    EXPECT_EQ(partColor(planar.handle("grid"), 0), kHighlight);
}

TEST(PlanarTextureManipulator, TabsStandAtEdgesCornersAndDepthInAnySpace)
{
    const std::pair<const char*, Vec3f> tabs[] = {
        { "scaleXLShape", { -1, 0, 0 } },    { "scaleXRShape", { 1, 0, 0 } },
        { "scaleYLShape", { 0, -1, 0 } },    { "scaleYUShape", { 0, 1, 0 } },
        { "scaleXYLLShape", { -1, -1, 0 } }, { "scaleXYULShape", { -1, 1, 0 } },
        { "scaleXYLRShape", { 1, -1, 0 } },  { "scaleXYURShape", { 1, 1, 0 } },
        { "scaleZPlaneShape", { 0, 0, -1 } }
    };

    PlanarScene planar;
    planar.edit(planar.parentCore(), [](const osg::Transform3DPtr& parent) {
        parent->setScale(Vec3f(-1.5F, 1, 0.5F));  // mirrored, and skewed by the turn below
        parent->setRotation(Vec3f(10, 0, 0));
    });
    planar.edit(planar.core(), [](const osg::Transform3DPtr& node) {
        node->setTranslation(Vec3f(0.5F, 0.25F, 0));
        node->setRotation(Vec3f(0, 30, 20));
    });
    planar.edit(planar.projection, [](const osg::Transform3DPtr& projection) {
        projection->setTranslation(Vec3f(0.1F, -0.2F, 1));
        projection->setRotation(Vec3f(0, 0, 40));
        projection->setRotationOrientation(osg::Quaternion(Vec3f(1, 0, 0), 0.3F));
        projection->setScale(Vec3f(2, 0.5F, 3));
    });

    for (const bool orthographic : { false, true }) {
        planar.look(Camera::Oblique, orthographic);
        for (const auto& [name, inProjection] : tabs) {
            expectNear(planar.onHandle(name, Vec3f()).subZero(),
                       planar.inWorld(inProjection).subZero(), name);
        }
        // The z arrow points to where the projection looks, below a mirrored node too.
        const Vec3f arrow = planar.onHandle("zaShape", Vec3f(0, 0, -1)) - planar.inWorld(Vec3f());
        EXPECT_GT(arrow.dot(planar.inWorld(Vec3f(0, 0, -1)) - planar.inWorld(Vec3f())), 0.0F);
    }
}

TEST(PlanarTextureManipulator, KnowsWhatItIsConnectedTo)
{
    PlanarScene planar;
    TextureSceneOf<TriplanarTextureManipulator> triplanar;
    const auto check = [](auto& gizmo, const osg::MaterialPtr& material) {
        EXPECT_TRUE(gizmo.isConnectedToMaterial(material));
        EXPECT_TRUE(gizmo.isConnectedTo(material, "diffuse"));
        EXPECT_FALSE(gizmo.isConnectedTo(material, "Diffuse"));
        EXPECT_FALSE(gizmo.isConnectedToMaterial(osg::UberMaterial::create()));
        gizmo.setMaterialComponent(osg::NullFC, "", nullptr);
        EXPECT_FALSE(gizmo.isConnectedToMaterial(osg::NullFC)) << "none is not connected to none";
    };
    check(triplanar.gizmo, triplanar.material.get());
    check(planar.gizmo, planar.material.get());
}

TEST(PlanarTextureManipulator, EndsAPauseThatIsOwed)
{
    PlanarScene planar;
    planar.gizmo.setNode(planar.scene.node);
    EXPECT_EQ(planar.takeNames(), kPause);
    planar.gizmo.setNode(osg::NodePtr());
    EXPECT_EQ(planar.takeNames(), kResume);
    {
        PlanarTextureManipulator other;
        other.setNode(planar.scene.node);
        const PlanarTextureManipulator copy(other);
        planar.log.clear();
    }
    EXPECT_EQ(planar.takeNames(), kResume) << "once, not for the copy too";

    planar.gizmo.setNode(planar.scene.node);
    ASSERT_TRUE(planar.grab("xaShape", Vec3f(1.9F, 0, 0)));
    planar.log.clear();
    planar.gizmo.setNode(osg::NodePtr());
    EXPECT_EQ(planar.takeNames(), kResume);
    EXPECT_FALSE(planar.stepTo(Vec2f(5, 0)));
    EXPECT_FALSE(planar.release());
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
    // Who is asked at a grab may take the object away.
    planar.scaleReply = [&planar](nbMessage&) { planar.gizmo.setNode(osg::NodePtr()); };
    EXPECT_FALSE(planar.grab("xaShape", Vec3f(1.9F, 0, 0)));
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
