// SPDX-License-Identifier: MIT
// Handles, groups and placement.
#include "tests/manipulator/support/PlanarScene.h"
#include "tests/platform/support/Edited.h"

#include <nbKernel/nbController.h>
#include <nbOpenSGUberCamera/UberCamera.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleGeometry.h>

namespace nbec::manipulator::test {

namespace {

using Gizmo = PlanarTextureManipulator;

constexpr float kTolerance = 1e-4F;

/// A handle, where it is grabbed, and the idle colours of its parts.
struct HandleCase
{
    const char* name;
    unsigned mode;
    Camera camera;
    Vec3f unit;
    const char* group;
    Names idle;
};

void PrintTo(const HandleCase& row, std::ostream* out)
{
    *out << row.name;
}

// clang-format off
const std::vector<HandleCase> kHandles = {
    { "rotateShape", 1, Camera::Front, { 0.70710678F, -0.70710678F, 0 }, "rotate", { "0 0 1", "0.95 0.52 0.18" } },
    { "xaShape", 2, Camera::Front, { 1.9F, 0, 0 }, "translate", { "1 0 0", "1 0 0" } },
    { "yaShape", 3, Camera::Front, { 0, 1.9F, 0 }, "translate", { "0 1 0", "0 1 0" } },
    { "zaShape", 4, Camera::Side, { 0, 0, -1.9F }, "translate", { "0 0 1", "0 0 1" } },
    { "xyaShape", 5, Camera::Front, { 0.25F, 0.25F, 0 }, "translate", { "0 0 1", "1 0 0", "0 1 0" } },
    { "xsShape", 6, Camera::Front, { 2.5F, 0, 0 }, "scale", { "1 0.5 0.5", "1 0.5 0.5" } },
    { "ysShape", 7, Camera::Front, { 0, 2.5F, 0 }, "scale", { "0.5 1 0.5", "0.5 1 0.5" } },
    { "zsShape", 8, Camera::Side, { 0, 0, -2.5F }, "scale", { "0.5 0.5 1", "0.5 0.5 1" } },
    { "grid", 9, Camera::Front, { 0, 0, 0 }, "scale", { "1 1 0" } },
    { "scaleXYLLShape", 10, Camera::Front, { 0, 0, 0 }, "scale", { "1 1 0" } },
    { "scaleXYULShape", 11, Camera::Front, { 0, 0, 0 }, "scale", { "1 1 0" } },
    { "scaleXYLRShape", 12, Camera::Front, { 0, 0, 0 }, "scale", { "1 1 0" } },
    { "scaleXYURShape", 13, Camera::Front, { 0, 0, 0 }, "scale", { "1 1 0" } },
    { "scaleXLShape", 14, Camera::Front, { 0, 0, 0 }, "scale", { "1 0.5 0.5" } },
    { "scaleXRShape", 15, Camera::Front, { 0, 0.15F, 0 }, "scale", { "1 0.5 0.5" } },
    { "scaleYLShape", 16, Camera::Front, { 0, 0, 0 }, "scale", { "0.5 1 0.5" } },
    { "scaleYUShape", 17, Camera::Front, { 0.15F, 0, 0 }, "scale", { "0.5 1 0.5" } },
    { "scaleZPlaneShape", 18, Camera::Oblique, { -0.17F, 0.17F, 0 }, "scale", { "0.5 0.5 1" } },
};

// clang-format on

Names shownHandles(PlanarScene& planar)
{
    Names shown;
    for (const HandleCase& row : kHandles) {
        if (isShown(planar.handle(row.name))) {
            shown.emplace_back(row.name);
        }
    }
    return shown;
}

Names handlesOf(const std::string& groups)
{
    Names names;
    for (const HandleCase& row : kHandles) {
        if (groups.find(row.group) != std::string::npos) {
            names.emplace_back(row.name);
        }
    }
    return names;
}

Names without(Names names, const std::string& removed)
{
    Names kept;
    for (const std::string& name : names) {
        if (removed.find(name) == std::string::npos) {
            kept.push_back(name);
        }
    }
    return kept;
}

class Handles : public testing::TestWithParam<HandleCase>
{ };

}  // namespace

TEST_P(Handles, HaveTheirModeColoursAndHighlight)
{
    const HandleCase& row = GetParam();
    PlanarScene planar;
    planar.look(row.camera, false);
    const osg::NodePtr handle = planar.handle(row.name);
    EXPECT_EQ(partColors(handle), row.idle);

    const Pnt2f pixel = planar.drag.rayPixelOf(planar.onHandle(row.name, row.unit));
    EXPECT_TRUE(planar.scene.send("hover", pixel));
    EXPECT_EQ(static_cast<unsigned>(planar.gizmo.getActiveMode()), row.mode);
    EXPECT_EQ(partColors(handle), Names(row.idle.size(), kHighlight));
    EXPECT_TRUE(planar.scene.send("start", pixel));
    EXPECT_EQ(static_cast<unsigned>(planar.gizmo.getActiveMode()), row.mode);
    EXPECT_EQ(partColors(handle), Names(row.idle.size(), kHighlight));
    // Deliberate: the x arrow and the plane handle leave all other groups shown.
    const bool hidesOthers = row.mode != 2 && row.mode != 5;
    EXPECT_EQ(shownHandles(planar), handlesOf(hidesOthers ? row.group : "rotate translate scale"));
    EXPECT_TRUE(planar.scene.send("stop", pixel));
    EXPECT_EQ(partColors(handle), row.idle);
    EXPECT_EQ(shownHandles(planar), handlesOf("rotate translate scale"));
}

INSTANTIATE_TEST_SUITE_P(PlanarTextureManipulator, Handles, testing::ValuesIn(kHandles));

TEST(PlanarTextureManipulator, MaterialsAreDrawnInTheirOrderAfterTheScene)
{
    PlanarScene planar;

    const struct
    {
        const char* handle;
        float transparency;
        int sortKey;
    } rows[] = { { "xaShape", 0.001F, 64016 },
                 { "xsShape", 0.001F, 64015 },
                 { "grid", 0.001F, 64016 } };

    for (const auto& row : rows) {
        const auto geometry =
            osg::GeometryPtr::dcast(planar.handle(row.handle)->getChild(0)->getCore());
        const auto material = osg::SimpleMaterialPtr::dcast(geometry->getMaterial());
        EXPECT_FLOAT_EQ(material->getTransparency(), row.transparency) << row.handle;
        EXPECT_EQ(material->getSortKey(), row.sortKey) << row.handle;
        EXPECT_FALSE(material->getLit()) << row.handle;
    }
    const osg::NodePtr root = planar.gizmo.getVisualisation();
    EXPECT_TRUE(nbNodeUtils::isAuxiliaryNode(root));
    EXPECT_TRUE(nbNodeUtils::isSelectableAuxiliaryNode(root));
    EXPECT_TRUE(nbNodeUtils::isManipulatorNode(root));
}

TEST(PlanarTextureManipulator, NodesOfOtherNamesAreNoHandles)
{
    PlanarScene planar;
    const osg::NodePtr arrow = planar.handle("xaShape");
    const Pnt2f pixel = planar.drag.rayPixelOf(planar.onHandle("xaShape", Vec3f(1.9F, 0, 0)));
    nbNodeUtils::setName(arrow, "xaShapes", true);

    EXPECT_FALSE(planar.scene.send("hover", pixel));
    EXPECT_FALSE(planar.scene.send("start", pixel));
    EXPECT_EQ(planar.gizmo.getActiveMode(), Gizmo::ActiveMode::None);
    EXPECT_EQ(colorOf(arrow->getChild(0)), "1 0 0");
    EXPECT_TRUE(planar.log.empty());
}

TEST(PlanarTextureManipulator, ModesShowTheirGroups)
{
    PlanarScene planar;
    Gizmo& gizmo = planar.gizmo;
    EXPECT_EQ(shownHandles(planar), handlesOf("rotate translate scale"));
    gizmo.activateTranslateManipulator();
    EXPECT_EQ(shownHandles(planar), handlesOf("translate"));
    gizmo.activateRotateManipulator();
    EXPECT_EQ(shownHandles(planar), handlesOf("rotate"));
    gizmo.activateScaleManipulator();
    EXPECT_EQ(shownHandles(planar), handlesOf("scale"));
    gizmo.showZScaleValue(false);
    EXPECT_EQ(shownHandles(planar), without(handlesOf("scale"), "scaleZPlaneShape"));
    gizmo.setZScaleVisible(false);
    EXPECT_EQ(shownHandles(planar), without(handlesOf("scale"), "scaleZPlaneShape zsShape"));
    gizmo.activateUniversalManipulator();
    EXPECT_EQ(shownHandles(planar),
              without(handlesOf("rotate translate scale"), "scaleZPlaneShape zsShape"));
    gizmo.hideAllElements();
    EXPECT_EQ(shownHandles(planar), Names());
    gizmo.setZScaleVisible(true);
    EXPECT_EQ(shownHandles(planar), Names());
    gizmo.showActiveManipulator();
    EXPECT_EQ(shownHandles(planar),
              without(handlesOf("rotate translate scale"), "scaleZPlaneShape"));
    gizmo.setNode(osg::NodePtr());
    EXPECT_EQ(shownHandles(planar), Names());
    gizmo.showAllElements();
    EXPECT_EQ(shownHandles(planar), handlesOf("rotate translate scale"));
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

TEST(PlanarTextureManipulator, HandlesKeepTheirSizeOnScreen)
{
    PlanarScene planar;
    const auto length = [&planar] {
        return (planar.onHandle("xaShape", Vec3f(1, 0, 0)) -
                planar.onHandle("xaShape", Vec3f(0, 0, 0)))
            .length();
    };
    planar.look(Camera::Front, false);
    EXPECT_NEAR(length(), kUnit, kTolerance);
    planar.edit(planar.core(), [](const osg::Transform3DPtr& node) {
        node->setTranslation(Vec3f(0, 0, -10));
        node->setScale(Vec3f(3, 3, 3));
    });
    EXPECT_NEAR(length(), 2 * kUnit, kTolerance);
    planar.look(Camera::Front, true);
    EXPECT_NEAR(length(), planar.scene.widget.getUberCamera()->getNearPlaneDiagonal() / 20.0F,
                kTolerance);
}

TEST(PlanarTextureManipulator, UpdateFollowsMaterialCameraAndSize)
{
    PlanarScene planar;
    Gizmo::createInstance(false);
    Gizmo* const shared = Gizmo::getInstance();
    shared->setNode(planar.scene.node);
    const auto sizeOf = [](Gizmo& gizmo) {
        return gizmo.getVisualisation()->getChild(0)->getToWorld()[0][0];
    };

    nbtest::edited(planar.projection)->setTranslation(Vec3f(0.5F, 0, 0));
    planar.gizmo.update(false);
    expectNear(planar.onHandle("grid", Vec3f()).subZero(), Vec3f(0.5F, 0, 0), "centre");
    const float before = sizeOf(planar.gizmo);
    planar.drag.look(Camera::Front, true);
    planar.gizmo.update(false);
    EXPECT_NE(sizeOf(planar.gizmo), before);
    planar.drag.look(Camera::Front, false);
    planar.gizmo.update(false);
    EXPECT_EQ(sizeOf(planar.gizmo), before);

    shared->updateManipulator();
    Gizmo::setManipulatorSize(116.0F);  // half of the divisor that 32 gives
    EXPECT_NEAR(sizeOf(*shared), 2 * kUnit, kTolerance);
    EXPECT_EQ(sizeOf(planar.gizmo), before);
    planar.gizmo.update(false);
    EXPECT_NEAR(sizeOf(planar.gizmo), before * 2.0F, kTolerance);

    Gizmo::createInstance(true);
    EXPECT_EQ(Gizmo::getInstance(), nullptr);
    Gizmo::setManipulatorSize(32.0F);
    Gizmo::updateAllManipulators();
    EXPECT_NEAR(sizeOf(planar.gizmo), before, kTolerance);
}

TEST(PlanarTextureManipulator, AStopThatIsLostLeavesNothingBehind)
{
    PlanarScene planar;
    ASSERT_TRUE(planar.grab("rotateShape", Vec3f(0.6F, -0.8F, 0)));
    planar.log.clear();
    // Past the manager, which would stop the former drag first.
    planar.scene.widget.setMousePosition(Pnt2f(20, 20));
    EXPECT_FALSE(planar.gizmo.startManipulator(&planar.scene.context, "select"));
    EXPECT_EQ(planar.takeNames(), kResume);
    EXPECT_EQ(shownHandles(planar), handlesOf("rotate translate scale"));
    EXPECT_FALSE(planar.scene.send("hover", Pnt2f(20, 20)));
}

TEST(PlanarTextureManipulator, CopiesKeepTheStateAndShareTheHandles)
{
    PlanarScene planar;
    planar.gizmo.activateScaleManipulator();
    {
        Gizmo copy(planar.gizmo);
        EXPECT_TRUE(copy.isConnectedTo(planar.material.get(), "diffuse"));
        EXPECT_TRUE(copy.isConnectedToMaterial(planar.material.get()));
        EXPECT_FALSE(copy.isConnectedTo(planar.material.get(), "diffus"));
        EXPECT_EQ(copy.getNode(), planar.scene.node);
        EXPECT_EQ(copy.getMode(), Gizmo::ManipulatorMode::Scale);
        EXPECT_EQ(copy.getVisualisation(), planar.gizmo.getVisualisation());
        copy.setMaterialComponent(osg::MaterialPtr(), "mask", nullptr);
        EXPECT_FALSE(copy.isConnectedToMaterial(osg::MaterialPtr()));
    }
    EXPECT_EQ(planar.gizmo.getComponentType(), "diffuse");
    EXPECT_TRUE(planar.grab("xsShape", Vec3f(2.5F, 0, 0)));
    Gizmo assigned(true);
    assigned = planar.gizmo;
    EXPECT_EQ(assigned.getComponentType(), "diffuse");
}

TEST(PlanarTextureManipulator, DepthPassSharesCoresAndIsNotHit)
{
    PlanarScene planar;
    Gizmo gizmo(true);
    gizmo.setMaterialComponent(planar.material.get(), "diffuse", nullptr);
    gizmo.setNode(planar.scene.node);
    planar.scene.install(gizmo);
    gizmo.activateRotateManipulator();
    const osg::NodePtr copied = gizmo.getVisualisation()->getChild(0)->getChild(0);
    const osg::NodePtr handles = gizmo.getVisualisation()->getChild(1)->getChild(0);
    EXPECT_EQ(copied->getCore(), handles->getCore());
    ASSERT_EQ(copied->getNChildren(), handles->getNChildren());
    for (osg::UInt32 i = 0; i < copied->getNChildren(); ++i) {
        EXPECT_EQ(copied->getChild(i)->getActive(), handles->getChild(i)->getActive()) << i;
    }
    EXPECT_TRUE(planar.scene.send("hover", planar.drag.rayPixelOf(Pnt3f(0.67F, 0, 0))));
    EXPECT_EQ(gizmo.getActiveMode(), Gizmo::ActiveMode::Rotate);
    planar.scene.manager.removeContext(&planar.scene.context);
    planar.scene.install(planar.gizmo);
}

}  // namespace nbec::manipulator::test
