// SPDX-License-Identifier: MIT
// What drags of texture gizmos compute, with numbers worked out by hand.
#include "manipulator/detail/TextureDragMath.h"

#include <OpenSG/OSGQuaternion.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace nbec::manipulator::detail::test {

namespace {

using osg::Pnt3f;
using osg::Vec2f;
using osg::Vec3f;

constexpr float kHalfPi = 1.57079633F;
constexpr float kInfinity = std::numeric_limits<float>::infinity();

const TriplanarPairs kPairs = { Vec2f(1, 2), Vec2f(3, 4), Vec2f(5, 6) };

void expectPairs(const TriplanarPairs& found, const TriplanarPairs& expected)
{
    for (std::size_t i = 0; i < found.size(); ++i) {
        EXPECT_FLOAT_EQ(found[i].x(), expected[i].x()) << i;
        EXPECT_FLOAT_EQ(found[i].y(), expected[i].y()) << i;
    }
}

}  // namespace

TEST(TextureDragMath, AShiftLowersTheOffsetsOfTheTwoProjectionsThatContainTheAxis)
{
    expectPairs(shiftedOffsets(kPairs, 0, 100), { Vec2f(1, 2), Vec2f(2, 4), Vec2f(4, 6) });
    expectPairs(shiftedOffsets(kPairs, 1, 50), { Vec2f(0.5F, 2), Vec2f(3, 4), Vec2f(5, 5.5F) });
    expectPairs(shiftedOffsets(kPairs, 2, -100), { Vec2f(1, 3), Vec2f(3, 5), Vec2f(5, 6) });
}

TEST(TextureDragMath, AFactorScalesTheTwoProjectionsThatContainTheAxis)
{
    expectPairs(scaledAlong(kPairs, 0, 2), { Vec2f(1, 2), Vec2f(6, 4), Vec2f(10, 6) });
    expectPairs(scaledAlong(kPairs, 1, 2), { Vec2f(2, 2), Vec2f(3, 4), Vec2f(5, 12) });
    expectPairs(scaledAlong(kPairs, 2, 2), { Vec2f(1, 4), Vec2f(3, 8), Vec2f(5, 6) });
    expectPairs(scaledUniformly(kPairs, 2), { Vec2f(2, 4), Vec2f(6, 8), Vec2f(10, 12) });
}

TEST(TextureDragMath, FactorsNeverFallBelowAThousandthAndAreOtherwiseSentAsTheyAre)
{
    EXPECT_FLOAT_EQ(axisScaleFactor(3, 2), 1.5F);
    EXPECT_FLOAT_EQ(axisScaleFactor(0, 2), 0.001F);
    EXPECT_FLOAT_EQ(axisScaleFactor(-1, 2), 0.001F);
    EXPECT_FLOAT_EQ(axisScaleFactor(-3, -2), 1.5F);
    EXPECT_EQ(axisScaleFactor(1, 0), kInfinity);
    EXPECT_TRUE(std::isnan(axisScaleFactor(0, 0)));

    EXPECT_FLOAT_EQ(uniformScaleFactor(3, 1), 1.02F);
    EXPECT_FLOAT_EQ(uniformScaleFactor(0, 1), 0.99F);
    EXPECT_FLOAT_EQ(uniformScaleFactor(-200, 1), 0.001F);
    EXPECT_EQ(uniformScaleFactor(1, 0), kInfinity);
}

TEST(TextureDragMath, TurnsAddAboutXAndZAndSubtractAboutY)
{
    const Vec3f start(0.1F, 0.2F, 0.3F);
    const Vec3f previous(7, 8, 9);
    const Vec3f x(1, 0, 0);
    const Vec3f y(0, 2, 0);
    const Vec3f z(0, 0, 3);

    // A quarter turn by the right hand, and back.
    EXPECT_TRUE(
        turnedTriplanar(start, previous, y, z, 0).equals(Vec3f(0.1F + kHalfPi, 0.2F, 0.3F), 1e-6F));
    EXPECT_TRUE(
        turnedTriplanar(start, previous, z, y, 0).equals(Vec3f(0.1F - kHalfPi, 0.2F, 0.3F), 1e-6F));
    EXPECT_TRUE(
        turnedTriplanar(start, previous, z, x, 1).equals(Vec3f(0.1F, 0.2F - kHalfPi, 0.3F), 1e-6F));
    EXPECT_TRUE(
        turnedTriplanar(start, previous, x, z, 1).equals(Vec3f(0.1F, 0.2F + kHalfPi, 0.3F), 1e-6F));
    EXPECT_TRUE(
        turnedTriplanar(start, previous, x, y, 2).equals(Vec3f(0.1F, 0.2F, 0.3F + kHalfPi), 1e-6F));
    // Where both directions are one, rounding must not make the angle undefined.
    const Vec3f any(0.1F, 0.7F, 0.3F);
    EXPECT_TRUE(turnedTriplanar(start, previous, any, any, 2).equals(start, 1e-6F));
    EXPECT_EQ(turnedTriplanar(start, previous, any, Vec3f(kInfinity, 0, 0), 2), previous);
}

