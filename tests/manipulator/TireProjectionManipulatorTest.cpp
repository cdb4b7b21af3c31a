// SPDX-License-Identifier: MIT
// What drags of the tire gizmo send, with numbers worked out by hand.
#include "tests/manipulator/support/TireScene.h"

namespace nbec::manipulator::test {

namespace {

using Tire = TireScene;

}  // namespace

TEST(TireProjectionManipulator, DragsSendTheNewValue)
{
    const struct
    {
        const char* handle;
        Camera camera;
        Vec3f grab;  ///< from the centre, in the object's space; of an arrow in its group's
        Vec2f offsetPx;
        const char* attribute;
        Vec3f value;  ///< x of a number
        float tolerance;
        const char* text;
    } rows[] = {
        // clang-format off
        { "xaShape", Camera::Front, { 1.9F, 0, 0 }, { 72, 9 }, "center", { 0.5F + kStep, 0, 0 }, 2e-3F, "Center (1.49, 0.00, 0.00)" },
        { "yaShape", Camera::Front, { 0, 1.9F, 0 }, { 9, -72 }, "center", { 0.5F, kStep, 0 }, 2e-3F, "Center (0.50, 0.99, 0.00)" },
        { "zaShape", Camera::Side, { 0, 0, 1.9F }, { -72, 9 }, "center", { 0.5F, 0, kStep }, 2e-3F, "Center (0.50, 0.00, 0.99)" },
        { "heightShape", Camera::Front, { 1.5F, 2, 0 }, { 36, 9 }, "ScaleHeight", { 3 + kStep, 0, 0 }, 2e-3F, "Height (3.99)" },
        { "oppositeHeightShape", Camera::Front, { -1.5F, 2, 0 }, { 36, 9 }, "ScaleHeight", { 3 - kStep, 0, 0 }, 2e-3F, "Height (2.01)" },
        { "radiusShape", Camera::Side, { 0, 0, -2 }, { 36, 9 }, "ScaleRadius", { 2 + kStep / 2, 0, 0 }, 2e-3F, "Radius (2.50)" },
        { "radiusRingShape", Camera::Side, { 0, -2, 0 }, { 9, 36 }, "ScaleRadius", { 2 + kStep / 2, 0, 0 }, 0.01F, "Radius (2.50)" },
        { "radiusRingShape", Camera::Front, { 0, -2, 0 }, { 9, 36 }, "ScaleRadius", { 2 + kStep / 2, 0, 0 }, 0.01F, "Radius (2.50)" },
        // From 45 degrees beyond the top to 90 degrees.
        { "scaleUShape", Camera::Side, { 0, 2 * kSin45, 2 * kSin45 }, { -2 * (1 - kSin45) * kPxPerUnit, 2 * kSin45 * kPxPerUnit }, "ScaleU", { 0.5F, 0, 0 }, 0.02F, "Scale (0.50)" },
        // clang-format on
    };

    for (const auto& row : rows) {
        for (const bool isScaled : { false, true }) {
            SCOPED_TRACE(row.handle);
            Tire at;
            at.look(row.camera, true);
            if (isScaled) {
                // Half as large in the object, twice as large in the world.
                at.edit(at.parentCore(), [](const auto& of) { of->setScale(Vec3f(2, 2, 2)); });
                at.editSettings([](const auto& values) {
                    values->setTireCenter(Vec3f(0.25F, 0, 0));
                    values->setTireScaleRadius(1);
                    values->setTireScaleHeight(1.5F);
                });
            }
            const bool isArrow = std::string(row.attribute) == "center";
            if (isArrow) {
                at.gizmo.activateTranslateManipulator();  // the ring may lie in front
            }
            ASSERT_TRUE(at.grabAt(row.handle,
                                  isArrow ? at.onHandle(row.handle, row.grab)
                                          : at.inWorld(row.grab * (isScaled ? 0.5F : 1.0F))));
            EXPECT_TRUE(at.dragBy(row.offsetPx));
            EXPECT_EQ(at.last().message.names(), Names { row.attribute });
            if (!isScaled) {
                EXPECT_EQ(HandleScene::texts(), Names { row.text });
            }
            const Vec3f found = isArrow ? attribute<Vec3f>(at.last(), row.attribute)
                                        : Vec3f(attribute<float>(at.last(), row.attribute), 0, 0);
            const bool isPart = std::string(row.attribute) == "ScaleU";
            expectNear(found, row.value * (isScaled && !isPart ? 0.5F : 1.0F), row.handle,
                       row.tolerance);
        }
    }
}

TEST(TireProjectionManipulator, TheEndOfThePictureStaysUnderThePointerAllTheWayRound)
{
    for (const Vec3f& scale : { Vec3f(1, 1, 1), Vec3f(1, 0.5F, 1.25F), Vec3f(1, -1, 1) }) {
        Tire at;
        at.edit(at.core(), [&scale](const auto& node) { node->setScale(scale); });
        at.editSettings([](const auto& values) { values->setTireScaleRadius(1.5F); });
        at.look(Camera::Side, true);
        ASSERT_TRUE(at.grabAt("scaleUShape", at.originOf("scaleUShape")));
        for (const float part : { 0.5F, 0.9F, 1.2F, 1.7F, 2.3F, 1.9F, 1.1F, 0.4F, -0.5F, 0.3F }) {
            const float angle = part * 3.14159265F;
            const Pnt3f end = at.inWorld(Vec3f(0, std::cos(angle), std::sin(angle)) * 1.5F);
            EXPECT_TRUE(at.stepTo(at.rayPixelOf(end) - at.pressed));
            EXPECT_NEAR(attribute<float>(at.last(), "ScaleU"), std::max(part, 0.001F), 0.01F);
        }
    }
}

TEST(TireProjectionManipulator, WhatWasSetByHandIsNotFittedAgain)
{
    const struct
    {
        const char* handle;
        bool isMoved, wasFitted, autoParameter;
    } rows[] = { { "radiusShape", true, true, false },
                 { "scaleUShape", true, true, true },
                 { "scaleUShape", true, false, false },
                 { "radiusShape", false, true, false } };

    for (const auto& row : rows) {
        Tire at;
        at.editSettings(
            [&row](const auto& values) { values->setTireAutoParameter(row.wasFitted); });
        at.look(Camera::Side, true);
        ASSERT_TRUE(at.grabAt(row.handle, at.originOf(row.handle)));
        if (row.isMoved) {
            EXPECT_TRUE(at.stepTo(Vec2f(5, 5)));
        }
        at.log.clear();
        EXPECT_TRUE(at.release());
        EXPECT_EQ(at.log.size(), row.isMoved ? 3U : 2U) << "before the preview's two";
        if (row.isMoved) {
            EXPECT_EQ(at.log.front().message.names(), Names { "autoParameter" });
            EXPECT_EQ(attribute<bool>(at.log.front(), "autoParameter"), row.autoParameter);
        }
    }
}

TEST(TireProjectionManipulator, LengthsNeverFallBelowAThousandthOfTheirStart)
{
    Tire at;
    at.look(Camera::Side, true);
    ASSERT_TRUE(at.grabAt("radiusShape", at.originOf("radiusShape")));
    EXPECT_TRUE(at.stepTo(Vec2f(-290, 0)));
    EXPECT_FLOAT_EQ(attribute<float>(at.last(), "ScaleRadius"), 0.002F);
    EXPECT_TRUE(at.release());
    at.look(Camera::Front, true);
    ASSERT_TRUE(at.grabAt("heightShape", at.originOf("heightShape")));
    EXPECT_TRUE(at.stepTo(Vec2f(-390, 0)));
    EXPECT_FLOAT_EQ(attribute<float>(at.last(), "ScaleHeight"), 0.003F);
}

}  // namespace nbec::manipulator::test
