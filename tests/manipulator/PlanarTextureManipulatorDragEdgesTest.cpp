// SPDX-License-Identifier: MIT
// Drags where something is missing or degenerate, and what they do to the object.
#include "tests/manipulator/support/TextureScene.h"
#include "tests/platform/support/Edited.h"

#include <nbKernel/nbScenegraph.h>
#include <nbNotification/NotificationManager.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGSimpleGeometry.h>

namespace nbec::manipulator::test {

namespace {

using Gizmo = PlanarTextureManipulator;

const Vec3f kTab(2.5F, 0, 0);

}  // namespace

TEST(PlanarTextureManipulatorDrag, SendsNothingWhileThePlaneIsMissed)
{
    PlanarScene planar;
    planar.gizmo.activateRotateManipulator();
    // Seen along the projection plane, every ray begins in it and looks away or along.
    planar.look(Camera::Side, false);
    ASSERT_TRUE(planar.drag.press(planar.onHandle("rotateShape", Vec3f(0.03F, 1, 0))));
    planar.log.clear();
    EXPECT_TRUE(planar.drag.dragBy(Vec2f(0, 30)));
    EXPECT_EQ(planar.takeNames(), Names());
    EXPECT_TRUE(planar.drag.release());

    // An arrow that points at the viewer has no plane.
    planar.gizmo.activateTranslateManipulator();
    planar.look(Camera::Front, true);
    ASSERT_TRUE(planar.drag.press(planar.onHandle("zaShape", Vec3f(-0.1F, -0.1F, -1))));
    EXPECT_EQ(planar.gizmo.getActiveMode(), Gizmo::ActiveMode::TranslateZ);
    planar.log.clear();
    EXPECT_TRUE(planar.drag.dragBy(Vec2f(20, 30)));
    EXPECT_EQ(planar.takeNames(), Names());
}

TEST(PlanarTextureManipulatorDrag, AMaterialThatGoesInMidDragStopsNothing)
{
    PlanarScene planar;
    ASSERT_TRUE(planar.grab("xaShape", Vec3f(1.9F, 0, 0)));
    const auto geometry = osg::GeometryPtr::dcast(planar.scene.node->getChild(0)->getCore());
    nbtest::edited(geometry, osg::Geometry::MaterialFieldMask)->setMaterial(osg::MaterialPtr());
    planar.material = osg::UberMaterialPtr();
    EXPECT_EQ(planar.gizmo.getMaterial(), osg::NullFC);
    EXPECT_TRUE(planar.drag.stepTo(Vec2f(72, 0)));
    expectNear(attribute<Vec3f>(planar.last(), "transVec"), Vec3f(kStep, 0, 0), "transVec");
    EXPECT_TRUE(planar.drag.release());
}

TEST(PlanarTextureManipulatorDrag, ASideWithoutLengthGrowsAgainByItsEdge)
{
    PlanarScene planar;
    planar.edit(planar.projection,
                [](const auto& projection) { projection->setScale(Vec3f(0, 1, 1)); });
    planar.gizmo.activateScaleManipulator();
    ASSERT_TRUE(planar.drag.press(planar.onHandle("scaleXYURShape", Vec3f(0.15F, 0, 0))));
    EXPECT_TRUE(planar.drag.dragBy(Vec2f(72, 0)));
    expectNear(attribute<Vec3f>(planar.last(), "scale"), Vec3f(kStep / 2, 1, 1), "scale");
    expectNear(attribute<Vec3f>(planar.last(), "transVec"), Vec3f(kStep / 2, 0, 0), "transVec");
}

// == The object

TEST(PlanarTextureManipulatorDrag, MakesTheObjectATransformWithPivots)
{
    PlanarScene planar;
    const osg::NodePtr box = osg::makeBox(1, 1, 1, 1, 1, 1);
    const osg::NodePtr group = osg::makeCoredNode<osg::Transform3D>();
    const auto place = transformOf(group);
    planar.edit(place, [](const auto& transform) { transform->setTranslation(Vec3f(0, 1, 0)); });
    addChild(group, box);
    const osg::NodePtr object = osg::makeCoredNode<osg::Group>();
    addChild(object, group);
    addChild(planar.parent, object);
    planar.gizmo.setNode(object);

    ASSERT_TRUE(planar.grab("xaShape", Vec3f(1.9F, 0, 0)));
    EXPECT_TRUE(planar.drag.stepTo(Vec2f(72, 0)));
    const auto core = transformOf(object);
    ASSERT_NE(core, osg::NullFC);
    expectNear(core->getRotatePivot(), Vec3f(0, 1, 0), "rotate pivot");
    expectNear(core->getScalePivot(), Vec3f(0, 1, 0), "scale pivot");
    expectNear(attribute<Vec3f>(planar.last(), "transVec"), Vec3f(kStep, 0, 0), "transVec");
    EXPECT_TRUE(planar.drag.release());

    planar.gizmo.setNode(nbScenegraph::getRootNode());
    const osg::NodeCorePtr rootCore = nbScenegraph::getRootNode()->getCore();
    ASSERT_TRUE(planar.grab("xaShape", Vec3f(1.9F, 0, 0)));
    EXPECT_TRUE(planar.drag.stepTo(Vec2f(72, 0)));
    EXPECT_EQ(nbScenegraph::getRootNode()->getCore(), rootCore) << "the scene's root stays";
}

TEST(PlanarTextureManipulatorDrag, TextSaysTheObjectsValuesExceptForZ)
{
    const struct
    {
        const char* handle;
        Vec3f grab;
        const char* text;
    } rows[] = { { "xaShape", { 1.9F, 0, 0 }, "Translation (0.25, -0.50, 0.00)" },
                 { "yaShape", { 0, 1.9F, 0 }, "Translation (0.25, -0.50, 0.00)" },
                 { "xyaShape", { 0.25F, 0.25F, 0 }, "Translation (0.25, -0.50, 0.00)" },
                 { "zaShape", { 0, 0, -1.9F }, "" },
                 { "xsShape", kTab, "Scale (1.00, 2.00, 1.00)" },
                 { "grid", { 0, 0, 0 }, "Scale (1.00, 2.00, 1.00)" },
                 { "zsShape", { 0, 0, -2.5F }, "" },
                 { "scaleXYURShape", { 0, 0, 0 }, "" },
                 { "rotateShape", { 0.6F, -0.8F, 0 }, "Rotation (0.00, 0.00, 10.00)" } };

    PlanarScene planar;
    planar.edit(planar.core(), [](const auto& node) {
        node->setTranslation(Vec3f(0.25F, -0.5F, 0));
        node->setRotation(Vec3f(0, 0, 10));
        node->setScale(Vec3f(1, 2, 1));
    });
    auto* const manager = notification::NotificationManager::getInstance();

    for (const auto& row : rows) {
        const std::string name = row.handle;
        planar.look(name[0] == 'z' ? Camera::Side : Camera::Front, false);
        ASSERT_TRUE(planar.grab(row.handle, row.grab)) << row.handle;
        EXPECT_TRUE(planar.drag.stepTo(Vec2f(3, 3)));
        EXPECT_EQ(HandleScene::texts(), *row.text != '\0' ? Names { row.text } : Names());
        EXPECT_TRUE(planar.drag.release());
    }
    EXPECT_NE(manager->getNotifier("textureTransformInfo"), nullptr);
}

}  // namespace nbec::manipulator::test
