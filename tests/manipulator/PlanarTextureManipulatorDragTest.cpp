// SPDX-License-Identifier: MIT
// What drags send, with numbers worked out by hand.
#include "tests/manipulator/support/TextureScene.h"
#include "tests/platform/support/Edited.h"

#include <nbKernel/nbScenegraph.h>
#include <nbNotification/NotificationManager.h>

#include <OpenSG/OSGSimpleGeometry.h>

namespace nbec::manipulator::test {

namespace {

using Gizmo = PlanarTextureManipulator;

constexpr float kTolerance = 2e-4F;
constexpr float kHalfPi = 1.57079633F;
const char* const kChanged = "label::changedPlanarManipulator";

using Change = void (*)(PlanarScene& planar);

void scaled(PlanarScene& planar)
{
    planar.edit(planar.projection, [](const auto& of) { of->setScale(Vec3f(2, 3, 0.5F)); });
}

void turned(PlanarScene& planar)
{
    planar.edit(planar.projection, [](const auto& of) { of->setRotation(Vec3f(0, 0, 90)); });
}

void applied(PlanarScene& planar)
{
    turned(planar);
    planar.gizmo.setApplyProjectionRotationToTranslation(true);
}

void oriented(PlanarScene& planar)
{
    planar.edit(planar.projection, [](const auto& of) {
        of->setRotationOrientation(osg::Quaternion(Vec3f(0, 0, 1), kHalfPi));
    });
}

void enlarged(PlanarScene& planar)
{
    planar.edit(planar.core(), [](const auto& node) { node->setScale(Vec3f(2, 2, 2)); });
}

}  // namespace

TEST(PlanarTextureManipulatorDrag, TranslationsSendOffsetAndVectorSinceTheStart)
{
    // clang-format off
    const struct
    {
        const char* handle;
        Camera camera;
        bool orthographic;
        Change arrange;
        Vec3f grab;
        Vec2f offsetPx;
        Vec2f offset;
        Vec3f transVec;
    } rows[] = {
        { "xaShape", Camera::Front, false, nullptr, { 1.9F, 0, 0 }, { 72, 30 }, { kStep, 0 }, { kStep, 0, 0 } },
        { "yaShape", Camera::Front, false, nullptr, { 0, 1.9F, 0 }, { 25, -72 }, { 0, kStep }, { 0, kStep, 0 } },
        { "zaShape", Camera::Side, false, nullptr, { 0, 0, -1.9F }, { 72, 9 }, { 0, 0 }, { 0, 0, -kStep } },
        { "xyaShape", Camera::Front, true, scaled, { 0.25F, 0.25F, 0 }, { 72, 36 }, { kStep, -kStep / 2 }, { kStep, -kStep / 2, 0 } },
        { "xaShape", Camera::Front, false, turned, { 1.9F, 0, 0 }, { 30, -72 }, { kStep, 0 }, { 0, kStep, 0 } },
        { "xaShape", Camera::Front, true, applied, { 1.9F, 0, 0 }, { 30, -72 }, { 0, kStep }, { 0, kStep, 0 } },
        { "xyaShape", Camera::Front, true, oriented, { 0.25F, 0.25F, 0 }, { 36, -72 }, { kStep, -kStep / 2 }, { kStep / 2, kStep, 0 } },
        { "xaShape", Camera::Front, true, enlarged, { 1.9F, 0, 0 }, { 72, 0 }, { kStep / 2, 0 }, { kStep / 2, 0, 0 } },
    };

    // clang-format on

    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        PlanarScene planar;
        if (row.arrange != nullptr) {
            row.arrange(planar);
        }
        planar.gizmo.activateTranslateManipulator();
        planar.look(row.camera, row.orthographic);
        ASSERT_TRUE(planar.grab(row.handle, row.grab));
        EXPECT_EQ(planar.last().name, kChanged);
        EXPECT_EQ(planar.last().message.names(), (Names { "offset", "transVec" }));
        expectNear(attribute<Vec3f>(planar.last(), "transVec"), Vec3f(), "at the start");
        EXPECT_TRUE(planar.dragBy(row.offsetPx));
        const Vec2f offset = attribute<Vec2f>(planar.last(), "offset");
        EXPECT_NEAR(offset.x(), row.offset.x(), kTolerance);
        EXPECT_NEAR(offset.y(), row.offset.y(), kTolerance);
        expectNear(attribute<Vec3f>(planar.last(), "transVec"), row.transVec, "transVec");

        // The host may move the projection while the drag goes on; the totals stay.
        planar.edit(planar.projection,
                    [](const auto& projection) { projection->setTranslation(Vec3f(1, 1, 0)); });
        EXPECT_TRUE(planar.stepTo(Vec2f(-30, 70)));
        EXPECT_TRUE(planar.stepTo(row.offsetPx));
        expectNear(attribute<Vec3f>(planar.last(), "transVec"), row.transVec, "again");
    }
}

