// SPDX-License-Identifier: MIT
#include "manipulator/detail/PlateFrame.h"

#include <gtest/gtest.h>

#include <cmath>

namespace nbec::manipulator::detail {
namespace {

constexpr PlateView kView { 800, 600, 1.0F };
constexpr float kTolerancePx = 1e-3F;

PlateFrame makeFrame(float x, float y, float width, float height, float rotation = 0.0F)
{
    PlateFrame frame;
    frame.centre = osg::Pnt2f(x, y);
    frame.size = osg::Vec2f(width, height);
    frame.rotation = rotation;
    return frame;
}

::testing::AssertionResult isAt(const osg::Pnt2f& point, float x, float y)
{
    if (std::hypot(point.x() - x, point.y() - y) <= kTolerancePx) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure()
        << "(" << point.x() << ", " << point.y() << ") is not (" << x << ", " << y << ")";
}

TEST(PlateFrame, CornersBelongToTheFramesOwnAxes)
{
    const PlateFrame upright = makeFrame(400, 300, 200, 100);
    EXPECT_TRUE(isAt(cornerOfFrame(upright, PlateCorner::LowerLeft), 300, 350));
    EXPECT_TRUE(isAt(cornerOfFrame(upright, PlateCorner::UpperRight), 500, 250));
    // A quarter turn counter-clockwise takes the lower left corner to the lower right of the
    // screen.
    const PlateFrame turned = makeFrame(400, 300, 200, 100, 90);
    EXPECT_TRUE(isAt(cornerOfFrame(turned, PlateCorner::LowerLeft), 450, 400));
    EXPECT_TRUE(isAt(cornerOfFrame(turned, PlateCorner::UpperLeft), 350, 400));
}

TEST(PlateFrame, SmallFramesAreDrawnLargeEnoughToGrab)
{
    const PlateView dense { 800, 600, 2.0F };
    const PlateHandles handles = layOutHandles(makeFrame(400, 300, 4, 200), PlateArm::Above, dense);
    EXPECT_FLOAT_EQ(handles.frame.size.x(), 2 * kPlateLeastSide);
    EXPECT_FLOAT_EQ(handles.frame.size.y(), 200);
    EXPECT_TRUE(isAt(handles.knob, 400, 300 - 100 - 2 * kPlateArmLength));
}

TEST(PlateFrame, TheArmStandsWhereItsKnobIsSeen)
{
    struct Row
    {
        const char* name;
        PlateFrame frame;
        PlateArm arm;
        float knobX, knobY;
    };

    const Row rows[] = {
        { "room above", makeFrame(400, 300, 100, 100), PlateArm::Above, 400,
          250 - kPlateArmLength },
        { "at the top", makeFrame(400, 50, 100, 100), PlateArm::Below, 400, 100 + kPlateArmLength },
        { "fills the view", makeFrame(400, 300, 800, 600), PlateArm::Inside, 400, kPlateArmLength },
        { "turned at the left", makeFrame(50, 300, 100, 100, 90), PlateArm::Below,
          100 + kPlateArmLength, 300 },
        { "out of view", makeFrame(-400, 300, 100, 100), PlateArm::Above, -400,
          250 - kPlateArmLength },
    };
    for (const Row& row : rows) {
        EXPECT_EQ(chooseArm(row.frame, kView), row.arm) << row.name;
        EXPECT_TRUE(isAt(layOutHandles(row.frame, row.arm, kView).knob, row.knobX, row.knobY))
            << row.name;
    }
}

TEST(PlateFrame, BoxesOfAFrameBeyondTheViewArePulledIn)
{
    const float inset = kPlateBoxSize / 2;
    const PlateHandles filled =
        layOutHandles(makeFrame(400, 300, 800, 900), PlateArm::Inside, kView);
    EXPECT_TRUE(isAt(filled.corners[0], inset, 600 - inset));
    EXPECT_TRUE(isAt(filled.corners[3], 800 - inset, inset));
    // Partly out of view they would run into each other, so they stay.
    const PlateHandles leaving = layOutHandles(makeFrame(0, 300, 90, 90), PlateArm::Above, kView);
    EXPECT_TRUE(isAt(leaving.corners[0], -45, 345));
}

TEST(PlateFrame, MovingSnapsBoxesToEdgesAndCentreLines)
{
    struct Row
    {
        const char* name;
        PlateFrame frame;
        osg::Vec2f pull;  ///< by the pointer
        osg::Vec2f offset;
        bool hasVertical, hasHorizontal;
        float x, y;
    };

    const float diagonal = 50.0F * std::sqrt(2.0F);
    const Row rows[] = {
        { "nothing near",
          makeFrame(200, 200, 100, 60),
          { 30, 40 },
          { 30, 40 },
          false,
          false,
          0,
          0 },
        { "centre to centre",
          makeFrame(200, 200, 100, 60),
          { 193, 107 },
          { 200, 100 },
          true,
          true,
          400,
          300 },
        { "left edge", makeFrame(200, 200, 100, 60), { -142, 0 }, { -150, 0 }, true, false, 0, 0 },
        { "beyond the reach",
          makeFrame(200, 200, 100, 60),
          { -141, 0 },
          { -141, 0 },
          false,
          false,
          0,
          0 },
        { "right and bottom",
          makeFrame(200, 200, 100, 60),
          { 551, 374 },
          { 550, 370 },
          true,
          true,
          800,
          600 },
        { "edge to centre line",
          makeFrame(200, 200, 100, 60),
          { 147, 0 },
          { 150, 0 },
          true,
          false,
          400,
          0 },
        { "corner of a turned one",
          makeFrame(200, 200, 100, 100, 45),
          { -125, 0 },
          { diagonal - 200, 0 },
          true,
          false,
          0,
          0 },
    };
    for (const Row& row : rows) {
        PlateGuides guides;
        const PlateChange change = moveFrame(row.frame, row.pull, kView, &guides);
        EXPECT_NEAR(change.offsetPx.x(), row.offset.x(), kTolerancePx) << row.name;
        EXPECT_NEAR(change.offsetPx.y(), row.offset.y(), kTolerancePx) << row.name;
        EXPECT_EQ(guides.hasVertical, row.hasVertical) << row.name;
        EXPECT_EQ(guides.hasHorizontal, row.hasHorizontal) << row.name;
        EXPECT_FLOAT_EQ(guides.x, row.x) << row.name;
        EXPECT_FLOAT_EQ(guides.y, row.y) << row.name;
        EXPECT_EQ(moveFrame(row.frame, row.pull, kView, nullptr).offsetPx, row.pull) << row.name;
        EXPECT_EQ(change.scaleFactor, 1.0F);
        EXPECT_EQ(change.rotation, 0.0F);
    }
}

TEST(PlateFrame, ScalingKeepsTheOppositeCornerOrTheCentre)
{
    const PlateFrame start = makeFrame(400, 300, 160, 120, 30);
    for (std::size_t i = 0; i < kPlateCornerCount; ++i) {
        const auto corner = static_cast<PlateCorner>(i);
        const auto other = static_cast<PlateCorner>(kPlateCornerCount - 1 - i);
        const osg::Pnt2f fixed = cornerOfFrame(start, other);
        const osg::Vec2f diagonal = cornerOfFrame(start, corner) - fixed;
        const osg::Vec2f across(diagonal.y(), -diagonal.x());

        const PlateChange change =
            scaleFrame(start, corner, false, diagonal * 0.5F + across * 0.1F, kView, nullptr);
        const PlateFrame scaled = changedFrame(start, change);
        EXPECT_NEAR(change.scaleFactor, 1.5F, 1e-5F);
        EXPECT_TRUE(isAt(cornerOfFrame(scaled, other), fixed.x(), fixed.y()));
        const osg::Pnt2f reached = fixed + diagonal * 1.5F;
        EXPECT_TRUE(isAt(cornerOfFrame(scaled, corner), reached.x(), reached.y()));

        const PlateChange central =
            scaleFrame(start, corner, true, diagonal * 0.5F, kView, nullptr);
        EXPECT_NEAR(central.scaleFactor, 2.0F, 1e-5F) << "half the diagonal from the centre";
        EXPECT_EQ(central.offsetPx, osg::Vec2f(0, 0));
    }
}

TEST(PlateFrame, ScalingNeverVanishesOrTurnsOver)
{
    const PlateFrame start = makeFrame(400, 300, 160, 120);
    const PlateChange least =
        scaleFrame(start, PlateCorner::UpperRight, false, osg::Vec2f(-900, 900), kView, nullptr);
    EXPECT_FLOAT_EQ(least.scaleFactor * 160, 4);
    const PlateFrame tiny = makeFrame(400, 300, 2, 1);
    EXPECT_FLOAT_EQ(
        scaleFrame(tiny, PlateCorner::UpperRight, false, osg::Vec2f(-9, 9), kView, nullptr)
            .scaleFactor,
        1)
        << "what is smaller yet does not jump";
    const PlateFrame empty = makeFrame(400, 300, 0, 0);
    EXPECT_EQ(scaleFrame(empty, PlateCorner::UpperRight, false, osg::Vec2f(9, 9), kView, nullptr),
              PlateChange());
}

TEST(PlateFrame, AScaledCornerSnapsAlongItsDiagonal)
{
    // The upper right corner starts at (500, 200) and goes up right along (1, -1).
    const PlateFrame start = makeFrame(450, 250, 100, 100);
    PlateGuides guides;
    const PlateChange change =
        scaleFrame(start, PlateCorner::UpperRight, false, osg::Vec2f(196, -196), kView, &guides);
    EXPECT_NEAR(change.scaleFactor, 3.0F, 1e-5F) << "the upper edge is 200 pixels away";
    EXPECT_TRUE(guides.hasHorizontal);
    EXPECT_EQ(guides.y, 0.0F);
    EXPECT_FALSE(guides.hasVertical);

    PlateGuides none;
    const osg::Vec2f far(190, -190);  // 14 pixels along the diagonal
    EXPECT_NEAR(scaleFrame(start, PlateCorner::UpperRight, false, far, kView, &none).scaleFactor,
                2.9F, 1e-5F);
    EXPECT_FALSE(none.hasHorizontal);
}

TEST(PlateFrame, TurnsAreCounterClockwiseAndCountWholeOnes)
{
    const osg::Pnt2f centre(400, 300);
    const osg::Pnt2f right(500, 300);
    double angle = 0.0;
    EXPECT_TRUE(turnBetween(centre, right, osg::Pnt2f(400, 200), angle));
    EXPECT_NEAR(angle, 90.0, 1e-9) << "from right to up";
    angle = 350.0;
    EXPECT_TRUE(turnBetween(centre, right, osg::Pnt2f(500, 299), angle));
    EXPECT_NEAR(angle, 360.0 + 0.573, 1e-3);
    angle = 77.0;
    EXPECT_FALSE(turnBetween(centre, right, osg::Pnt2f(400.3F, 300), angle));
    EXPECT_EQ(angle, 77.0);
}

TEST(PlateFrame, SnappedTurnsEndOnMultiplesOfFifteenDegrees)
{
    const PlateFrame start = makeFrame(400, 300, 100, 100, 7);
    EXPECT_FLOAT_EQ(turnFrame(start, 20, false).rotation, 20);
    EXPECT_FLOAT_EQ(turnFrame(start, 20, true).rotation, 23) << "30 in all";
    EXPECT_FLOAT_EQ(turnFrame(start, -16, true).rotation, -22) << "-15 in all";
}

}  // namespace
}  // namespace nbec::manipulator::detail
