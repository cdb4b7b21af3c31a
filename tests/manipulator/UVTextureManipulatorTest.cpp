// SPDX-License-Identifier: MIT
// Handles and drags; a unit of the gizmo is 48.5 pixels.
#include "manipulator/UVTextureManipulator.h"

#include "tests/manipulator/support/TextureScene.h"

#include <nbKernel/nbController.h>
#include <nbOpenSGUberMaterial/nbStateChunkBase.h>
#include <nbOpenSGUtils/nbEdit.h>

namespace nbec::manipulator::test {

namespace {

using Gizmo = UVTextureManipulator;

constexpr float kTolerance = 1e-4F;
const char* const kChanged = "label::changedUVManipulator";
/// Where the anchor is in the view, y from the bottom.
const Vec2f kAnchorPx(400, 300);

struct UV : TextureSceneOf<Gizmo>
{
    UV()
    {
        editSettings([](const auto& values) {
            values->setRotate(30);
            values->setOffset(Vec2f(0.25F, 0.5F));
            values->setRepeat(Vec2f(2, 4));
        });
    }

    /// Presses at a pixel from the left and bottom, as the anchor's, and sends the first step.
    bool grabPixel(const Vec2f& px)
    {
        return scene.send("start", fromBottom(px)) && scene.send("process", fromBottom(px));
    }

    bool stepPixel(const Vec2f& px) { return scene.send("process", fromBottom(px)); }

    static Pnt2f fromBottom(const Vec2f& px) { return Pnt2f(px.x(), 599 - px.y()); }
};

void expectPair(const SentMessage& sent, const std::string& name, const Vec2f& expected)
{
    const Vec2f found = attribute<Vec2f>(sent, name);
    EXPECT_NEAR(found.x(), expected.x(), kTolerance) << name << ".u";
    EXPECT_NEAR(found.y(), expected.y(), kTolerance) << name << ".v";
}

/// Editor object of a host with values of its own.
class Panel : public nbStateChunkBase
{
public:
    bool hasComponent(const std::string& component) const override { return component == "mine"; }

    osg::Real32 getRotate(const std::string& /*component*/) const override { return 7; }

    Vec2f getOffset(const std::string& /*component*/) const override { return Vec2f(3, 4); }

