// SPDX-License-Identifier: MIT
#include "manipulator/detail/TurningAngles.h"

#include <nbOpenSGExt/nbRotationMath.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace nbec::manipulator::detail {

namespace {

double greatestDifference(const nbEulerAngles& a, const nbEulerAngles& b)
{
    return std::max({ std::abs(a.x - b.x), std::abs(a.y - b.y), std::abs(a.z - b.z) });
}

/// Of the rotations themselves, as elements of their matrices.
double greatestDifference(const nbQuaterniond& a, const nbQuaterniond& b)
{
    const nbRotationMath::Rows left = nbRotationMath::rotationRows(a);
    const nbRotationMath::Rows right = nbRotationMath::rotationRows(b);
    double greatest = 0.0;
    for (std::size_t i = 0; i < 9; ++i) {
        greatest = std::max(greatest, std::abs(left[i / 3][i % 3] - right[i / 3][i % 3]));
    }
    return greatest;
}

}  // namespace

TEST(TurningAngles, FollowTheRotationAsTheLongWayDoes)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> number(-1.0, 1.0);
    for (int order = 0; order < nbEulerUtils::kOrderCount; ++order) {
        SCOPED_TRACE(nbEulerUtils::getStringFromOrder(order));
        for (int way = 0; way < 50; ++way) {
            const osg::Vec3f axis(static_cast<float>(number(random)),
                                  static_cast<float>(number(random)),
                                  static_cast<float>(number(random)));
            nbEulerAngles expected { 3.0, -2.0, 7.0, order };
            nbQuaterniond rotation = nbEulerUtils::QuatFromEul(expected);
            TurningAngles angles(expected, axis);
            double whole = 0.0;
            for (int i = 0; i < 200; ++i) {
                // Mostly small turns, some that are not.
                const double angle = number(random) * (i % 10 == 0 ? 1.0 : 0.05) + 0.03;
                whole += angle;
                const nbQuaterniond step = turnAbout(axis, angle);
                expected = nbEulerUtils::multiply(nbEulerUtils::EulFromQuat(step, order), expected);
                rotation = nbRotationMath::product(step, rotation);
                angles.turnTo(TurnAngle(whole));
                ASSERT_LT(greatestDifference(angles.getAngles(), expected), 1e-8);
                ASSERT_LT(
                    greatestDifference(nbEulerUtils::QuatFromEul(angles.getAngles()), rotation),
                    1e-12);
            }
        }
    }
}

TEST(TurningAngles, GoSmoothlyThroughTheEndsOfTheMiddleAngle)
{
    TurningAngles angles(nbEulerAngles { 0.0, 0.0, 0.0, 0 }, osg::Vec3f(0.F, 1.F, 0.F));
    const double step = 0.01;
    for (int i = 1; i <= 1000; ++i) {
        angles.turnTo(TurnAngle(i * step));
        ASSERT_NEAR(angles.getAngles().y, i * step, 1e-9) << "whole turns are counted";
        ASSERT_NEAR(angles.getAngles().x, 0.0, 1e-6);
        ASSERT_NEAR(angles.getAngles().z, 0.0, 1e-6);
    }
}

TEST(TurningAngles, StayExactOverManySteps)
{
    const nbEulerAngles start { 0.3, 0.4, 0.5, 2 };
    TurningAngles angles(start, osg::Vec3f(1.F, 2.F, 3.F));
    for (int i = 0; i < 100000; ++i) {
        angles.turnTo(TurnAngle(i % 2 == 0 ? 0.05 : 0.0));
    }
    EXPECT_LT(greatestDifference(angles.getAngles(), start), 1e-10);
}

TEST(TurningAngles, StayAboutAnAxisWithoutLength)
{
    const nbEulerAngles start { 0.3, 0.4, 0.5, 2 };
    TurningAngles angles(start, osg::Vec3f());
    angles.turnTo(TurnAngle(1.0));
    EXPECT_LT(greatestDifference(angles.getAngles(), start), 1e-15);
}

}  // namespace nbec::manipulator::detail
