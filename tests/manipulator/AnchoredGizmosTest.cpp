// SPDX-License-Identifier: MIT
// The texture gizmos at an anchor: where they stand and what their drags send, with numbers worked
// out by hand; drags of the tire's stand in TireProjectionManipulatorTest.
#include "tests/manipulator/support/TireScene.h"
#include "tests/platform/support/Edited.h"

namespace nbec::manipulator::test {

namespace {

constexpr float kTolerance = 2e-4F;
const Vec3f kRotation(0.1F, 0.2F, 0.3F);

struct Triplanar : TextureSceneOf<TriplanarTextureManipulator>
{
    Triplanar()
    {
        editSettings([](const auto& values) {
            values->setTriplanarRotation(kRotation);
            values->setTriplanarOffsetU(Vec3f(0.1F, 0.2F, 0.3F));
            values->setTriplanarOffsetV(Vec3f(0.4F, 0.5F, 0.6F));
            values->setTriplanarRepeatU(Vec3f(2, 4, 5));
            values->setTriplanarRepeatV(Vec3f(8, 10, 0.5F));
        });
        gizmo.activateUniversalManipulator();
    }
};

struct UV : TextureSceneOf<UVTextureManipulator>
{
    UV()
    {
        editSettings([](const auto& values) {
            values->setRotate(30);
            values->setOffset(Vec2f(0.25F, 0.5F));
            values->setRepeat(Vec2f(2, 4));
        });
    }

    /// Sends an event at a pixel from the anchor's, y up.
    bool say(const char* event, const Vec2f& px)
    {
        return scene.send(event, Pnt2f(400 + px.x(), 299 - px.y()));
    }
};

using Tire = TireScene;

/// Editor object of a host with values of its own for the component "mine"; throws for "torn".
class Panel : public nbStateChunkBase
{
public:
    using Name = const std::string&;

    bool hasComponent(Name component) const override
    {
        return component == "torn" ? throw component : component == "mine";
    }

    Vec2f getTriplanarOffset(Name, osg::UInt32 axis) const override
    {
        return Vec2f(static_cast<float>(axis), 9);
    }

    Vec2f getTriplanarRepeat(Name, osg::UInt32) const override { return Vec2f(0.5F, 4); }

    Vec2f getOffset(Name) const override { return Vec2f(3, 4); }