    Vec2f getRepeat(const std::string& /*component*/) const override { return Vec2f(8, 0.5F); }
};

}  // namespace

TEST(UVTextureManipulator, TheHandlesFaceTheViewerAndKeepTheirSizeOnScreen)
{
    UV uv;
    TextureScene& at = uv;
    at.edit(at.core(), [](const auto& node) {
        node->setTranslation(Vec3f(1, 0.5F, -3));
        node->setRotation(Vec3f(20, 30, 40));
        node->setScale(Vec3f(2, 1, 3));
    });
    const auto rootScale = [&uv] {
        return transformOf(uv.gizmo.getVisualisation()->getChild(0))->getScale().x();
    };
    for (const Camera camera : { Camera::Front, Camera::Oblique, Camera::Top }) {
        for (const bool orthographic : { false, true }) {
            at.look(camera, orthographic);
            EXPECT_FLOAT_EQ(rootScale(), orthographic ? 1.25F : 45 * 0.03F);
            const Pnt3f anchor = uv.gizmo.getAnchorPosition();
            EXPECT_TRUE(at.onHandle("xaShape", Vec3f()).equals(anchor, kTolerance));
            const osg::UberCameraPtr eye = at.scene.widget.getUberCamera();
            const float unit = orthographic ? eye->getNearPlaneDiagonal() / 20
                                            : anchor.dist(eye->getFrom()) * 45 / 672;
            const Vec3f right = at.onHandle("xaShape", Vec3f(1, 0, 0)) - anchor;
            const Vec3f up = at.onHandle("xaShape", Vec3f(0, 1, 0)) - anchor;
            EXPECT_NEAR(right.length(), unit, kTolerance);
            EXPECT_NEAR(up.length(), unit, kTolerance);
            const Vec3f sight = eye->getAt() - eye->getFrom();
            EXPECT_NEAR(right.dot(sight), 0, 1e-3F);
            EXPECT_NEAR(up.dot(sight), 0, 1e-3F);
            EXPECT_NEAR(at.scene.pixelOf(anchor + right).y(), at.scene.pixelOf(anchor).y(), 0.6F);
        }
    }
    // The field of view does not matter to an orthographic view's root.
    at.look(Camera::Front, true);
    at.scene.widget.getUberCamera()->setFov(20);
    uv.gizmo.update(false);
    EXPECT_FLOAT_EQ(rootScale(), 1.25F);
}

TEST(UVTextureManipulator, ArrowsMoveByPixels)
{
    const struct
    {
        const char* handle;
        Vec3f unit;
        Vec2f moves;
    } rows[] = { { "xaShape", { 1.9F, 0, 0 }, { 1, 0 } },
                 { "yaShape", { 0, 1.9F, 0 }, { 0, 1 } },
                 { "xyaShape", { 0.2F, 0.2F, 0 }, { 1, 1 } } };

    for (const auto& row : rows) {
        for (const bool orthographic : { false, true }) {
            UV uv;
            uv.look(Camera::Oblique, orthographic);
            ASSERT_TRUE(uv.grab(row.handle, row.unit)) << row.handle;
            EXPECT_EQ(uv.takeNames(), kPause);
            EXPECT_TRUE(uv.drag.stepTo(Vec2f(512, -256)));
            EXPECT_EQ(uv.last().name, kChanged);
            EXPECT_EQ(uv.last().message.names(), Names { "offset" });
            expectPair(uv.last(), "offset",
                       Vec2f(0.25F + row.moves.x(), 0.5F + 0.5F * row.moves.y()));
            EXPECT_EQ(nbController::getModified(), 0) << "marking is the editor's";
            EXPECT_TRUE(uv.drag.release());
            EXPECT_EQ(uv.takeNames(),
                      (Names { kChanged, "setMatRenderEnabled", "updateMatRender" }));
        }
    }
}

TEST(UVTextureManipulator, TheRingTurnsInDegreesAgainstThePointer)
{
    UV uv;
    uv.gizmo.activateRotateManipulator();
    // A radius of the ring is 48.5 pixels.
    ASSERT_TRUE(uv.grabPixel(kAnchorPx + Vec2f(48, 0)));

    const struct
    {
        Vec2f fromAnchor;
        float rotate;
    } steps[] = { { { 0, 100 }, -60 },    { { 0, -70 }, 120 }, { { 48, 48 }, -15 },
                  { { -7, 0.0F }, -150 }, { { 0, 0 }, -150 },  { { 90, 0 }, 30 } };

    for (const auto& step : steps) {
        EXPECT_TRUE(uv.stepPixel(kAnchorPx + step.fromAnchor));
        EXPECT_EQ(uv.last().message.names(), Names { "rotate" });
        EXPECT_NEAR(attribute<float>(uv.last(), "rotate"), step.rotate, 1e-3F)
            << step.fromAnchor.x() << ' ' << step.fromAnchor.y();
    }
}

TEST(UVTextureManipulator, ScaleHandlesGoByTheRatioOfPixels)
{
    const struct
    {
        const char* name;
        Vec2f grab;  ///< from the anchor
        bool keepAspect;
        Vec2f to;
        Vec2f scale;  ///< of (0.5, 0.25)
    } steps[] = {
        { "u", { 121, 0 }, false, { 242, 60 }, { 1, 0.25F } },
        { "u with aspect", { 121, 0 }, true, { 242, 60 }, { 1, 0.5F } },
        { "u mirrored", { 121, 0 }, false, { -121, 0 }, { -0.5F, 0.25F } },
        { "v", { 0, 121 }, false, { 9, 242 }, { 0.5F, 0.5F } },
        { "v with aspect", { 0, 121 }, true, { 9, 0 }, { 0, 0 } },
        { "both", { 121, 120 }, false, { 242, 120 }, { 1, 0.5F } },
        { "both, the greater", { 121, 120 }, false, { 0, 60 }, { 0.25F, 0.125F } },
    };

    for (const auto& step : steps) {
        UV uv;
        uv.gizmo.setKeepAspectRatio(step.keepAspect);
        uv.gizmo.activateScaleManipulator();
        ASSERT_TRUE(uv.grabPixel(kAnchorPx + step.grab)) << step.name;
        EXPECT_TRUE(uv.stepPixel(kAnchorPx + step.to));
        EXPECT_EQ(uv.last().message.names(), Names { "scale" });
        expectPair(uv.last(), "scale", step.scale);
    }
}

TEST(UVTextureManipulator, ValuesComeFromTheMaterialThenTheEditorObject)
{
    UV uv;
    Panel panel;
    const osg::UberMaterialPtr material = uv.material.get();
    uv.gizmo.setGUI(&panel);
    ASSERT_TRUE(uv.grab("xaShape", Vec3f(1.9F, 0, 0)));
    EXPECT_TRUE(uv.drag.stepTo(Vec2f()));
    expectPair(uv.last(), "offset", Vec2f(0.25F, 0.5F));
    EXPECT_TRUE(uv.drag.release());

    uv.gizmo.setMaterialComponent(material, "mine", &panel);
    ASSERT_TRUE(uv.grab("xaShape", Vec3f(1.9F, 0, 0)));
    EXPECT_TRUE(uv.drag.stepTo(Vec2f()));
    expectPair(uv.last(), "offset", Vec2f(3, 4));
    EXPECT_TRUE(uv.drag.release());

    uv.gizmo.setMaterialComponent(material, "nobody's", &panel);
    uv.gizmo.activateScaleManipulator();
    ASSERT_TRUE(uv.grabPixel(kAnchorPx + Vec2f(121, 0)));
    EXPECT_TRUE(uv.stepPixel(kAnchorPx + Vec2f(121, 0)));
    expectPair(uv.last(), "scale", Vec2f(1, 1));
}

}  // namespace nbec::manipulator::test
