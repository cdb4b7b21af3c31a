// SPDX-License-Identifier: MIT
// What drags of texture gizmos compute, with numbers worked out by hand.
#include "manipulator/texture/TextureDragMath.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace nbec::manipulator::texture::test {

namespace {

using osg::Vec3f;

constexpr float kHalfPi = 1.57079633F;
constexpr float kInfinity = std::numeric_limits<float>::infinity();

}  // namespace

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
    const Vec3f x(1, 0, 0);
    const Vec3f y(0, 2, 0);
    const Vec3f z(0, 0, 3);
    const auto turned = [&start](const Vec3f& from, const Vec3f& to, osg::UInt32 axis) {
        return turnedTriplanar(start, axis, turnAbout(from, to, axis).value());
    };

    // A quarter turn by the right hand, and back.
    EXPECT_TRUE(turned(y, z, 0).equals(Vec3f(0.1F + kHalfPi, 0.2F, 0.3F), 1e-6F));
    EXPECT_TRUE(turned(z, y, 0).equals(Vec3f(0.1F - kHalfPi, 0.2F, 0.3F), 1e-6F));
    EXPECT_TRUE(turned(z, x, 1).equals(Vec3f(0.1F, 0.2F - kHalfPi, 0.3F), 1e-6F));
    EXPECT_TRUE(turned(x, z, 1).equals(Vec3f(0.1F, 0.2F + kHalfPi, 0.3F), 1e-6F));
    EXPECT_TRUE(turned(x, y, 2).equals(Vec3f(0.1F, 0.2F, 0.3F + kHalfPi), 1e-6F));
    // Where both directions are one, rounding must not make the angle undefined.
    const Vec3f any(0.1F, 0.7F, 0.3F);
    EXPECT_TRUE(turned(any, any, 2).equals(start, 1e-6F));
    EXPECT_FALSE(turnAbout(any, Vec3f(kInfinity, 0, 0), 2));
}

TEST(TextureDragMath, AnAxisWithoutLengthStillGivesAFrame)
{
    osg::Matrix matrix;
    matrix.setScale(Vec3f(1, 0, 1));
    EXPECT_NEAR(unitFrame(matrix, osg::Pnt3f()).det3(), 1.0F, 1e-6F);
}

}  // namespace nbec::manipulator::texture::test