    Vec3f getTireCenter(Name) const override { return Vec3f(1, 0.5F, 0); }
};

void expectPair(const SentMessage& sent, const std::string& name, const Vec2f& expected,
                float tolerance = kTolerance)
{
    const Vec2f found = attribute<Vec2f>(sent, name);
    EXPECT_NEAR(found.x(), expected.x(), tolerance) << name << ".u";
    EXPECT_NEAR(found.y(), expected.y(), tolerance) << name << ".v";
}

}  // namespace

TEST(AnchoredGizmos, StandAtTheAnchorAlongTheNodesAxesOrFacingTheViewer)
{
    Triplanar triplanar;
    triplanar.edit(triplanar.parentCore(), [](const auto& of) { of->setScale(Vec3f(2, 2, 2)); });
    triplanar.edit(triplanar.core(), [](const auto& node) {
        node->setRotation(Vec3f(0, 0, 90));
        node->setTranslation(Vec3f(0.5F, 0, 0));
    });
    triplanar.gizmo.setAnchor(triplanar.scene.node, Pnt3f(0.25F, 0, 0));
    EXPECT_TRUE(triplanar.gizmo.getAnchorPosition().equals(Pnt3f(1, 0.5F, 0), kTolerance));
    triplanar.look(Camera::Front, false);
    // Axes turned by the node, size by the distance of the anchor from the eye.
    const float unit = std::sqrt(1.0F + 0.25F + 100.0F) * 45.0F / 672.0F;
    EXPECT_TRUE(
        triplanar.onHandle("xaShape", Vec3f(1, 0, 0)).equals(Pnt3f(1, 0.5F + unit, 0), kTolerance));
    EXPECT_TRUE(
        triplanar.onHandle("ysShape", Vec3f(0, 1, 0)).equals(Pnt3f(1 - unit, 0.5F, 0), kTolerance));
    // A distance whose square is no float.
    triplanar.gizmo.setAnchor(triplanar.scene.node, Pnt3f(0, 1e20F, 0));
    triplanar.gizmo.update(false);
    EXPECT_GT(1e20F, transformOf(triplanar.handle("grid")->getParent())->getScale().x());

    UV uv;
    uv.edit(uv.core(), [](const auto& node) {
        node->setTranslation(Vec3f(1, 0.5F, -3));
        node->setRotation(Vec3f(20, 30, 40));
        node->setScale(Vec3f(2, 1, 3));
    });
    for (const Camera camera : { Camera::Front, Camera::Oblique, Camera::Top }) {
        for (const bool orthographic : { false, true }) {
            uv.look(camera, orthographic);
            const auto root = transformOf(uv.gizmo.getVisualisation()->getChild(0));
            EXPECT_FLOAT_EQ(root->getScale().x(), orthographic ? 1.25F : 45 * 0.03F);
            const Pnt3f anchor = uv.gizmo.getAnchorPosition();
            EXPECT_TRUE(uv.onHandle("xaShape", Vec3f()).equals(anchor, kTolerance));
            const osg::UberCameraPtr eye = uv.scene.widget.getUberCamera();
            const Vec3f right = uv.onHandle("xaShape", Vec3f(1, 0, 0)) - anchor;
            const Vec3f up = uv.onHandle("xaShape", Vec3f(0, 1, 0)) - anchor;
            EXPECT_NEAR(right.dot(eye->getAt() - eye->getFrom()), 0, 1e-3F);
            EXPECT_NEAR(up.dot(eye->getAt() - eye->getFrom()), 0, 1e-3F);
            EXPECT_NEAR(uv.scene.pixelOf(anchor + right).y(), uv.scene.pixelOf(anchor).y(), 0.6F);
        }
    }

    Tire tire;
    tire.edit(tire.core(), [](const auto& node) {
        node->setTranslation(Vec3f(0.3F, 0.2F, 0));
        node->setRotation(Vec3f(0, 30, 20));
        node->setScale(Vec3f(1, 0.5F, 0.5F));
    });
    tire.look(Camera::Oblique, false);

    const std::pair<const char*, Vec3f> rows[] = { { "radiusShape", { 0, 0, -2 } },
                                                   { "heightShape", { 1.5F, 2, 0 } },
                                                   { "oppositeHeightShape", { -1.5F, 2, 0 } },
                                                   { "scaleUShape",
                                                     { 0, 2 * kSin45, 2 * kSin45 } } };

    for (const auto& [name, fromCenter] : rows) {
        EXPECT_TRUE(tire.originOf(name).equals(tire.inWorld(fromCenter), 2e-3F));
    }
    EXPECT_TRUE(tire.onHandle("xaShape", Vec3f()).equals(tire.inWorld(Vec3f()), 2e-3F));
    EXPECT_TRUE(tire.onHandle("radiusRingShape", Vec3f(0, 0, 1))
                    .equals(tire.inWorld(Vec3f(0, 0, 2)), 2e-3F));
}

TEST(AnchoredGizmos, ValuesComeFromMaterialOrEditorObjectInTheOrderOfTheKind)
{
    Panel panel;
    const auto first = [&panel](auto& at, const std::string& component, const char* name) {
        at.gizmo.setMaterialComponent(at.material.get(), component, &panel);
        EXPECT_TRUE(at.grab("yaShape", Vec3f(0, 1.9F, 0)));
        EXPECT_TRUE(at.stepTo(Vec2f()));
        EXPECT_TRUE(at.release());
        for (const SentMessage& sent : at.log) {
            if (sent.message.has(name)) {
                const SentMessage found = sent;
                at.log.clear();
                return found;
            }
        }
        return SentMessage();
    };
    Triplanar triplanar;
    expectPair(first(triplanar, "diffuse", "XOffset"), "XOffset", Vec2f(0.1F, 0.4F));
    expectPair(first(triplanar, "mine", "ZOffset"), "ZOffset", Vec2f(2, 9));
    expectPair(first(triplanar, "torn", "ZOffset"), "ZOffset", Vec2f());
    // Settings of another projection do not count.
    triplanar.editSettings([](const auto& values) { values->setTextureProjectionType(1); });
    expectPair(first(triplanar, "diffuse", "XOffset"), "XOffset", Vec2f());
    UV uv;
    expectPair(first(uv, "diffuse", "offset"), "offset", Vec2f(0.25F, 0.5F));
    expectPair(first(uv, "mine", "offset"), "offset", Vec2f(3, 4));
    expectPair(first(uv, "nobody's", "offset"), "offset", Vec2f());
    Tire tire;
    tire.gizmo.activateTranslateManipulator();
    EXPECT_EQ(attribute<Vec3f>(first(tire, "mine", "center"), "center"), Vec3f(1, 0.5F, 0));
}

TEST(AnchoredGizmos, AnAnchorThatIsDeletedDuringADragLeavesTheHandlesWhereTheyAre)
{
    Triplanar at;
    osg::RefPtr<osg::NodePtr> passing(osg::makeCoredNode<osg::Transform3D>());
    at.gizmo.setAnchor(passing.get(), Pnt3f(0.5F, 0, 0));
    at.look(Camera::Oblique, true);
    ASSERT_TRUE(at.grab("yaShape", Vec3f(0, 1.9F, 0)));
    nbtest::edited(transformOf(passing.get()))->setTranslation(Vec3f(0, 1, 0));
    EXPECT_TRUE(at.stepTo(Vec2f()));
    EXPECT_EQ(at.gizmo.getAnchorPosition(), Pnt3f(0.5F, 1, 0)) << "moved before the first step";
    const Pnt3f place = at.onHandle("yaShape", Vec3f());
    passing = osg::NullFC;
    EXPECT_EQ(at.gizmo.getAnchorNode(), osg::NullFC);
    EXPECT_TRUE(at.stepTo(Vec2f(0, -9))) << "the frame was captured";
    EXPECT_EQ(at.last().name, "label::changedTriplanarManipulator");
    EXPECT_TRUE(at.release());
    EXPECT_EQ(at.onHandle("yaShape", Vec3f()), place);
    ASSERT_TRUE(at.press(at.onHandle("yaShape", Vec3f(0, 1.9F, 0))));
    EXPECT_FALSE(at.stepTo(Vec2f(9, 0))) << "no frame without the anchor's node";
}

// == Triplanar

TEST(TriplanarTextureManipulator, ArrowsLowerTwoOffsetsAndScaleHandlesMultiplyTwoScales)
{
    const struct
    {
        const char* handle;
        Vec3f grab;
        Camera camera;
        Vec2f offsetPx;  ///< 72 along the axis

        struct
        {
            const char* name;
            Vec2f start;
            osg::UInt32 half;  ///< that changes
        } changes[2];
    } rows[] = {
        // clang-format off
        { "xaShape", { 1.9F, 0, 0 }, Camera::Front, { 72, 0 }, { { "YOffset", { 0.2F, 0.5F }, 0 }, { "ZOffset", { 0.3F, 0.6F }, 0 } } },
        { "yaShape", { 0, 1.9F, 0 }, Camera::Front, { 0, -72 }, { { "XOffset", { 0.1F, 0.4F }, 0 }, { "ZOffset", { 0.3F, 0.6F }, 1 } } },
        { "zaShape", { 0, 0, 1.9F }, Camera::Side, { -72, 0 }, { { "XOffset", { 0.1F, 0.4F }, 1 }, { "YOffset", { 0.2F, 0.5F }, 1 } } },
        { "xsShape", { 2.5F, 0, 0 }, Camera::Front, { 72, 0 }, { { "YScale", { 0.25F, 0.1F }, 0 }, { "ZScale", { 0.2F, 2 }, 0 } } },
        { "ysShape", { 0, 2.5F, 0 }, Camera::Front, { 0, -72 }, { { "XScale", { 0.5F, 0.125F }, 0 }, { "ZScale", { 0.2F, 2 }, 1 } } },
        { "zsShape", { 0, 0, 2.5F }, Camera::Side, { -72, 0 }, { { "XScale", { 0.5F, 0.125F }, 1 }, { "YScale", { 0.25F, 0.1F }, 1 } } },
        // clang-format on
    };

    for (const auto& row : rows) {
        for (const bool orthographic : { false, true }) {
            SCOPED_TRACE(row.handle);
            Triplanar at;
            at.look(row.camera, orthographic);
            ASSERT_TRUE(at.grab(row.handle, row.grab));
            EXPECT_TRUE(at.dragBy(row.offsetPx));
            EXPECT_EQ(at.last().message.names(),
                      (Names { row.changes[0].name, row.changes[1].name }));
            const Vec2f from = at.pressed - at.rayPixelOf(Pnt3f(0, 0, 0));
            const float factor = (from + row.offsetPx).dot(row.offsetPx) / from.dot(row.offsetPx);
            for (const auto& change : row.changes) {
                const bool scales = change.name[1] == 'S';
                Vec2f expected = change.start;
                expected[change.half] =
                    scales ? expected[change.half] * factor : expected[change.half] - kStep / 100;
                expectPair(at.last(), change.name, expected, scales ? 1e-3F : 1e-5F);
            }
            // Absolute values: back at the start they are those of the start.
            EXPECT_TRUE(at.dragBy(Vec2f()));
            expectPair(at.last(), row.changes[0].name, row.changes[0].start, 1e-6F);
            expectPair(at.last(), row.changes[1].name, row.changes[1].start, 1e-6F);
        }
    }
}

TEST(TriplanarTextureManipulator, RingsSendRadiansWithTheirAsymmetryAndCanBeTilted)
{
    // grab: 45 degrees up to the right on screen
    // perRadian: what a counter-clockwise turn on screen adds
    const std::tuple<const char*, Camera, Vec3f, Vec3f> rows[] = {
        { "rzShape", Camera::Front, { kDiagonal, kDiagonal, 0 }, { 0, 0, 1 } },
        { "rxShape", Camera::Side, { 0, kDiagonal, -kDiagonal }, { 1, 0, 0 } },
        { "ryShape", Camera::Top, { kDiagonal, 0, -kDiagonal }, { 0, -1, 0 } },
    };

    for (const auto& [handle, camera, grab, perRadian] : rows) {
        for (const bool isTilted : { false, true }) {
            Triplanar at;
            at.gizmo.setRingsTilted(isTilted);
            at.gizmo.activateRotateManipulator();
            at.look(camera, false);
            ASSERT_TRUE(at.grab(handle, grab)) << handle;
            const Vec2f from = at.pressed - at.rayPixelOf(Pnt3f(0, 0, 0));
            for (const Vec2f& offset : { Vec2f(-60, 0), Vec2f(40, 90), Vec2f(-150, 40) }) {
                EXPECT_TRUE(at.dragBy(offset));
                const Vec2f to = from + offset;
                const float turn = -std::atan2(from.x() * to.y() - from.y() * to.x(), from.dot(to));
                EXPECT_EQ(at.last().message.names(), Names { "rotate" });
                expectNear(attribute<Vec3f>(at.last(), "rotate"), kRotation + perRadian * turn,
                           handle, 1e-3F);
            }
        }
    }

    // From the front the ring about y is a line: its own plane is missed, or met far away.
    Triplanar at;
    at.gizmo.activateRotateManipulator();
    at.gizmo.setRingsTilted(true);
    ASSERT_TRUE(at.grab("ryShape", Vec3f(0.5F, 0, 1.41421F)));
    EXPECT_TRUE(at.dragBy(Vec2f(40, 0)));
    // The bead goes from 19.5 to 60.8 degrees: there the ring, of radius 1.5 * 0.67 and seen from
    // 10 away, covers a place 40 px further to the right.
    EXPECT_NEAR(kRotation.y() - attribute<Vec3f>(at.last(), "rotate").y(), 0.72F, 0.02F);
}

TEST(TriplanarTextureManipulator, AShaftIsHitAllTheSameWhileItIsLitAndThinner)
{
    Triplanar at;
    const Pnt2f shaft = at.rayPixelOf(at.onHandle("xsShape", Vec3f(2.3F, 0, 0)));
    for (float px = 0; px < 8; ++px) {
        const Pnt2f beside = shaft + Vec2f(0, px);
        EXPECT_EQ(at.scene.send("hover", beside), at.scene.send("hover", beside)) << px;
    }
}

TEST(TriplanarTextureManipulator, TheBoxInTheMiddleScalesAllAHundredTimesMoreGently)
{
    for (const bool isZUp : { false, true }) {
        Triplanar at;
        at.gizmo.activateRotateScaleManipulator();
        at.look(Camera::Oblique, true);
        const osg::UberCameraPtr camera = at.scene.widget.getUberCamera();
        if (isZUp) {
            nbtest::edited(camera)->setZUp(true);
            camera->setFromAtUp(Pnt3f(2, -6, 3), Pnt3f(0, 0, 0), Vec3f(0, 0, 1));
        }
        at.gizmo.update(false);
        // The upward axis is upright on screen, so its coordinate goes by the pixels up.
        const float from = at.rayPixelOf(Pnt3f(0, 0, 0)).y() - 297.0F;
        ASSERT_TRUE(at.scene.send("start", Pnt2f(401, 297)));
        EXPECT_TRUE(at.scene.send("process", Pnt2f(401, 297)));
        EXPECT_TRUE(at.scene.send("process", Pnt2f(411, 287)));
        const float factor = 1.0F + 0.01F * ((from + 10.0F) / from - 1.0F);
        EXPECT_EQ(at.last().message.names(), (Names { "XScale", "YScale", "ZScale" }));
        expectPair(at.last(), "XScale", Vec2f(0.5F, 0.125F) * factor, 2e-5F);
        expectPair(at.last(), "YScale", Vec2f(0.25F, 0.1F) * factor, 2e-5F);
        expectPair(at.last(), "ZScale", Vec2f(0.2F, 2) * factor, 2e-5F);
    }
}

// == UV; a unit of the gizmo is 48.5 pixels

TEST(UVTextureManipulator, HandlesGoByPixelsFromTheAnchor)
{
    const struct
    {
        const char* name;
        Vec2f grab;  ///< from the anchor
        bool keepAspect;
        Vec2f to;
        const char* attribute;
        Vec2f value;  ///< x of a number
    } steps[] = {
        { "arrow of u", { 92, 0 }, false, { 604, 256 }, "offset", { 1.25F, 0.5F } },
        { "arrow of v", { 0, 92 }, false, { 512, 348 }, "offset", { 0.25F, 1 } },
        { "both offsets", { 10, 10 }, false, { 522, 266 }, "offset", { 1.25F, 1 } },
        { "u", { 121, 0 }, false, { 242, 60 }, "scale", { 1, 0.25F } },
        { "u with aspect", { 121, 0 }, true, { 242, 60 }, "scale", { 1, 0.5F } },
        { "u mirrored", { 121, 0 }, false, { -121, 0 }, "scale", { -0.5F, 0.25F } },
        { "v", { 0, 121 }, false, { 9, 242 }, "scale", { 0.5F, 0.5F } },
        { "v with aspect", { 0, 121 }, true, { 9, 0 }, "scale", { 0, 0 } },
        { "both", { 121, 120 }, false, { 242, 120 }, "scale", { 1, 0.5F } },
        { "both, the greater", { 121, 120 }, false, { 0, 60 }, "scale", { 0.25F, 0.125F } },
        // Degrees, against the pointer.
        { "quarter", { -34, 34 }, false, { -100, -100 }, "rotate", { -60, 0 } },
        { "back", { -34, 34 }, false, { 100, 100 }, "rotate", { 120, 0 } },
        { "to the anchor", { -34, 34 }, false, { 0, 0 }, "rotate", { 30, 0 } },
    };

    for (const auto& step : steps) {
        SCOPED_TRACE(step.name);
        UV uv;
        uv.gizmo.setKeepAspectRatio(step.keepAspect);
        ASSERT_TRUE(uv.say("start", step.grab));
        EXPECT_TRUE(uv.say("process", step.grab));
        EXPECT_TRUE(uv.say("process", step.to));
        EXPECT_EQ(uv.last().message.names(), Names { step.attribute });
        if (std::string(step.attribute) == "rotate") {
            EXPECT_NEAR(attribute<float>(uv.last(), "rotate"), step.value.x(), 1e-3F);
        } else {
            expectPair(uv.last(), step.attribute, step.value);
        }
    }
}

}  // namespace nbec::manipulator::test