TEST(TextureDragMath, TheFrameHasAxesOfUnitLengthAlsoMirroredOnes)
{
    osg::Matrix matrix;
    matrix.setTransform(Vec3f(1, 2, 3), osg::Quaternion(Vec3f(0, 0, 1), kHalfPi), Vec3f(2, 3, -4));
    const osg::Matrix frame = unitFrame(matrix, Pnt3f(7, 8, 9));
    EXPECT_TRUE(Vec3f(frame[0][0], frame[0][1], frame[0][2]).equals(Vec3f(0, 1, 0), 1e-6F));
    EXPECT_TRUE(Vec3f(frame[1][0], frame[1][1], frame[1][2]).equals(Vec3f(-1, 0, 0), 1e-6F));
    EXPECT_TRUE(Vec3f(frame[2][0], frame[2][1], frame[2][2]).equals(Vec3f(0, 0, -1), 1e-6F));
    EXPECT_TRUE(Vec3f(frame[3][0], frame[3][1], frame[3][2]).equals(Vec3f(7, 8, 9), 1e-6F));

    matrix.setIdentity();
    matrix.setScale(Vec3f(1, 0, 1));
    EXPECT_NEAR(unitFrame(matrix, Pnt3f()).det3(), 1.0F, 1e-6F) << "an axis without length";
}

TEST(TextureDragMath, PicturesOnScreenMoveTurnAndScale)
{
    const Vec2f moved = movedOffset(Vec2f(0.25F, 1), Vec2f(512, -256));
    EXPECT_EQ(moved, Vec2f(1.25F, 0.5F));

    float turn = -1;
    turnPicture(10, Vec2f(5, 0), Vec2f(0, 3), turn);
    EXPECT_NEAR(turn, -80, 1e-4F) << "counter-clockwise subtracts";
    turnPicture(10, Vec2f(5, 0), Vec2f(0, -3), turn);
    EXPECT_NEAR(turn, 100, 1e-4F);
    turnPicture(10, Vec2f(5, 0), Vec2f(0, 0), turn);
    EXPECT_NEAR(turn, 100, 1e-4F) << "the centre has no direction";

    using Axes = ScreenScaling;
    const Vec2f start(3, 5);
    const Vec2f from(10, 20);
    const Vec2f to(20, 30);
    EXPECT_EQ(scaledPicture(start, from, to, Axes::U, false), Vec2f(6, 5));
    EXPECT_EQ(scaledPicture(start, from, to, Axes::U, true), Vec2f(6, 10));
    EXPECT_EQ(scaledPicture(start, from, to, Axes::V, false), Vec2f(3, 7.5F));
    EXPECT_EQ(scaledPicture(start, from, to, Axes::V, true), Vec2f(4.5F, 7.5F));
    EXPECT_EQ(scaledPicture(start, from, to, Axes::Both, false), Vec2f(6, 10));
    EXPECT_EQ(scaledPicture(start, from, Vec2f(-10, 0), Axes::U, false), Vec2f(-3, 5));
    EXPECT_EQ(scaledPicture(start, Vec2f(0, 20), to, Axes::U, false).x(), kInfinity);
    EXPECT_TRUE(std::isnan(scaledPicture(start, Vec2f(), Vec2f(), Axes::V, false).y()));
}

TEST(TextureDragMath, ThePictureOfATireGrowsAtBothEnds)
{
    EXPECT_FLOAT_EQ(grownCircumferencePart(0.25F, 0.5, 0.5 + 0.25 * 2 * kHalfPi), 0.5F);
    // Across the half turn, where angles start again.
    EXPECT_FLOAT_EQ(grownCircumferencePart(1, 3.0, 3.5 - 4 * static_cast<double>(kHalfPi)),
                    1 + 0.5F / (2 * kHalfPi));
    EXPECT_FLOAT_EQ(grownCircumferencePart(0.25F, 0, -2), 0.001F);
}

}  // namespace nbec::manipulator::detail::test
