// SPDX-License-Identifier: MIT
// Handles shown, where tabs stand, and what the gizmo is connected to.
#include "tests/manipulator/support/TextureScene.h"

namespace nbec::manipulator::test {

using Gizmo = PlanarTextureManipulator;

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
    EXPECT_TRUE(planar.scene.send("hover", planar.drag.rayPixelOf(planar.onHandle("grid", {}))));
    planar.gizmo.setDefaultMaterials();
    EXPECT_NE(partColor(planar.handle("grid"), 0), kHighlight);
    planar.gizmo.highlightControlElement();
    EXPECT_EQ(partColor(planar.handle("grid"), 0), kHighlight);
}

TEST(PlanarTextureManipulator, TabsStandAtEdgesCornersAndDepthInAnySpace)
{
    const struct
    {
        const char* name;
        Vec3f inProjection;
    } tabs[] = { { "scaleXLShape", { -1, 0, 0 } },    { "scaleXRShape", { 1, 0, 0 } },
                 { "scaleYLShape", { 0, -1, 0 } },    { "scaleYUShape", { 0, 1, 0 } },
                 { "scaleXYLLShape", { -1, -1, 0 } }, { "scaleXYULShape", { -1, 1, 0 } },
                 { "scaleXYLRShape", { 1, -1, 0 } },  { "scaleXYURShape", { 1, 1, 0 } },
                 { "scaleZPlaneShape", { 0, 0, -1 } } };

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
        for (const auto& tab : tabs) {
            expectNear(planar.onHandle(tab.name, Vec3f()).subZero(),
                       planar.inWorld(tab.inProjection).subZero(), tab.name);
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

}  // namespace nbec::manipulator::test
