// SPDX-License-Identifier: MIT
#include <nbOpenSGUtils/nbEulerUtils.h>

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>
#include <string>
#include <tuple>

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kTolerance = 2e-12;

using Axes = std::array<osg::Vec3d, 3>;

const Axes kAxes { osg::Vec3d(1, 0, 0), osg::Vec3d(0, 1, 0), osg::Vec3d(0, 0, 1) };

/// Where the axes are turned to, written out by the letters of the order: the first turns first.
Axes turned(const nbEulerAngles& angles)
{
    const double values[] = { angles.x, angles.y, angles.z };
    Axes axes = kAxes;
    for (const char letter : std::string(nbEulerRotation::getOrderName(angles.order))) {
        const auto about = static_cast<osg::UInt32>(letter - 'x');
        const double cosine = std::cos(values[about]);
        const double sine = std::sin(values[about]);
        for (osg::Vec3d& axis : axes) {
            double& j = axis[(about + 1) % 3];
            double& k = axis[(about + 2) % 3];
            std::tie(j, k) = std::pair(cosine * j - sine * k, sine * j + cosine * k);
        }
    }
    return axes;
}

Axes turned(const nbQuaterniond& rotation)
{
    Axes axes = kAxes;
    for (osg::Vec3d& axis : axes) {
        rotation.multVec(axis, axis);
    }
    return axes;
}

void expectNear(const Axes& actual, const Axes& expected, double tolerance = kTolerance)
{
    for (std::size_t i = 0; i < actual.size(); ++i) {
        EXPECT_LT((actual[i] - expected[i]).length(), tolerance) << "axis " << i;
    }
}

}  // namespace

TEST(nbEulerUtils, AnglesAndQuaternionsGiveOneMatrixInAllOrders)
{
    std::mt19937 random(11);
    std::uniform_real_distribution<double> anyAngle(-3.0 * kPi, 3.0 * kPi);
    for (int i = 0; i < 200; ++i) {
        const int order = i % nbEulerUtils::kOrderCount;
        const nbEulerAngles angles { anyAngle(random), anyAngle(random), anyAngle(random), order };
        const Axes expected = turned(angles);

        const nbQuaterniond quaternion = nbEulerUtils::QuatFromEul(angles);
        expectNear(turned(quaternion), expected);
        for (int other = 0; other < nbEulerUtils::kOrderCount; ++other) {
            expectNear(turned(nbEulerUtils::EulFromQuat(quaternion, other)), expected);
        }
    }
}

TEST(nbEulerUtils, TheMiddleAngleAtItsEndsLosesNothing)
{
    for (int order = 0; order < nbEulerUtils::kOrderCount; ++order) {
        for (const double end : { 90.0, -90.0 }) {
            // Each axis is the middle one of two orders.
            for (std::size_t middle = 0; middle < 3; ++middle) {
                std::array<double, 3> values { 20.0, 35.0, -70.0 };
                values[middle] = end;
                const nbEulerAngles angles =
                    nbEulerUtils::toRadians({ values[0], values[1], values[2], order });
                const nbEulerAngles found =
                    nbEulerUtils::EulFromQuat(nbEulerUtils::QuatFromEul(angles), order);
                expectNear(turned(found), turned(angles), 1e-7);
                const nbEulerAngles near = nbEulerUtils::nearest(found, angles);
                expectNear(turned(near), turned(angles), 1e-7);
                EXPECT_NEAR(near.x, angles.x, 1e-6);
                EXPECT_NEAR(near.y, angles.y, 1e-6);
                EXPECT_NEAR(near.z, angles.z, 1e-6);
            }
        }
    }
}