TEST(PlanarTextureManipulatorDrag, HandlesLieAlongTheWayThatTheyMoveThePictureAndStayWithIt)
{
    osg::Matrix sheared(2, 0.8F, 0.3F, 0.5F, 0, 1, -0.6F, 0, 0, 0.4F, 1, 0, 0, 0, 0, 1);
    osg::Matrix stretched;
    stretched.setScale(Vec3f(3, 1, 0.5F));

    for (const osg::Matrix& matrix : { sheared, stretched }) {
        for (const char* const name : { "xaShape", "yaShape", "zaShape" }) {
            SCOPED_TRACE(name);
            PlanarScene planar(TextureScene::Receiver::Editor);
            osg::TransformPtr core;
            const osg::NodeRefPtr maker(osg::makeCoredNode<osg::Transform>(&core));
            nbtest::edited(core)->setMatrix(matrix);
            nbtest::edited(planar.scene.node)->setCore(core);
            planar.edit(planar.projection, [](const auto& of) {
                of->setRotation(Vec3f(10, 20, 40));
                of->setTranslation(Vec3f(0.2F, 0.1F, 0));
            });
            planar.gizmo.activateTranslateManipulator();
            planar.look(Camera::Oblique, false);
            const auto arrow = [&planar, name](float along) {
                Pnt3f point(0, along, 0);
                planar.handle(name)->getToWorld().multMatrixPnt(point);
                return point;
            };
            const Pnt3f from = planar.inWorld(Vec3f());
            const Vec3f drawn = arrow(0.9F) - arrow(0);
            ASSERT_TRUE(planar.grabAt(name, arrow(0.9F)));
            const Pnt3f beyond = arrow(0.9F) + drawn;
            EXPECT_TRUE(planar.stepTo(planar.rayPixelOf(beyond) - planar.pressed));
            const Vec3f moved = planar.inWorld(Vec3f()) - from;
            EXPECT_LT((moved - drawn).length(), 0.05F * drawn.length());
            EXPECT_TRUE(planar.scene.node->getToWorld().equals(matrix, kTolerance));
            EXPECT_TRUE((arrow(0.9F) - moved).equals(from + drawn * (1.9F / 0.9F), 0.05F));
        }
    }
}

TEST(PlanarTextureManipulatorDrag, ScalesSendWhatTheirHandleHas)
{
    const Names tab = { "clamping", "scale", "offset", "transVec" };

    const std::tuple<const char*, Camera, Vec3f, Names, bool> rows[] = {
        { "xsShape", Camera::Front, { 2.5F, 0, 0 }, { "scale" }, false },
        { "ysShape", Camera::Front, { 0, 2.5F, 0 }, { "scale" }, false },
        { "zsShape", Camera::Side, { 0, 0, -2.5F }, { "clamping", "scale" }, true },
        { "grid", Camera::Front, {}, { "scale" }, false },
        { "scaleXYURShape", Camera::Front, {}, tab, false },
        { "scaleXLShape", Camera::Front, {}, tab, false },
        { "scaleZPlaneShape", Camera::Oblique, { -0.17F, 0.17F, 0 }, tab, true }
    };

    for (const auto& [handle, camera, grab, names, clamps] : rows) {
        PlanarScene planar;
        scaled(planar);
        planar.gizmo.activateScaleManipulator();
        planar.look(camera, false);
        ASSERT_TRUE(planar.grab(handle, grab)) << handle;
        EXPECT_TRUE(planar.stepTo(Vec2f()));
        EXPECT_EQ(planar.last().message.names(), names) << handle;
        expectNear(attribute<Vec3f>(planar.last(), "scale"), Vec3f(2, 3, 0.5F), handle);
        if (names.front() == "clamping") {
            EXPECT_EQ(attribute<bool>(planar.last(), "clamping"), clamps) << handle;
        }
    }
}

