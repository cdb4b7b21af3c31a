// SPDX-License-Identifier: MIT
#include "manipulator/detail/TurningAngles.h"

#include <nbOpenSGExt/nbRotationMath.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace nbec::manipulator::detail {

namespace {

nbQuaterniond turnAbout(double x, double y, double z, double angleRad)
{
    const double scale = std::sin(angleRad / 2) / std::sqrt(x * x + y * y + z * z);
    nbQuaterniond result;
    result.setValueAsQuat(x * scale, y * scale, z * scale, std::cos(angleRad / 2));
    return result;
}

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
            nbEulerAngles expected { 3.0, -2.0, 7.0, order };
            TurningAngles angles(expected);
            const double x = number(random);
            const double y = number(random);
            const double z = number(random);
            for (int i = 0; i < 200; ++i) {
                // Mostly small turns, some that are not.
                const double angle = number(random) * (i % 10 == 0 ? 1.0 : 0.05) + 0.03;
                const nbQuaterniond step = turnAbout(x, y, z, angle);
                expected = nbEulerUtils::multiply(nbEulerUtils::EulFromQuat(step, order), expected);
                angles.turn(step);
                ASSERT_LT(greatestDifference(angles.getAngles(), expected), 1e-8);
                ASSERT_LT(greatestDifference(nbEulerUtils::QuatFromEul(angles.getAngles()),
                                             angles.getRotation()),
                          1e-12);
            }
        }
    }
}

TEST(TurningAngles, GoSmoothlyThroughTheEndsOfTheMiddleAngle)
{
    TurningAngles angles(nbEulerAngles { 0.0, 0.0, 0.0, 0 });
    const double step = 0.01;
    for (int i = 1; i <= 1000; ++i) {
        angles.turn(turnAbout(0, 1, 0, step));
        ASSERT_NEAR(angles.getAngles().y, i * step, 1e-9) << "whole turns are counted";
        ASSERT_NEAR(angles.getAngles().x, 0.0, 1e-6);
        ASSERT_NEAR(angles.getAngles().z, 0.0, 1e-6);
    }
}

TEST(TurningAngles, StayExactOverManySteps)
{
    TurningAngles angles(nbEulerAngles { 0.3, 0.4, 0.5, 2 });
    for (int i = 0; i < 100000; ++i) {
        angles.turn(turnAbout(1, 2, 3, i % 2 == 0 ? 0.05 : -0.05));
    }
    EXPECT_LT(greatestDifference(angles.getAngles(), nbEulerAngles { 0.3, 0.4, 0.5, 2 }), 1e-10);
}

}  // namespace nbec::manipulator::detail
