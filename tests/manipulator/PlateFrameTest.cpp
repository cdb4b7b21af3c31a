// SPDX-License-Identifier: MIT
#include "manipulator/plates/PlateFrame.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace nbec::manipulator::plates {
namespace {

const PlateView kView { 800, 600, 1.0F };
constexpr float kTolerancePx = 1e-3F;

PlateFrame makeFrame(float x, float y, float width, float height, float rotation = 0.0F)
{
    PlateFrame frame;
    frame.centre = osg::Pnt2f(x, y);
    frame.size = osg::Vec2f(width, height);
    frame.rotation = rotation;
    return frame;
}

/// Scales a frame by a pull at its upper right corner, whose opposite stays.
PlateChange pullCorner(const PlateFrame& start, const osg::Vec2f& pull, PlateGuides* guides,
                       const PlateView& view = kView)
{
    constexpr std::size_t kCorner = 3;
    return scaleFrame(start, kCorner, false, boxFactor(start, kCorner, false, pull), view, guides);
}

TEST(PlateFrame, ArmAndBoxesAreFreeInEveryView)
{
    std::mt19937 generator(11);
    const auto between = [&](double low, double high) {
        return std::uniform_real_distribution<float>(low, high)(generator);
    };
    for (const PlateView& view : { kView, PlateView { 20, 15, 1 }, PlateView { 800, 30, 1 },
                                   PlateView { 40, 600, 1 }, PlateView { 300, 300, 2 } }) {
        const auto width = static_cast<float>(view.widthPx);
        const auto height = static_cast<float>(view.heightPx);
        for (int i = 0; i < 400; ++i) {
            const float most = i % 2 == 0 ? 1.0F : 4.0F;
            const PlateFrame frame =
                makeFrame(between(-width, 2 * width), between(-height, 2 * height),
                          between(0, most * width), between(0, most * height),
                          i % 3 == 0 ? 90.0F * static_cast<float>(i % 4) : between(-180, 180));
            const PlateStance stance = chooseStance(frame, view);
            const PlateHandles found = layOutHandles(frame, stance, view);
            SCOPED_TRACE(testing::Message() << view.widthPx << " wide, " << i);
            const auto isSeen = [&](const osg::Pnt2f& at, float radius) {
                const float inset = radius * found.unitPx - kTolerancePx;
                return at.x() >= inset && at.x() <= width - inset && at.y() >= inset &&
                    at.y() <= height - inset;
            };
            EXPECT_TRUE(isSeen(found.knob, kPlateKnobRadius));
            const auto box = kPlateBoxSize * found.unitPx;
            const osg::Pnt2f top = pointOfFrame(found.frame, 0, 0);
            EXPECT_GE(std::hypot(found.knob.x() - top.x(), found.knob.y() - top.y()),
                      std::min(found.frame.size.x(), found.frame.size.y()) / 2 + 2 * box);
            for (std::size_t one = 0; one < kPlateCornerCount; ++one) {
                EXPECT_TRUE(!stance.isFitted || isSeen(found.boxes[one], kPlateBoxSize / 2));
                for (std::size_t other = 0; other < one; ++other) {
                    EXPECT_GE((found.boxes[one] - found.boxes[other]).length(), 2 * box);
                }
            }
        }
    }
}

TEST(PlateFrame, TheArmIsWhereItsKnobIsInView)
{
    const std::pair<PlateFrame, PlateArm> rows[] = {
        { makeFrame(400, 300, 200, 100), PlateArm::Above },
        { makeFrame(400, 60, 200, 100), PlateArm::Below },
        { makeFrame(40, 300, 100, 60, 90), PlateArm::Below },
        { makeFrame(760, 300, 100, 60, -90), PlateArm::Below },
        { makeFrame(400, 560, 100, 60, 180), PlateArm::Below },
        { makeFrame(-99, 300, 100, 60), PlateArm::Above },
    };
    for (const auto& [frame, arm] : rows) {
        EXPECT_EQ(chooseStance(frame, kView).arm, arm) << frame.centre << ' ' << frame.rotation;
    }
}

TEST(PlateFrame, MovingSnapsBoxesToEdgesAndCentreLines)
{
    struct Row
    {
        const char* name;
        PlateFrame frame;
        osg::Vec2f pull;  ///< by the pointer
        osg::Vec2f offset;
        PlateGuides guides;
    };

    const PlateFrame flat = makeFrame(200, 200, 100, 60);
    const PlateFrame turned = makeFrame(200, 200, 100, 100, 45);
    const float diagonal = 50.0F * std::sqrt(2.0F);
    const Row rows[] = {
        { "nothing near", flat, { 30, 40 }, { 30, 40 }, {} },
        { "centre to centre", flat, { 193, 107 }, { 200, 100 }, { 400, 300 } },
        { "left edge", flat, { -142, 0 }, { -150, 0 }, { 0 } },
        { "beyond the reach", flat, { -141, 0 }, { -141, 0 }, {} },
        { "right and bottom", flat, { 551, 374 }, { 550, 370 }, { 800, 600 } },
        { "edge to centre line", flat, { 147, 0 }, { 150, 0 }, { 400 } },
        { "corner", turned, { -125, 0 }, { diagonal - 200, 0 }, { 0 } },
    };
    for (const Row& row : rows) {
        PlateGuides guides;
        const PlateChange change = moveFrame(row.frame, row.pull, kView, &guides);
        EXPECT_NEAR(change.offsetPx.x(), row.offset.x(), kTolerancePx) << row.name;
        EXPECT_NEAR(change.offsetPx.y(), row.offset.y(), kTolerancePx) << row.name;
        EXPECT_EQ(guides, row.guides) << row.name;
        EXPECT_EQ(moveFrame(row.frame, row.pull, kView, nullptr).offsetPx, row.pull) << row.name;
        EXPECT_EQ(change.scaleFactor, 1.0F);
        EXPECT_EQ(change.rotation, 0.0F);
    }
}

TEST(PlateFrame, BoxesAndCornersSnapToOtherPlates)
{
    PlateView view = kView;
    view.neighbours.edges[0] = { 505.F, 600.F };
    view.neighbours.centres = { { { 550.F }, { 120.F } } };
    const PlateFrame flat = makeFrame(200, 200, 100, 60);
    PlateGuides guides;
    EXPECT_EQ(moveFrame(flat, { 351, -84 }, view, &guides).offsetPx, osg::Vec2f(350, -80));
    EXPECT_EQ(guides, PlateGuides({ 550, 120 })) << "centre to centre, before edge to edge";
    guides = {};
    EXPECT_EQ(moveFrame(flat, { 253, 0 }, view, &guides).offsetPx, osg::Vec2f(255, 0));
    EXPECT_EQ(guides, PlateGuides({ 505 })) << "right edge to left edge";
    guides = {};
    EXPECT_NEAR(pullCorner(flat, { 250, -150 }, &guides, view).scaleFactor, 3.55F, 1e-5F);
    EXPECT_EQ(guides[0], 505.F);
}

TEST(PlateFrame, AScaledCornerSnapsAlongItsDiagonal)
{
    // The upper right corner starts at (500, 200) and goes up right along (1, -1).
    const PlateFrame start = makeFrame(450, 250, 100, 100);
    PlateGuides guides;
    const PlateChange change = pullCorner(start, osg::Vec2f(196, -196), &guides);
    EXPECT_NEAR(change.scaleFactor, 3.0F, 1e-5F) << "the upper edge is 200 pixels away";
    EXPECT_EQ(guides, (PlateGuides { std::nullopt, 0.0F }));

    PlateGuides none;
    const osg::Vec2f far(190, -190);  // 14 pixels along the diagonal
    EXPECT_NEAR(pullCorner(start, far, &none).scaleFactor, 2.9F, 1e-5F);
    EXPECT_EQ(none, PlateGuides());
}

TEST(PlateFrame, ScalingNeverVanishesOrTurnsOver)
{
    const PlateFrame start = makeFrame(400, 300, 160, 120);
    const PlateChange least = pullCorner(start, osg::Vec2f(-900, 900), nullptr);
    EXPECT_FLOAT_EQ(least.scaleFactor * 160, 4);
    const PlateFrame tiny = makeFrame(400, 300, 2, 1);
    EXPECT_FLOAT_EQ(pullCorner(tiny, osg::Vec2f(-9, 9), nullptr).scaleFactor, 1)
        << "what is smaller yet does not jump";
    const PlateFrame empty = makeFrame(400, 300, 0, 0);
    EXPECT_EQ(pullCorner(empty, osg::Vec2f(9, 9), nullptr), PlateChange());
}

}  // namespace
}  // namespace nbec::manipulator::plates
