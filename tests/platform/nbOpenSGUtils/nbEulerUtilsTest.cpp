// SPDX-License-Identifier: MIT
#include <nbOpenSGUtils/nbEulerUtils.h>

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kTolerance = 1e-12;

using Rows = std::array<std::array<double, 3>, 3>;

/// Turn about one axis, written out.
Rows axisTurn(std::size_t axis, double angle)
{
    Rows rows { { { 1, 0, 0 }, { 0, 1, 0 }, { 0, 0, 1 } } };
    const std::size_t j = (axis + 1) % 3;
    const std::size_t k = (axis + 2) % 3;
    rows[j][j] = rows[k][k] = std::cos(angle);
    rows[k][j] = std::sin(angle);
    rows[j][k] = -std::sin(angle);
    return rows;
}

Rows product(const Rows& a, const Rows& b)
{
    Rows result {};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            for (std::size_t i = 0; i < 3; ++i) {
                result[row][column] += a[row][i] * b[i][column];
            }
        }
    }
    return result;
}

/// The matrix of angles, by the letters of their order: the first turns first.
Rows matrixOf(const nbEulerAngles& angles)
{
    const std::array<double, 3> values { angles.x, angles.y, angles.z };
    Rows result = axisTurn(0, 0.0);
    for (const char letter : nbEulerUtils::getStringFromOrder(angles.order)) {
        const auto axis = static_cast<std::size_t>(letter - 'x');
        result = product(axisTurn(axis, values[axis]), result);
    }
    return result;
}

Rows matrixOf(const nbQuaterniond& q)
{
    Rows rows {};
    for (osg::UInt32 column = 0; column < 3; ++column) {
        osg::Vec3d axis;
        axis[column] = 1.0;
        q.multVec(axis, axis);
        for (osg::UInt32 row = 0; row < 3; ++row) {
            rows[row][column] = axis[row];
        }
    }
    return rows;
}

void expectNear(const Rows& actual, const Rows& expected, double tolerance = kTolerance)
{
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            EXPECT_NEAR(actual[row][column], expected[row][column], tolerance)
                << "row " << row << " column " << column;
        }
    }
}

nbEulerAngles anglesDeg(double x, double y, double z, int order = 0)
{
    return nbEulerUtils::toRadians({ x, y, z, order });
}

}  // namespace

TEST(nbEulerUtils, AnglesAndQuaternionsGiveOneMatrixInAllOrders)
{
    std::mt19937 random(11);
    std::uniform_real_distribution<double> anyAngle(-3.0 * kPi, 3.0 * kPi);
    for (int i = 0; i < 200; ++i) {
        const int order = i % nbEulerUtils::kOrderCount;
        const nbEulerAngles angles { anyAngle(random), anyAngle(random), anyAngle(random), order };
        const Rows expected = matrixOf(angles);

        const nbQuaterniond quaternion = nbEulerUtils::QuatFromEul(angles);
        expectNear(matrixOf(quaternion), expected);
        for (int other = 0; other < nbEulerUtils::kOrderCount; ++other) {
            expectNear(matrixOf(nbEulerUtils::EulFromQuat(quaternion, other)), expected);
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
                const nbEulerAngles angles = anglesDeg(values[0], values[1], values[2], order);
                const nbEulerAngles found =
                    nbEulerUtils::EulFromQuat(nbEulerUtils::QuatFromEul(angles), order);
                expectNear(matrixOf(found), matrixOf(angles), 1e-7);
                const nbEulerAngles near = nbEulerUtils::nearest(found, angles);
                expectNear(matrixOf(near), matrixOf(angles), 1e-7);
                EXPECT_NEAR(near.x, angles.x, 1e-6);
                EXPECT_NEAR(near.y, angles.y, 1e-6);
                EXPECT_NEAR(near.z, angles.z, 1e-6);
            }
        }
    }
}