TEST(PlanarTextureManipulatorDrag, RotateSendsTheNegatedAngleSinceTheStart)
{
    for (const Change arrange : { enlarged, scaled, turned }) {
        PlanarScene planar;
        arrange(planar);
        planar.gizmo.activateRotateManipulator();
        ASSERT_TRUE(planar.grab("rotateShape", Vec3f(0.6F, 0.8F, 0)));
        const Vec2f from = planar.pressed - planar.rayPixelOf(Pnt3f(0, 0, 0));
        // A whole turn in steps: totals, within half a turn either way.
        for (const Vec2f& offset : { Vec2f(-20, -5), Vec2f(-60, 30), Vec2f(-90, 30), Vec2f(-70, 60),
                                     Vec2f(-20, 90), Vec2f(10, 5), Vec2f(0, 0) }) {
            EXPECT_TRUE(planar.stepTo(offset));
            EXPECT_EQ(planar.last().message.names(), Names { "rotate" });
            const Vec2f to = from + offset;
            EXPECT_NEAR(attribute<float>(planar.last(), "rotate"),
                        std::atan2(from.x() * to.y() - from.y() * to.x(), from.dot(to)), 1e-3F)
                << offset.x() << ' ' << offset.y();
        }
    }
    using Mode = Gizmo::ActiveMode;
    EXPECT_FLOAT_EQ(Gizmo::computeRotationAngles(Pnt3f(2, 0, 1), Pnt3f(0, 3, -4), Mode::Rotate),
                    kHalfPi);
    EXPECT_EQ(Gizmo::computeRotationAngles(Pnt3f(2, 0, 1), Pnt3f(0, 3, -4), Mode::ScaleX), 0.0F);
}

TEST(PlanarTextureManipulatorDrag, ObjectFlagsReplaceScaleAndPlace)
{
    PlanarScene planar;
    planar.edit(planar.core(), [](const auto& node) {
        node->setScale(Vec3f(2, 4, 1));
        node->setRotatePivot(Vec3f(0.5F, 0, 0));
        node->setScalePivot(Vec3f(0.5F, 0, 0));
    });
    planar.edit(planar.projection,
                [](const auto& projection) { projection->setTranslation(Vec3f(0.25F, 0.25F, 0)); });
    planar.gizmo.setUseObjectScale(true);
    planar.gizmo.setUseObjectTranslation(true);
    planar.gizmo.updateManipulator();
    expectNear(planar.onHandle("grid", Vec3f()).subZero(), Vec3f(0.5F, 0, 0), "object's pivot");

    planar.gizmo.activateScaleManipulator();
    ASSERT_TRUE(planar.grab("ysShape", Vec3f(0, 2.5F, 0)));
    expectNear(attribute<Vec3f>(planar.last(), "scale"), Vec3f(2, 4, 1), "object's scale");
}

TEST(PlanarTextureManipulatorDrag, DepthIsClampedAndShownOnceItIsScaled)
{
    for (const char* const handle : { "zsShape", "scaleZPlaneShape" }) {
        PlanarScene planar(PlanarScene::Receiver::Editor);
        planar.look(Camera::Oblique, true);
        const bool isPlane = std::string(handle) == "scaleZPlaneShape";
        planar.gizmo.showZScaleValue(isPlane);
        ASSERT_TRUE(planar.grab(handle, isPlane ? Vec3f(-0.17F, 0.17F, 0) : Vec3f(0, 0, -2.5F)));
        const Pnt2f center = planar.rayPixelOf(Pnt3f(0, 0, 0));
        const Vec2f outwards = planar.rayPixelOf(Pnt3f(0, 0, -1)) - center;

        EXPECT_TRUE(planar.dragBy(outwards * 0.5F));
        EXPECT_TRUE(planar.settings->hasPlanarProjectionFlag(osg::ColorComponentSettings::ClampZ))
            << handle;
        EXPECT_TRUE(isShown(planar.handle("scaleZPlaneShape"))) << handle;
        EXPECT_GT(planar.projection->getScale().z(), 1.1F) << handle;
        EXPECT_EQ(planar.projection->getScale().x(), 1.0F) << handle;
        EXPECT_EQ(planar.projection->getTranslation(), Vec3f()) << handle;
        EXPECT_TRUE(planar.dragBy(outwards * -10.0F));
        EXPECT_FLOAT_EQ(planar.projection->getScale().z(), 0.01F) << handle;
    }
}

