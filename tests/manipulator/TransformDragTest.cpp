// SPDX-License-Identifier: MIT
// What drags of the transform gizmo compute, with numbers worked out by hand.
#include "manipulator/transform/TransformDrag.h"

#include <gtest/gtest.h>

namespace nbec::manipulator::transform::test {

namespace {

using osg::Pnt3f;
using osg::Vec3f;

constexpr float kHalfPi = 1.57079633F;
const osg::Quaternion kQuarterTurn(Vec3f(0, 0, 1), kHalfPi);

osg::Matrix moved(float x, float y, float z)
{
    osg::Matrix matrix;
    matrix.setTranslate(x, y, z);
    return matrix;
}

bool isNear(const Vec3f& found, const Vec3f& expected)
{
    return found.equals(expected, 1e-5F);
}

}  // namespace

TEST(TransformDrag, OffsetsSnapOnTheirLength)
{
    EXPECT_TRUE(isNear(withSnappedLength(Vec3f(0, 3, 4), 3), Vec3f(0, 3.6F, 4.8F)));
    EXPECT_EQ(withSnappedLength(Vec3f(0.4F, 0, 0), 1), Vec3f());
    EXPECT_EQ(withSnappedLength(Vec3f(), 1), Vec3f());
}

TEST(TransformDrag, FactorsAreRatiosWithAFloor)
{
    TransformDrag drag;
    drag.inverseScaleFrame = moved(-1, -2, -3);
    drag.scaleAnchor = Vec3f(2, 4, 1e-7F);
    const auto factor = [&drag](ActiveMode handle, const Pnt3f& point, osg::UInt32 up) {
        drag.handle = handle;
        return factorAt(drag, point, up);
    };
    const Pnt3f point(6, 10, 9);
    EXPECT_FLOAT_EQ(factor(ActiveMode::ScaleX, point, 1), 2.5);
    EXPECT_FLOAT_EQ(factor(ActiveMode::ScaleY, point, 1), 2);
    EXPECT_EQ(factor(ActiveMode::ScaleZ, point, 1), 1) << "too near to divide by";
    drag.unit = 1e-2F;
    EXPECT_GT(factor(ActiveMode::ScaleZ, point, 1), 1e6) << "the gizmo is small, too";
    EXPECT_FLOAT_EQ(factor(ActiveMode::ScaleX, Pnt3f(), 1), 0.01);
    EXPECT_FLOAT_EQ(factor(ActiveMode::ScaleUniform, point, 1), 1.1);
    EXPECT_FLOAT_EQ(factor(ActiveMode::ScaleUniform, Pnt3f(0, 4, 0), 1), 0.95);
    EXPECT_FLOAT_EQ(factor(ActiveMode::ScaleUniform, Pnt3f(0, -90, 0), 1), 0.1);
    drag.scaleAnchor = Vec3f(2, 4, 3);
    EXPECT_FLOAT_EQ(factor(ActiveMode::ScaleUniform, point, 2), 1.1);

    EXPECT_NEAR(computeRotation(Pnt3f(0, 2, 0), Pnt3f(5, 0, 3), 0), kHalfPi, 1e-6);
    EXPECT_NEAR(computeRotation(Pnt3f(0, 0, 1), Pnt3f(1, 9, 0), 1), kHalfPi, 1e-6);
    EXPECT_NEAR(computeRotation(Pnt3f(0, 1, 0), Pnt3f(1, 0, 0), 2), -kHalfPi, 1e-6);
}

TEST(TransformDrag, TargetsGoFromTheirStart)
{
    TransformStart start;
    start.translationLocal = Vec3f(1, 0, 0);
    start.translationWorld = Vec3f(0, 1, 0);
    start.pivotLocal = Vec3f(0, 0, 2);
    start.pivotWorld = Vec3f(0, 0, 3);
    start.rotation = kQuarterTurn;
    start.scale = Vec3f(2, 4, 8);
    EXPECT_TRUE(isNear(movedTranslation(start, Vec3f(5, 0, 0), true), Vec3f(1, 5, 0)));
    EXPECT_TRUE(isNear(movedTranslation(start, Vec3f(5, 0, 0), false), Vec3f(5, 1, 0)));
    EXPECT_TRUE(isNear(movedPivot(start, Vec3f(5, 0, 0), true), Vec3f(0, 5, 2)));
    EXPECT_TRUE(isNear(movedPivot(start, Vec3f(5, 0, 0), false), Vec3f(5, 0, 3)));
    EXPECT_TRUE(isNear(scaledBy(start, ActiveMode::ScaleY, 1.5F, 0), Vec3f(2, 6, 8)));
    EXPECT_TRUE(isNear(scaledBy(start, ActiveMode::ScaleZ, 1.6F, 5), Vec3f(2, 4, 15)));
    EXPECT_TRUE(isNear(scaledBy(start, ActiveMode::ScaleUniform, 0.5F, 0), Vec3f(1, 2, 4)));

    // Values go on past whole turns.
    captureRotation(start, nbEulerUtils::fromDegrees(Vec3f(0, 0, 170), 0), Vec3f(0, 0, 3));
    nbEulerAngles angles = start.anglesRad;
    for (int quarter = 1; quarter <= 9; ++quarter) {
        const double turn = static_cast<double>(kHalfPi) * quarter;
        angles = turnedAngles(start, HalfTurn(turn), angles);
        EXPECT_NEAR(nbEulerUtils::toVec3f(nbEulerUtils::toDegrees(angles)).z(),
                    170.0F + 90.0F * static_cast<float>(quarter), 1e-3F);
    }
    captureRotation(start, start.anglesRad, Vec3f());
    angles = turnedAngles(start, HalfTurn(1), start.anglesRad);
    EXPECT_NEAR(angles.z, start.anglesRad.z, 1e-6) << "about no axis";
}

}  // namespace nbec::manipulator::transform::test
