// SPDX-License-Identifier: MIT
// The whole loop of the texture gizmos at an anchor: drag, message, the host's editor, material,
// and the gizmo that reads it again at the next drag.
#include "tests/manipulator/support/TextureScene.h"

#include <nbKernel/nbController.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbMaterialEditor/nbMaterialPreview.h>

namespace nbec::manipulator::test {

namespace {

constexpr float kTolerance = 2e-4F;

/// A drag of a handle from its grab to the release, as one step of undo.
void dragOnce(TextureScene& at, const std::string& handle, const Vec3f& unit, const Vec2f& offsetPx)
{
    nbUndoService::the()->beginGroup();
    ASSERT_TRUE(at.grab(handle, unit)) << handle;
    EXPECT_TRUE(at.drag.dragBy(offsetPx));
    EXPECT_TRUE(at.drag.release());
    nbUndoService::the()->endGroup();
}

/// A handle went as far as its way allows: what is left of the pointer's way is at right angles.
void expectUnderPointer(const Vec2f& went, const Vec2f& pointer, const char* handle)
{
    constexpr float kTolerancePx = 4.0F;
    EXPECT_NEAR((pointer - went).dot(went) / went.length(), 0, kTolerancePx) << handle;
}

}  // namespace

TEST(TextureGizmoLoop, TriplanarDragsGoOnFromWhatTheLastOneLeft)
{
    for (const bool orthographic : { false, true }) {
        TriplanarTextureManipulator gizmo;
        TextureScene at(gizmo, TextureScene::Receiver::Editor);
        nbMaterialPreview preview;
        at.edit(at.parentCore(), [](const auto& parent) { parent->setScale(Vec3f(2, 2, 2)); });
        gizmo.activateUniversalManipulator();
        at.look(Camera::Front, orthographic);

        // What is seen under the pointer goes along: a world unit is 1/100 of the picture.
        dragOnce(at, "xaShape", Vec3f(1.9F, 0, 0), Vec2f(72, 0));
        dragOnce(at, "xaShape", Vec3f(1.9F, 0, 0), Vec2f(36, 0));
        const float moved = -108.0F / kPxPerUnit / 100.0F;
        EXPECT_TRUE(at.settings->getTriplanarOffsetU().equals(Vec3f(0, moved, moved), kTolerance));
        EXPECT_TRUE(at.settings->getTriplanarOffsetV().equals(Vec3f(), kTolerance));
        EXPECT_FALSE(preview.isPaused());

        gizmo.activateRotateManipulator();
        const Pnt2f center = at.drag.rayPixelOf(Pnt3f(0, 0, 0));
        dragOnce(at, "rzShape", Vec3f(1.06066F, 1.06066F, 0), Vec2f(-40, 0));
        const Vec2f from = at.drag.pressed - center;
        const float turn = std::atan2(-from.y(), from.x() - 40) - std::atan2(-from.y(), from.x());
        EXPECT_NEAR(at.settings->getTriplanarRotation().z(), turn, 1e-3F);
        dragOnce(at, "rzShape", Vec3f(1.06066F, 1.06066F, 0), Vec2f(-40, 0));
        EXPECT_NEAR(at.settings->getTriplanarRotation().z(), 2 * turn, 2e-3F);

        gizmo.activateRotateScaleManipulator();
        dragOnce(at, "xsShape", Vec3f(2.5F, 0, 0), Vec2f(60, 0));
        const float along = at.drag.pressed.x() - center.x();
        const float repeat = along / (along + 60);
        EXPECT_TRUE(at.settings->getTriplanarRepeatU().equals(Vec3f(1, repeat, repeat), 2e-3F));
        EXPECT_TRUE(at.settings->getTriplanarRepeatV().equals(Vec3f(1, 1, 1), kTolerance));

        for (int i = 0; i < 5; ++i) {
            EXPECT_TRUE(nbUndoService::the()->undo());
        }
        EXPECT_TRUE(at.settings->getTriplanarOffsetU().equals(Vec3f(), kTolerance));
        EXPECT_TRUE(at.settings->getTriplanarRotation().equals(Vec3f(), kTolerance));
        EXPECT_TRUE(at.settings->getTriplanarRepeatU().equals(Vec3f(1, 1, 1), kTolerance));
    }
}

TEST(TextureGizmoLoop, UVDragsGoOnFromWhatTheLastOneLeft)
{
    for (const bool orthographic : { false, true }) {
        UVTextureManipulator gizmo;
        TextureScene at(gizmo, TextureScene::Receiver::Editor);
        nbMaterialPreview preview;
        at.edit(at.core(), [](const auto& node) {
            node->setRotation(Vec3f(10, 20, 30));
            node->setScale(Vec3f(1, 2, 3));
        });
        at.look(Camera::Oblique, orthographic);
        dragOnce(at, "xyaShape", Vec3f(0.2F, 0.2F, 0), Vec2f(64, -32));
        dragOnce(at, "xaShape", Vec3f(1.9F, 0, 0), Vec2f(64, 50));
        EXPECT_TRUE(at.settings->getOffset().equals(Vec2f(0.25F, 0.0625F), kTolerance));
        EXPECT_FALSE(preview.isPaused());
        EXPECT_EQ(nbController::getModified(), 1) << "marked by the editor";

        gizmo.activateRotateManipulator();
        dragOnce(at, "rotateShape", Vec3f(1, 0, 0), Vec2f(-48, -48));
        const float turned = at.settings->getRotate();
        EXPECT_NEAR(turned, -90, 3);
        dragOnce(at, "rotateShape", Vec3f(1, 0, 0), Vec2f(-48, -48));
        EXPECT_NEAR(at.settings->getRotate(), 2 * turned, 3);

        gizmo.activateScaleManipulator();
        dragOnce(at, "grid", Vec3f(2.5F, 2.5F, 0), Vec2f(121, -121));
        EXPECT_NEAR(at.settings->getRepeat().x(), 0.5F, 0.02F);
        EXPECT_NEAR(at.settings->getRepeat().y(), at.settings->getRepeat().x(), kTolerance);
    }
}

TEST(TextureGizmoLoop, FactorsThatAreNoneAreRefusedWithoutLoss)
{
    UVTextureManipulator gizmo;
    TextureScene at(gizmo, TextureScene::Receiver::Editor);
    at.editSettings([](const auto& settings) { settings->setRepeat(Vec2f(2, 4)); });
    gizmo.activateScaleManipulator();
    ASSERT_TRUE(at.scene.send("start", Pnt2f(402, 299)));
    EXPECT_TRUE(at.scene.send("stop", Pnt2f(402, 299)));
    // The shaft begins at the anchor, pixel (400, 300) from the bottom.
    ASSERT_TRUE(at.scene.send("start", Pnt2f(400, 299)));
    EXPECT_TRUE(at.scene.send("process", Pnt2f(400, 299)));
    for (const Pnt2f& to : { Pnt2f(405, 290), Pnt2f(400, 299), Pnt2f(395, 310) }) {
        EXPECT_TRUE(at.scene.send("process", to));
        EXPECT_EQ(at.settings->getRepeat(), Vec2f(2, 4));
    }
}

TEST(TextureGizmoLoop, TheTireGizmoStaysUnderThePointer)
{
    for (const bool orthographic : { false, true }) {
        TireProjectionManipulator gizmo;
        TextureScene at(gizmo, TextureScene::Receiver::Editor);
        nbMaterialPreview preview;
        at.edit(at.parentCore(), [](const auto& parent) { parent->setScale(Vec3f(2, 2, 2)); });
        at.edit(at.core(), [](const auto& node) { node->setRotation(Vec3f(0, 20, 10)); });
        at.editSettings([](const auto& settings) {
            settings->setTireScaleHeight(1.2F);
            settings->setTireScaleU(0.3F);
        });
        at.look(Camera::Oblique, orthographic);

        gizmo.activateScaleManipulator();

        const struct
        {
            const char* handle;
            Vec2f offsetPx;
        } drags[] = { { "radiusShape", { -12, 18 } },
                      { "heightShape", { 25, 5 } },
                      { "oppositeHeightShape", { -25, -5 } },
                      { "scaleUShape", { -5, 60 } } };

        for (const auto& row : drags) {
            ASSERT_TRUE(at.grabAt(row.handle, at.originOf(row.handle))) << row.handle;
            const Pnt2f before = at.scene.pixelOf(at.originOf(row.handle));
            EXPECT_TRUE(at.drag.dragBy(row.offsetPx));
            const Vec2f went = at.scene.pixelOf(at.originOf(row.handle)) - before;
            EXPECT_GT(went.length(), 10.0F) << row.handle;
            if (std::string(row.handle) != "scaleUShape") {
                expectUnderPointer(went, row.offsetPx, row.handle);
            }
            EXPECT_TRUE(preview.isPaused());
            EXPECT_TRUE(at.drag.release());
            EXPECT_FALSE(preview.isPaused());
        }
        EXPECT_FALSE(at.settings->getTireAutoParameter()) << "set by hand";

        gizmo.activateTranslateManipulator();
        const Pnt2f before = at.scene.pixelOf(at.onHandle("yaShape", Vec3f(0, 1.9F, 0)));
        ASSERT_TRUE(at.grab("yaShape", Vec3f(0, 1.9F, 0)));
        EXPECT_TRUE(at.drag.dragBy(Vec2f(0, -50)));
        const Vec2f went = at.scene.pixelOf(at.onHandle("yaShape", Vec3f(0, 1.9F, 0))) - before;
        expectUnderPointer(went, Vec2f(0, -50), "yaShape");
        EXPECT_TRUE(at.drag.release());
    }
}

}  // namespace nbec::manipulator::test