TEST(PlanarTextureManipulatorDrag, SendsNothingWhileThePlaneIsMissed)
{
    PlanarScene planar;
    planar.gizmo.activateRotateManipulator();
    // Seen along the projection plane, every ray begins in it and looks away or along.
    planar.look(Camera::Side, false);
    ASSERT_TRUE(planar.press(planar.onHandle("rotateShape", Vec3f(0.03F, 1, 0))));
    planar.log.clear();
    EXPECT_TRUE(planar.dragBy(Vec2f(0, 30)));
    EXPECT_EQ(planar.takeNames(), Names());
    EXPECT_TRUE(planar.release());

    // An arrow that points at the viewer has no plane.
    planar.gizmo.activateTranslateManipulator();
    planar.look(Camera::Front, true);
    ASSERT_TRUE(planar.press(planar.onHandle("zaShape", Vec3f(-0.1F, -0.1F, -1))));
    EXPECT_EQ(planar.gizmo.getActiveMode(), Gizmo::ActiveMode::TranslateZ);
    planar.log.clear();
    EXPECT_TRUE(planar.dragBy(Vec2f(20, 30)));
    EXPECT_EQ(planar.takeNames(), Names());
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
    EXPECT_TRUE(planar.stepTo(Vec2f(72, 0)));
    const auto core = transformOf(object);
    ASSERT_NE(core, osg::NullFC);
    expectNear(core->getRotatePivot(), Vec3f(0, 1, 0), "rotate pivot");
    expectNear(core->getScalePivot(), Vec3f(0, 1, 0), "scale pivot");
    expectNear(attribute<Vec3f>(planar.last(), "transVec"), Vec3f(kStep, 0, 0), "transVec");
    EXPECT_TRUE(planar.release());

    planar.gizmo.setNode(nbScenegraph::getRootNode());
    const osg::NodeCorePtr rootCore = nbScenegraph::getRootNode()->getCore();
    ASSERT_TRUE(planar.grab("xaShape", Vec3f(1.9F, 0, 0)));
    EXPECT_TRUE(planar.stepTo(Vec2f(72, 0)));
    EXPECT_EQ(nbScenegraph::getRootNode()->getCore(), rootCore) << "the scene's root stays";
}

TEST(PlanarTextureManipulatorDrag, TextSaysTheObjectsValuesExceptForZ)
{
    const std::tuple<const char*, Vec3f, const char*> rows[] = {
        { "xaShape", { 1.9F, 0, 0 }, "Translation (0.25, -0.50, 0.00)" },
        { "yaShape", { 0, 1.9F, 0 }, "Translation (0.25, -0.50, 0.00)" },
        { "xyaShape", { 0.25F, 0.25F, 0 }, "Translation (0.25, -0.50, 0.00)" },
        { "zaShape", { 0, 0, -1.9F }, "" },
        { "xsShape", { 2.5F, 0, 0 }, "Scale (1.00, 2.00, 1.00)" },
        { "grid", { 0, 0, 0 }, "Scale (1.00, 2.00, 1.00)" },
        { "zsShape", { 0, 0, -2.5F }, "" },
        { "scaleXYURShape", { 0, 0, 0 }, "" },
        { "rotateShape", { 0.6F, -0.8F, 0 }, "Rotation (0.00, 0.00, 10.00)" }
    };

    PlanarScene planar;
    planar.edit(planar.core(), [](const auto& node) {
        node->setTranslation(Vec3f(0.25F, -0.5F, 0));
        node->setRotation(Vec3f(0, 0, 10));
        node->setScale(Vec3f(1, 2, 1));
    });

    for (const auto& [handle, grab, text] : rows) {
        const std::string name = handle;
        planar.look(name[0] == 'z' ? Camera::Side : Camera::Front, false);
        ASSERT_TRUE(planar.grab(handle, grab)) << handle;
        EXPECT_TRUE(planar.stepTo(Vec2f(3, 3)));
        EXPECT_EQ(HandleScene::texts(), *text != '\0' ? Names { text } : Names());
        EXPECT_TRUE(planar.release());
    }
    EXPECT_NE(notification::NotificationManager::getInstance()->getNotifier("textureTransformInfo"),
              nullptr);
}

}  // namespace nbec::manipulator::test
