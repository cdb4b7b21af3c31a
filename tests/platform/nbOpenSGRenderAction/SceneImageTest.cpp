// SPDX-License-Identifier: MIT
// What of a frame is taken from a kept copy, and when one is made.
#include "nbOpenSGRenderAction/SceneImage.h"

#include <gtest/gtest.h>

#include <vector>

#include <ContentStamp.h>

namespace {

using nbrender::FrameStep;
using nbrender::FrameSteps;
using nbrender::PixelBox;
using nbrender::SceneImage;

constexpr std::size_t kFramePixels = 10000;
const PixelBox kSmallBox { 10, 10, 20, 20 };
const PixelBox kWholeBox { 0, 0, 100, 100 };

/// Steps with these stamps; negative ones are handles.
FrameSteps stepsOf(const std::vector<int>& stamps)
{
    FrameSteps steps;
    osg::ContentStamp stamp;
    for (const int number : stamps) {
        stamp.add(static_cast<osg::UInt64>(number));
        steps.push_back({ FrameStep::Kind::Item, 0, number < 0, stamp.get() });
    }
    return steps;
}

class SceneImageTest : public testing::Test
{
protected:
    /// Plans a frame and makes the copy that it wants.
    SceneImage::Plan plan(const std::vector<int>& stamps)
    {
        const FrameSteps steps = stepsOf(stamps);
        const auto pixels = [this](const FrameStep&) { return stepBox; };
        const auto triangles = [this](const FrameStep&) { return trianglesPerStep; };
        const SceneImage::Plan result = image.plan(
            steps, { kFramePixels, hasCopy, PixelBox(), settledSteps, pixels, triangles });
        if (result.kept > result.reused) {
            image.kept(steps, result, kFramePixels, driverKeeps);
            hasCopy = driverKeeps;
        }
        return result;
    }

    SceneImage image;
    PixelBox stepBox = kSmallBox;
    std::size_t trianglesPerStep = 1000;
    std::size_t settledSteps = 0;
    bool hasCopy = false;
    bool driverKeeps = true;
};

TEST_F(SceneImageTest, AChangedBeginningIsDrawnAndKeptWhenItStandsStill)
{
    plan({ 1, 2, -4 });
    plan({ 1, 2, -4 });

    for (const int moving : { 8, 9 }) {
        const SceneImage::Plan frame = plan({ moving, 2, -4 });
        EXPECT_EQ(frame.reused, 0U);
        EXPECT_EQ(frame.kept, 0U);
    }
    EXPECT_EQ(plan({ 9, 2, -4 }).kept, 2U);
    EXPECT_EQ(plan({ 9, 2, -5 }).reused, 2U);
}

TEST_F(SceneImageTest, WhatKeepsChangingIsLeftOutAndJoinsWhenItRests)
{
    plan({ 1, 2, 30, -4 });
    EXPECT_EQ(plan({ 1, 2, 31, -4 }).kept, 2U);
    const SceneImage::Plan still = plan({ 1, 2, 31, -4 });
    EXPECT_EQ(still.reused, 2U);
    EXPECT_EQ(still.kept, 3U);
    EXPECT_EQ(plan({ 1, 2, 31, -5 }).reused, 3U);

    trianglesPerStep = 1;
    plan({ 1, 2, 32, -5 });
    plan({ 1, 2, 32, -5 });
    EXPECT_EQ(plan({ 1, 2, 32, 33, -5 }).kept, 0U) << "a line more is not worth a copy";
}

TEST_F(SceneImageTest, ACopyIsNotUsedWhereItCostsMoreThanDrawing)
{
    stepBox = kWholeBox;
    trianglesPerStep = 10;
    plan({ 1, -2 });
    EXPECT_EQ(plan({ 1, -3 }).kept, 0U);

    trianglesPerStep = 100000;
    EXPECT_EQ(plan({ 1, -4 }).kept, 1U);
}

}  // namespace
