// SPDX-License-Identifier: MIT
// What drags send, with numbers worked out by hand.
#include "manipulator/TriplanarTextureManipulator.h"
#include "tests/manipulator/support/TextureScene.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUberMaterial/nbStateChunkBase.h>
#include <nbOpenSGUtils/nbEdit.h>

namespace nbec::manipulator::test {

namespace {

using Gizmo = TriplanarTextureManipulator;

constexpr float kTolerance = 2e-4F;
const char* const kChanged = "label::changedTriplanarManipulator";
const Vec3f kOffsetsU(0.1F, 0.2F, 0.3F);
const Vec3f kOffsetsV(0.4F, 0.5F, 0.6F);
const Vec3f kRepeatsU(2, 4, 5);
const Vec3f kRepeatsV(8, 10, 0.5F);
const Vec3f kRotation(0.1F, 0.2F, 0.3F);

void setValues(const osg::ColorComponentSettingsPtr& settings)
{
    settings->setTriplanarRotation(kRotation);
    settings->setTriplanarOffsetU(kOffsetsU);
    settings->setTriplanarOffsetV(kOffsetsV);
    settings->setTriplanarRepeatU(kRepeatsU);
    settings->setTriplanarRepeatV(kRepeatsV);
}

struct Triplanar : TextureSceneOf<Gizmo>
{
    Triplanar()
    {
        editSettings(setValues);
        gizmo.activateUniversalManipulator();
    }
};

void expectPair(const SentMessage& sent, const std::string& name, const Vec2f& expected,
                float tolerance = kTolerance)
{
    const Vec2f found = attribute<Vec2f>(sent, name);
    EXPECT_NEAR(found.x(), expected.x(), tolerance) << name << ".u";
    EXPECT_NEAR(found.y(), expected.y(), tolerance) << name << ".v";
}

/// Offsets or scales that a drag along an axis changes: attribute, its start, and its half.
struct Change
{
    const char* name;
    Vec2f start;
    osg::UInt32 half;
};

struct AxisRow
{
    const char* handle;
    Vec3f grab;
    Camera camera;
    Vec2f offsetPx;  ///< 72 along the axis
    Change changes[2];
};

void PrintTo(const AxisRow& row, std::ostream* out)
{
    *out << row.handle;
}

class TriplanarTranslations : public testing::TestWithParam<AxisRow>
{ };

class TriplanarScales : public testing::TestWithParam<AxisRow>
{ };

/// Editor object of a host with values of its own.
class Panel : public nbStateChunkBase
{
public:
    bool hasComponent(const std::string& component) const override
    {
        return component == "diffuse";
    }

    Vec3f getTriplanarRotation(const std::string& /*component*/) const override
    {
        return Vec3f(1, 2, 3);
    }

    Vec2f getTriplanarOffset(const std::string& /*component*/, osg::UInt32 axis) const override
    {
        return Vec2f(static_cast<float>(axis), 9);
    }

