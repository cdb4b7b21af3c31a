// SPDX-License-Identifier: MIT
// What drags send, with numbers worked out by hand.
#include "tests/manipulator/support/PlanarScene.h"
#include "tests/platform/support/Edited.h"

#include <nbKernel/nbController.h>

namespace nbec::manipulator::test {

namespace {

using Gizmo = PlanarTextureManipulator;

constexpr float kTolerance = 2e-4F;
constexpr float kHalfPi = 1.57079633F;
const char* const kChanged = "label::changedPlanarManipulator";
const Vec3f kTab(2.5F, 0, 0);

/// How projection and object stand.
enum class Setting
{
    Plain,
    Scaled,  ///< projection (2, 3, 0.5)
    Turned,  ///< projection by a quarter turn about z
    Oriented,  ///< the same by its rotation orientation
    BigObject  ///< node twice as big
};

void arrange(PlanarScene& planar, Setting setting)
{
    switch (setting) {
    case Setting::Plain:
        break;
    case Setting::Scaled:
        planar.edit(planar.projection,
                    [](const auto& projection) { projection->setScale(Vec3f(2, 3, 0.5F)); });
        break;
    case Setting::Turned:
        planar.edit(planar.projection,
                    [](const auto& projection) { projection->setRotation(Vec3f(0, 0, 90)); });
        break;
    case Setting::Oriented:
        planar.edit(planar.projection, [](const auto& projection) {
            projection->setRotationOrientation(osg::Quaternion(Vec3f(0, 0, 1), kHalfPi));
        });
        break;
    case Setting::BigObject:
        planar.edit(planar.core(), [](const auto& node) { node->setScale(Vec3f(2, 2, 2)); });
        break;
    }
}

struct TranslateRow
{
    const char* name;
    const char* handle;
    Camera camera;
    bool orthographic;
    Setting setting;
    bool applyRotation;
    Vec3f grab;
    Vec2f offsetPx;
    Vec2f offset;
    Vec3f transVec;
};

void PrintTo(const TranslateRow& row, std::ostream* out)
{
    *out << row.name;
}

class Translations : public testing::TestWithParam<TranslateRow>
{ };

/// A ring's drag in a plane that faces the viewer: angle on screen between the two pixels.
float screenAngle(const Pnt2f& center, const Pnt2f& from, const Pnt2f& to)
{
    const Vec2f a = from - center;
    const Vec2f b = to - center;
    return std::atan2(-(a.x() * b.y() - a.y() * b.x()), a.dot(b));
}

/// Ray of a pixel, at the projection's plane z = 0.
Pnt3f onPlane(const PlanarScene& planar, const Pnt2f& pixel)
{
    osg::Line ray;
    planar.scene.widget.getCamera()->calcViewRay(ray, static_cast<osg::Int32>(pixel.x()),
                                                 static_cast<osg::Int32>(pixel.y()),
                                                 *planar.scene.widget.getViewport());
    Pnt3f point;
    osg::Plane(Vec3f(0, 0, 1), Pnt3f(0, 0, 0)).intersect(ray, point);
    return point;
}

struct ScaleRow
{
    const char* name;
    const char* handle;
    Vec3f grab;
    Camera camera;
    bool keepAspect;
    Vec2f offsetPx;
    Vec3f followed;  ///< 1 for the axes whose scale follows the factor
};

void PrintTo(const ScaleRow& row, std::ostream* out)
{
    *out << row.name;
}

class Scales : public testing::TestWithParam<ScaleRow>
{ };

}  // namespace

TEST_P(Translations, SendOffsetAndVectorSinceTheStart)
{
    const TranslateRow& row = GetParam();
    PlanarScene planar;
    arrange(planar, row.setting);
    planar.gizmo.setApplyProjectionRotationToTranslation(row.applyRotation);
    planar.gizmo.activateTranslateManipulator();
    planar.look(row.camera, row.orthographic);
    ASSERT_TRUE(planar.grab(row.handle, row.grab));

    EXPECT_TRUE(planar.drag.stepTo(Vec2f()));
    EXPECT_EQ(planar.last().name, kChanged);
    EXPECT_EQ(planar.last().message.names(), (Names { "offset", "transVec" }));
    expectNear(attribute<Vec3f>(planar.last(), "transVec"), Vec3f(), "at the start");
    EXPECT_TRUE(planar.drag.dragBy(row.offsetPx));
    const Vec2f offset = attribute<Vec2f>(planar.last(), "offset");
    EXPECT_NEAR(offset.x(), row.offset.x(), kTolerance);
    EXPECT_NEAR(offset.y(), row.offset.y(), kTolerance);
    expectNear(attribute<Vec3f>(planar.last(), "transVec"), row.transVec, "transVec");
    EXPECT_EQ(nbController::getModified(), 0) << "marking is the editor's";
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(PlanarTextureManipulator, Translations, testing::Values(
    TranslateRow { "x", "xaShape", Camera::Front, false, Setting::Plain, false, { 1.9F, 0, 0 }, { 72, 30 }, { kStep, 0 }, { kStep, 0, 0 } },
    TranslateRow { "y", "yaShape", Camera::Front, false, Setting::Plain, false, { 0, 1.9F, 0 }, { 25, -72 }, { 0, kStep }, { 0, kStep, 0 } },
    TranslateRow { "z", "zaShape", Camera::Side, false, Setting::Plain, false, { 0, 0, -1.9F }, { 72, 9 }, { 0, 0 }, { 0, 0, -kStep } },
    TranslateRow { "xy", "xyaShape", Camera::Front, false, Setting::Plain, false, { 0.25F, 0.25F, 0 }, { 72, 36 }, { kStep, -kStep / 2 }, { kStep, -kStep / 2, 0 } },
    TranslateRow { "xy orthographic", "xyaShape", Camera::Front, true, Setting::Scaled, false, { 0.25F, 0.25F, 0 }, { 72, 36 }, { kStep, -kStep / 2 }, { kStep, -kStep / 2, 0 } },
    TranslateRow { "x of a scaled projection", "xaShape", Camera::Front, false, Setting::Scaled, false, { 1.9F, 0, 0 }, { 72, 0 }, { kStep, 0 }, { kStep, 0, 0 } },
    TranslateRow { "x of a turned projection", "xaShape", Camera::Front, false, Setting::Turned, false, { 1.9F, 0, 0 }, { 30, -72 }, { kStep, 0 }, { 0, kStep, 0 } },
    TranslateRow { "x of a turned projection, applied", "xaShape", Camera::Front, true, Setting::Turned, true, { 1.9F, 0, 0 }, { 30, -72 }, { 0, kStep }, { 0, kStep, 0 } },
    TranslateRow { "xy of an oriented projection", "xyaShape", Camera::Front, true, Setting::Oriented, false, { 0.25F, 0.25F, 0 }, { 36, -72 }, { kStep, -kStep / 2 }, { kStep / 2, kStep, 0 } },
    TranslateRow { "x on a big object", "xaShape", Camera::Front, true, Setting::BigObject, false, { 1.9F, 0, 0 }, { 72, 0 }, { kStep / 2, 0 }, { kStep / 2, 0, 0 } }));

// clang-format on

TEST(PlanarTextureManipulatorDrag, RotateSendsTheNegatedAngleSinceTheStart)
{
    for (const Setting setting : { Setting::Plain, Setting::Scaled, Setting::Turned }) {
        PlanarScene planar;
        arrange(planar, setting);
        planar.gizmo.activateRotateManipulator();
        ASSERT_TRUE(planar.grab("rotateShape", Vec3f(0.6F, 0.8F, 0)));
        const Pnt2f center = planar.drag.rayPixelOf(Pnt3f(0, 0, 0));
        const Pnt2f from = planar.drag.pressed;
        // A whole turn in steps: totals, within half a turn either way.
        for (const Vec2f& offset : { Vec2f(-20, -5), Vec2f(-60, 30), Vec2f(-90, 30), Vec2f(-70, 60),
                                     Vec2f(-20, 90), Vec2f(10, 5), Vec2f(0, 0) }) {
            EXPECT_TRUE(planar.drag.stepTo(offset));
            EXPECT_EQ(planar.last().message.names(), Names { "rotate" });
            EXPECT_NEAR(attribute<float>(planar.last(), "rotate"),
                        -screenAngle(center, from, from + offset), 1e-3F)
                << offset.x() << ' ' << offset.y();
        }
    }
    using Mode = Gizmo::ActiveMode;
    EXPECT_FLOAT_EQ(Gizmo::computeRotationAngles(Pnt3f(2, 0, 1), Pnt3f(0, 3, -4), Mode::Rotate),
                    kHalfPi);
    EXPECT_EQ(Gizmo::computeRotationAngles(Pnt3f(2, 0, 1), Pnt3f(0, 3, -4), Mode::ScaleX), 0.0F);
}

TEST_P(Scales, SendTheNewScale)
{
    const ScaleRow& row = GetParam();
    const Vec3f start(2, 3, 0.5F);
    for (const bool orthographic : { false, true }) {
        PlanarScene planar;
        arrange(planar, Setting::Scaled);
        nbtest::edited(planar.settings)->setPlanarProjectionFlags(row.keepAspect ? 1 : 0);
        planar.gizmo.activateScaleManipulator();
        planar.look(row.camera, orthographic);
        ASSERT_TRUE(planar.grab(row.handle, row.grab));
        const Pnt2f center = planar.drag.rayPixelOf(Pnt3f(0, 0, 0));
        EXPECT_TRUE(planar.drag.dragBy(row.offsetPx));

        const Vec2f from = planar.drag.pressed - center;
        const Vec2f to = from + row.offsetPx;
        const float factor = std::abs(row.offsetPx.x()) > std::abs(row.offsetPx.y())
            ? to.x() / from.x()
            : to.y() / from.y();
        Vec3f expected = start;
        for (osg::UInt32 i = 0; i < 3; ++i) {
            expected[i] *= row.followed[i] != 0.0F ? factor : 1.0F;
        }
        const bool clamps = row.followed.z() != 0.0F;
        EXPECT_EQ(planar.last().message.names(),
                  clamps ? (Names { "clamping", "scale" }) : Names { "scale" });
        EXPECT_TRUE(!clamps || attribute<bool>(planar.last(), "clamping"));
        const Vec3f found = attribute<Vec3f>(planar.last(), "scale");
        for (osg::UInt32 i = 0; i < 3; ++i) {
            EXPECT_NEAR(found[i], expected[i], 2e-3F) << i;
        }
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(PlanarTextureManipulator, Scales, testing::Values(
    ScaleRow { "x", "xsShape", kTab, Camera::Front, false, { 60, 9 }, { 1, 0, 0 } },
    ScaleRow { "x smaller, with aspect", "xsShape", kTab, Camera::Front, true, { -60, 9 }, { 1, 1, 0 } },
    ScaleRow { "y", "ysShape", { 0, 2.5F, 0 }, Camera::Front, false, { 9, -60 }, { 0, 1, 0 } },
    ScaleRow { "y with aspect", "ysShape", { 0, 2.5F, 0 }, Camera::Front, true, { 9, -60 }, { 1, 1, 0 } },
    ScaleRow { "z", "zsShape", { 0, 0, -2.5F }, Camera::Side, true, { 60, 9 }, { 0, 0, 1 } }));

// clang-format on

TEST(PlanarTextureManipulatorDrag, UniformScaleGoesByTheGreaterMotionInTheProjection)
{
    PlanarScene planar;
    arrange(planar, Setting::Scaled);
    ASSERT_TRUE(planar.grab("grid", Vec3f()));

    const struct
    {
        Vec2f offsetPx;
        float factor;
    } steps[] = { { { 72, 0 }, 1.0F + kStep / 2 },
                  { { 72, -216 }, 1.0F + kStep },
                  { { -36, 0 }, 1.0F },
                  { { -36, 54 }, 1.0F - kStep / 4 },
                  { { -300, 290 }, 0.001F } };

    for (const auto& step : steps) {
        EXPECT_TRUE(planar.drag.stepTo(step.offsetPx));
        EXPECT_EQ(planar.last().message.names(), Names { "scale" });
        expectNear(attribute<Vec3f>(planar.last(), "scale"),
                   Vec3f(2 * step.factor, 3 * step.factor, 0.5F), "scale");
    }
}

TEST(PlanarTextureManipulatorDrag, ScalesPastTheCentreAreNotMirrored)
{
    PlanarScene planar;
    // The centre lies on a pixel's ray, so that the factor of 0 can be met.
    const Pnt2f middle(380.0F, 290.0F);
    const Pnt3f center = onPlane(planar, middle);
    planar.edit(planar.projection, [&center](const auto& projection) {
        projection->setTranslation(center.subZero());
    });
    const auto scaleAt = [&planar](const Pnt2f& pixel) {
        const Vec2f offset = pixel - planar.drag.pressed;
        EXPECT_TRUE(planar.drag.stepTo(offset));
        return attribute<Vec3f>(planar.last(), "scale");
    };

    const struct
    {
        const char* handle;
        osg::UInt32 axis;
        Vec3f grab;
        Vec2f beyondPx;
    } rows[] = { { "xsShape", 0, kTab, { -7, 0 } }, { "ysShape", 1, { 0, 2.5F, 0 }, { 0, 7 } } };

    for (const auto& row : rows) {
        ASSERT_TRUE(planar.grab(row.handle, row.grab));
        EXPECT_FLOAT_EQ(scaleAt(middle + row.beyondPx)[row.axis], 0.01F) << row.handle;
        EXPECT_EQ(scaleAt(middle)[row.axis], 0.0F) << row.handle;
        EXPECT_FLOAT_EQ(scaleAt(planar.drag.pressed)[row.axis], 1.0F) << row.handle;
        EXPECT_TRUE(planar.drag.release());
    }
    // Deliberate: z does not accept 0.
    planar.edit(planar.projection,
                [](const auto& projection) { projection->setTranslation(Vec3f()); });
    planar.look(Camera::Side, true);
    ASSERT_TRUE(planar.grab("zsShape", Vec3f(0, 0, -2.5F)));
    EXPECT_TRUE(planar.drag.stepTo(Vec2f(-200, 0)));
    EXPECT_FLOAT_EQ(attribute<Vec3f>(planar.last(), "scale").z(), 0.01F);
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
    EXPECT_TRUE(planar.drag.stepTo(Vec2f()));
    expectNear(attribute<Vec3f>(planar.last(), "scale"), Vec3f(2, 4, 1), "object's scale");
}

TEST(PlanarTextureManipulatorDrag, EveryStepComputesFromTheStart)
{
    PlanarScene planar;
    ASSERT_TRUE(planar.grab("xyaShape", Vec3f(0.25F, 0.25F, 0)));
    EXPECT_TRUE(planar.drag.dragBy(Vec2f(40, 20)));
    const Vec3f direct = attribute<Vec3f>(planar.last(), "transVec");

    // The host may move the projection while the drag goes on; the totals stay.
    planar.edit(planar.projection,
                [](const auto& projection) { projection->setTranslation(Vec3f(1, 1, 0)); });
    EXPECT_TRUE(planar.drag.dragBy(Vec2f(-30, 70)));
    EXPECT_TRUE(planar.drag.dragBy(Vec2f(40, 20)));
    EXPECT_EQ(attribute<Vec3f>(planar.last(), "transVec"), direct);
}

TEST(PlanarTextureManipulatorDrag, HoverDoesNotTakeAGrabbedHandleAway)
{
    PlanarScene planar;
    ASSERT_TRUE(planar.grab("xaShape", Vec3f(1.9F, 0, 0)));
    const Pnt2f other = planar.drag.rayPixelOf(planar.onHandle("ysShape", Vec3f(0, 2.5F, 0)));
    EXPECT_TRUE(planar.scene.send("hover", other));
    planar.scene.send("stopHover", other);
    EXPECT_EQ(planar.gizmo.getActiveMode(), Gizmo::ActiveMode::TranslateX);
    EXPECT_TRUE(planar.drag.stepTo(Vec2f(9, 0)));
    EXPECT_EQ(planar.last().name, kChanged);
}

}  // namespace nbec::manipulator::test
