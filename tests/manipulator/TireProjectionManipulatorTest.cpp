// SPDX-License-Identifier: MIT
// Handles and drags in an orthographic view.
#include "manipulator/TireProjectionManipulator.h"

#include "tests/manipulator/support/TextureScene.h"

#include <nbKernel/nbController.h>
#include <nbNotification/NotificationManager.h>

namespace nbec::manipulator::test {

namespace {

using Gizmo = TireProjectionManipulator;
using Active = Gizmo::ActiveMode;

constexpr float kTolerance = 2e-3F;
const char* const kChanged = "label::changedTireManipulator";

struct Tire : TextureSceneOf<Gizmo>
{
    Tire()
    {
        editSettings([](const auto& values) {
            values->setTireCenter(Vec3f(0.5F, 0, 0));
            values->setTireScaleRadius(2);
            values->setTireScaleHeight(3);
            values->setTireScaleU(0.25F);
        });
    }
};

struct DragRow
{
    const char* handle;
    Active active;
    Camera camera;
    Vec3f grab;  ///< from the centre, in the object's space; null of an arrow: at its head
    Vec2f offsetPx;
    const char* attribute;
    Vec3f value;  ///< x of a number
};

void PrintTo(const DragRow& row, std::ostream* out)
{
    *out << row.handle << static_cast<int>(row.camera);
}

class TireDrags : public testing::TestWithParam<DragRow>
{ };

Pnt3f inWorld(const TextureScene& at, const Vec3f& fromCenter)
{
    Pnt3f point(at.settings->getTireCenter() + fromCenter);
    at.scene.node->getToWorld().multMatrixPnt(point);
    return point;
}

constexpr float kSin45 = 0.70710678F;

}  // namespace

TEST_P(TireDrags, SendTheNewValue)
{
    const DragRow& row = GetParam();
    for (const bool isScaled : { false, true }) {
        Tire tire;
        TextureScene& at = tire;
        at.look(row.camera, true);
        if (isScaled) {
            // Half as large in the object, twice as large in the world.
            at.edit(at.parentCore(), [](const auto& parent) { parent->setScale(Vec3f(2, 2, 2)); });
            at.editSettings([](const auto& settings) {
                settings->setTireCenter(Vec3f(0.25F, 0, 0));
                settings->setTireScaleRadius(1);
                settings->setTireScaleHeight(1.5F);
            });
        }
        const float share = isScaled ? 0.5F : 1.0F;
        const bool isArrow = row.grab.length() == 0.0F;
        const Pnt3f from = isArrow ? at.onHandle(row.handle,
                                                 row.value.x() > 0.6F    ? Vec3f(1.9F, 0, 0)
                                                     : row.value.y() > 0 ? Vec3f(0, 1.9F, 0)
                                                                         : Vec3f(0, 0, 1.9F))
                                   : inWorld(at, row.grab * share);
        if (isArrow) {
            tire.gizmo.activateTranslateManipulator();  // the ring may lie in front
        }
        ASSERT_TRUE(at.grabAt(row.handle, from));
        EXPECT_EQ(tire.gizmo.getActiveMode(), row.active);
        EXPECT_EQ(at.takeNames(), kPause);
        EXPECT_TRUE(at.drag.dragBy(row.offsetPx));

        EXPECT_EQ(at.last().name, kChanged);
        EXPECT_EQ(at.last().message.names(), Names { row.attribute });
        EXPECT_EQ(nbController::getModified(), 1);
        if (isArrow) {
            const Vec3f found = attribute<Vec3f>(at.last(), row.attribute);
            EXPECT_TRUE(found.equals(row.value * share, kTolerance))
                << found.x() << ' ' << found.y() << ' ' << found.z();
        } else {
            const bool isPart = row.active == Active::ScaleU;
            const bool isRing = std::string(row.handle) == "radiusRingShape";
            EXPECT_NEAR(attribute<float>(at.last(), row.attribute),
                        row.value.x() * (isPart ? 1.0F : share),
                        isPart       ? 0.02F
                            : isRing ? 0.01F
                                     : kTolerance);
        }
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(TireProjectionManipulator, TireDrags, testing::Values(
    DragRow { "xaShape", Active::TranslateX, Camera::Front, {}, { 72, 9 }, "center", { 0.5F + kStep, 0, 0 } },
    DragRow { "yaShape", Active::TranslateY, Camera::Front, {}, { 9, -72 }, "center", { 0.5F, kStep, 0 } },
    DragRow { "zaShape", Active::TranslateZ, Camera::Side, {}, { -72, 9 }, "center", { 0.5F, 0, kStep } },
    DragRow { "heightShape", Active::ScaleHeight, Camera::Front, { 1.5F, 2, 0 }, { 36, 9 }, "ScaleHeight", { 3 + kStep, 0, 0 } },
    DragRow { "oppositeHeightShape", Active::ScaleHeight, Camera::Front, { -1.5F, 2, 0 }, { 36, 9 }, "ScaleHeight", { 3 - kStep, 0, 0 } },
    DragRow { "radiusShape", Active::ScaleRadius, Camera::Side, { 0, 0, -2 }, { 72, 9 }, "ScaleRadius", { 2 + kStep, 0, 0 } },
    DragRow { "radiusRingShape", Active::ScaleRadius, Camera::Side, { 0, -2, 0 }, { 9, 72 }, "ScaleRadius", { 2 + kStep, 0, 0 } },
    DragRow { "radiusRingShape", Active::ScaleRadius, Camera::Front, { 0, -2, 0 }, { 9, 72 }, "ScaleRadius", { 2 + kStep, 0, 0 } },
    // From 45 degrees beyond the top to 90 degrees.
    DragRow { "scaleUShape", Active::ScaleU, Camera::Side, { 0, 2 * kSin45, 2 * kSin45 }, { -2 * (1 - kSin45) * kPxPerUnit, 2 * kSin45 * kPxPerUnit }, "ScaleU", { 0.5F, 0, 0 } }));

// clang-format on

TEST(TireProjectionManipulator, ShowsTheProjectionInTheNodesSpace)
{
    Tire tire;
    TextureScene& at = tire;
    at.edit(at.core(), [](const auto& node) {
        node->setTranslation(Vec3f(0.3F, 0.2F, 0));
        node->setRotation(Vec3f(0, 30, 20));
        node->setScale(Vec3f(1, 0.5F, 0.5F));
    });
    for (const bool orthographic : { false, true }) {
        at.look(Camera::Oblique, orthographic);
        EXPECT_TRUE(at.onHandle("xaShape", Vec3f()).equals(inWorld(at, Vec3f()), kTolerance));
        EXPECT_TRUE(at.originOf("radiusShape").equals(inWorld(at, Vec3f(0, 0, -2)), kTolerance));
        EXPECT_TRUE(at.originOf("heightShape").equals(inWorld(at, Vec3f(1.5F, 2, 0)), kTolerance));
        EXPECT_TRUE(at.originOf("scaleUShape")
                        .equals(inWorld(at, Vec3f(0, 2 * kSin45, 2 * kSin45)), kTolerance));
        EXPECT_TRUE(at.onHandle("radiusRingShape", Vec3f(0, 0, 1))
                        .equals(inWorld(at, Vec3f(0, 0, 2)), kTolerance));
    }
}

TEST(TireProjectionManipulator, WhatWasSetByHandIsNotFittedAgain)
{
    const Names changedAndResumed = { kChanged, "setMatRenderEnabled", "updateMatRender" };

    const struct
    {
        const char* handle;
        bool isMoved;
        bool wasFitted;
        Names stop;
        bool autoParameter;
    } rows[] = {
        { "radiusShape", true, true, changedAndResumed, false },
        { "scaleUShape", true, true, changedAndResumed, true },
        { "scaleUShape", true, false, changedAndResumed, false },
        { "radiusShape", false, true, { "setMatRenderEnabled", "updateMatRender" }, false },
    };

    for (const auto& row : rows) {
        Tire tire;
        TextureScene& at = tire;
        at.editSettings(
            [&row](const auto& settings) { settings->setTireAutoParameter(row.wasFitted); });
        at.look(Camera::Side, true);
        ASSERT_TRUE(at.grabAt(row.handle, at.originOf(row.handle)));
        if (row.isMoved) {
            EXPECT_TRUE(at.drag.stepTo(Vec2f(5, 5)));
        }
        at.takeNames();
        EXPECT_TRUE(at.drag.release());
        const SentMessage first = at.log.front();
        EXPECT_EQ(at.takeNames(), row.stop) << row.handle;
        if (row.isMoved) {
            EXPECT_EQ(first.message.names(), Names { "autoParameter" });
            EXPECT_EQ(attribute<bool>(first, "autoParameter"), row.autoParameter) << row.handle;
        }
    }
}

TEST(TireProjectionManipulator, LengthsAreToldAndNeverFallBelowAThousandthOfTheirStart)
{
    Tire tire;
    TextureScene& at = tire;
    at.look(Camera::Side, true);
    ASSERT_TRUE(at.grabAt("radiusShape", at.originOf("radiusShape")));
    EXPECT_TRUE(at.drag.stepTo(Vec2f(-290, 0)));
    EXPECT_FLOAT_EQ(attribute<float>(at.last(), "ScaleRadius"), 0.002F);
    EXPECT_TRUE(at.drag.release());
    at.look(Camera::Front, true);
    ASSERT_TRUE(at.grabAt("heightShape", at.originOf("heightShape")));
    EXPECT_TRUE(at.drag.stepTo(Vec2f(72, 0)));
    const auto* const manager = notification::NotificationManager::getInstance();
    ASSERT_EQ(manager->getTextCount(), 1U);
    EXPECT_EQ(manager->getVisibleTexts(800, 600).front().text, "Height (4.99)");
    EXPECT_TRUE(at.drag.stepTo(Vec2f(-390, 0)));
    EXPECT_FLOAT_EQ(attribute<float>(at.last(), "ScaleHeight"), 0.003F);
    EXPECT_TRUE(at.drag.release());
    EXPECT_EQ(manager->getTextCount(), 0U);
}

}  // namespace nbec::manipulator::test