    Vec2f getTriplanarRepeat(const std::string& /*component*/, osg::UInt32 /*axis*/) const override
    {
        return Vec2f(0.5F, 4);
    }
};

}  // namespace

TEST_P(TriplanarTranslations, LowerTwoOffsetsByAHundredthOfTheWay)
{
    const AxisRow& row = GetParam();
    for (const bool orthographic : { false, true }) {
        Triplanar triplanar;
        TextureScene& at = triplanar;
        at.look(row.camera, orthographic);
        ASSERT_TRUE(at.grab(row.handle, row.grab));
        EXPECT_EQ(at.takeNames(), kPause) << "the first step prepares";
        EXPECT_EQ(nbController::getModified(), 0);

        EXPECT_TRUE(at.drag.dragBy(row.offsetPx));
        EXPECT_EQ(at.last().name, kChanged);
        EXPECT_EQ(at.last().message.names(), (Names { row.changes[0].name, row.changes[1].name }));
        EXPECT_EQ(nbController::getModified(), 1);
        for (const Change& change : row.changes) {
            Vec2f expected = change.start;
            expected[change.half] -= 72.0F / kPxPerUnit / 100.0F;
            expectPair(at.last(), change.name, expected, 1e-5F);
        }
        // Absolute values: back at the start they are those of the start.
        EXPECT_TRUE(at.drag.dragBy(Vec2f()));
        expectPair(at.last(), row.changes[0].name, row.changes[0].start, 1e-6F);
        expectPair(at.last(), row.changes[1].name, row.changes[1].start, 1e-6F);
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(TriplanarTextureManipulator, TriplanarTranslations, testing::Values(
    AxisRow { "xaShape", { 1.9F, 0, 0 }, Camera::Front, { 72, 20 }, { { "YOffset", { 0.2F, 0.5F }, 0 }, { "ZOffset", { 0.3F, 0.6F }, 0 } } },
    AxisRow { "yaShape", { 0, 1.9F, 0 }, Camera::Front, { 20, -72 }, { { "XOffset", { 0.1F, 0.4F }, 0 }, { "ZOffset", { 0.3F, 0.6F }, 1 } } },
    AxisRow { "zaShape", { 0, 0, 1.9F }, Camera::Side, { -72, 20 }, { { "XOffset", { 0.1F, 0.4F }, 1 }, { "YOffset", { 0.2F, 0.5F }, 1 } } }));

// clang-format on

TEST_P(TriplanarScales, MultiplyTwoScalesByTheRatioFromTheAnchor)
{
    const AxisRow& row = GetParam();
    for (const bool orthographic : { false, true }) {
        Triplanar triplanar;
        TextureScene& at = triplanar;
        at.look(row.camera, orthographic);
        ASSERT_TRUE(at.grab(row.handle, row.grab));
        EXPECT_TRUE(at.drag.dragBy(row.offsetPx));

        const Vec2f from = at.drag.pressed - at.drag.rayPixelOf(Pnt3f(0, 0, 0));
        const float factor = (from + row.offsetPx).dot(row.offsetPx) / from.dot(row.offsetPx);
        EXPECT_EQ(at.last().message.names(), (Names { row.changes[0].name, row.changes[1].name }));
        for (const Change& change : row.changes) {
            Vec2f expected = change.start;
            expected[change.half] *= factor;
            expectPair(at.last(), change.name, expected, 1e-3F);
        }
        EXPECT_TRUE(at.drag.dragBy(row.offsetPx * -4.0F));
        for (const Change& change : row.changes) {
            Vec2f expected = change.start;
            expected[change.half] *= 0.001F;
            expectPair(at.last(), change.name, expected, 1e-6F);
        }
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(TriplanarTextureManipulator, TriplanarScales, testing::Values(
    AxisRow { "xsShape", { 2.5F, 0, 0 }, Camera::Front, { 72, 0 }, { { "YScale", { 0.25F, 0.1F }, 0 }, { "ZScale", { 0.2F, 2 }, 0 } } },
    AxisRow { "ysShape", { 0, 2.5F, 0 }, Camera::Front, { 0, -72 }, { { "XScale", { 0.5F, 0.125F }, 0 }, { "ZScale", { 0.2F, 2 }, 1 } } },
    AxisRow { "zsShape", { 0, 0, 2.5F }, Camera::Side, { -72, 0 }, { { "XScale", { 0.5F, 0.125F }, 1 }, { "YScale", { 0.25F, 0.1F }, 1 } } }));

// clang-format on

TEST(TriplanarTextureManipulatorDrag, RingsSendRadiansWithTheirAsymmetry)
{
    const struct
    {
        const char* handle;
        Camera camera;
        Vec3f grab;  ///< 45 degrees up to the right on screen
        Vec3f perRadian;  ///< what a counter-clockwise turn on screen adds
    } rows[] = {
        { "rzShape", Camera::Front, { 1.06066F, 1.06066F, 0 }, { 0, 0, 1 } },
        { "rxShape", Camera::Side, { 0, 1.06066F, -1.06066F }, { 1, 0, 0 } },
        { "ryShape", Camera::Top, { 1.06066F, 0, -1.06066F }, { 0, -1, 0 } },
    };

    for (const auto& row : rows) {
        for (const bool isTilted : { false, true }) {
            Triplanar triplanar;
            TextureScene& at = triplanar;
            triplanar.gizmo.setRingsTilted(isTilted);
            triplanar.gizmo.activateRotateManipulator();
            at.look(row.camera, false);
            ASSERT_TRUE(at.grab(row.handle, row.grab)) << row.handle;
            const Pnt2f center = at.drag.rayPixelOf(Pnt3f(0, 0, 0));
            const Vec2f from = at.drag.pressed - center;
            for (const Vec2f& offset : { Vec2f(-60, 0), Vec2f(40, 90), Vec2f(-150, 40) }) {
                EXPECT_TRUE(at.drag.dragBy(offset));
                const Vec2f to = from + offset;
                const float turn = -std::atan2(from.x() * to.y() - from.y() * to.x(), from.dot(to));
                EXPECT_EQ(at.last().message.names(), Names { "rotate" });
                const Vec3f found = attribute<Vec3f>(at.last(), "rotate");
                for (osg::UInt32 i = 0; i < 3; ++i) {
                    EXPECT_NEAR(found[i], kRotation[i] + row.perRadian[i] * turn, 1e-3F)
                        << row.handle << ' ' << i << ' ' << offset.x();
                }
            }
        }
    }
}

TEST(TriplanarTextureManipulatorDrag, RingsSeenFromTheSideCanBeTilted)
{
    // From the front the ring about y is a line: its own plane is missed, or met far away.
    Triplanar triplanar;
    TextureScene& at = triplanar;
    triplanar.gizmo.activateRotateManipulator();
    ASSERT_TRUE(at.grab("ryShape", Vec3f(0.5F, 0, 1.41421F)));
    at.takeNames();
    EXPECT_TRUE(at.drag.dragBy(Vec2f(40, 0)));
    EXPECT_TRUE(at.log.empty() || std::abs(attribute<Vec3f>(at.last(), "rotate").y()) < 3.5F);
    EXPECT_TRUE(at.drag.release());

    triplanar.gizmo.setRingsTilted(true);
    ASSERT_TRUE(at.grab("ryShape", Vec3f(0.5F, 0, 1.41421F)));
    EXPECT_TRUE(at.drag.dragBy(Vec2f(40, 0)));
    // A turn by the right hand, about 40 px over the ring's radius of 1.5 * 0.67 world units.
    const float turned = kRotation.y() - attribute<Vec3f>(at.last(), "rotate").y();
    EXPECT_NEAR(turned, 0.55F, 0.15F);
}

TEST(TriplanarTextureManipulatorDrag, TheBoxInTheMiddleScalesAllAHundredTimesMoreGently)
{
    for (const bool isZUp : { false, true }) {
        Triplanar triplanar;
        TextureScene& at = triplanar;
        triplanar.gizmo.activateRotateScaleManipulator();
        at.look(Camera::Oblique, true);
        const osg::UberCameraPtr camera = at.scene.widget.getUberCamera();
        if (isZUp) {
            const nbEdit edit(camera, osg::FieldBits::AllFields);
            camera->setZUp(true);
            camera->setFromAtUp(Pnt3f(2, -6, 3), Pnt3f(0, 0, 0), Vec3f(0, 0, 1));
        }
        triplanar.gizmo.update(false);
        // The upward axis is upright on screen, so its coordinate goes by the pixels up.
        const Pnt2f center = at.drag.rayPixelOf(Pnt3f(0, 0, 0));
        ASSERT_TRUE(at.scene.send("start", Pnt2f(401, 297)));
        ASSERT_EQ(triplanar.gizmo.getActiveMode(), Gizmo::ActiveMode::ScaleUniform);
        EXPECT_TRUE(at.scene.send("process", Pnt2f(401, 297)));
        EXPECT_TRUE(at.scene.send("process", Pnt2f(411, 287)));

        const float from = center.y() - 297.0F;
        const float factor = 1.0F + 0.01F * ((from + 10.0F) / from - 1.0F);
        EXPECT_EQ(at.last().message.names(), (Names { "XScale", "YScale", "ZScale" }));
        expectPair(at.last(), "XScale", Vec2f(0.5F, 0.125F) * factor, 1e-5F);
        expectPair(at.last(), "YScale", Vec2f(0.25F, 0.1F) * factor, 1e-5F);
        expectPair(at.last(), "ZScale", Vec2f(0.2F, 2) * factor, 1e-5F);
    }
}

TEST(TriplanarTextureManipulatorDrag, ValuesComeFromTheEditorObjectBeforeTheMaterial)
{
    Triplanar triplanar;
    TextureScene& at = triplanar;
    Panel panel;
    triplanar.gizmo.setGUI(&panel);
    EXPECT_EQ(triplanar.gizmo.getGUI(), &panel);
    ASSERT_TRUE(at.grab("xaShape", Vec3f(1.9F, 0, 0)));
    EXPECT_TRUE(at.drag.stepTo(Vec2f()));
    expectPair(at.last(), "YOffset", Vec2f(1, 9), 1e-6F);
    EXPECT_TRUE(at.drag.release());
    ASSERT_TRUE(at.grab("xsShape", Vec3f(2.5F, 0, 0)));
    EXPECT_TRUE(at.drag.stepTo(Vec2f()));
    expectPair(at.last(), "YScale", Vec2f(2, 0.25F), 1e-5F);
    EXPECT_TRUE(at.drag.release());

    // Settings of another projection do not count.
    triplanar.gizmo.setGUI(nullptr);
    at.editSettings([](const auto& settings) {
        settings->setTextureProjectionType(osg::ColorComponentSettings::PlanarProjection);
    });
    ASSERT_TRUE(at.grab("xaShape", Vec3f(1.9F, 0, 0)));
    EXPECT_TRUE(at.drag.stepTo(Vec2f()));
    expectPair(at.last(), "YOffset", Vec2f(), 1e-6F);
}

}  // namespace nbec::manipulator::test
