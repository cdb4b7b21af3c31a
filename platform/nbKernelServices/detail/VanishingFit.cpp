// SPDX-License-Identifier: MIT
#include "VanishingFit.h"

#include <cmath>

#include <Eigen/Cholesky>
#include <Eigen/Geometry>
#include <Eigen/LU>
#include <Eigen/SVD>

namespace nbmatch {

namespace {

/// A turn about the three axes of the camera, and the logarithm of the focal length.
constexpr int kUnknowns = 4;

using Step = Eigen::Matrix<double, kUnknowns, 1>;
using Normal = Eigen::Matrix<double, kUnknowns, kUnknowns>;

/// How far the ends of an edge miss the vanishing point, and how that changes with the unknowns.
struct Miss
{
    double way = 0.0;
    Step slope = Step::Zero();
};

double across(const Vector2& a, const Vector2& b)
{
    return a.x() * b.y() - a.y() * b.x();
}

/// With the axis' direction (a, b, c) in the camera's frame the vanishing point is (f a, f b, -c),
/// and the way t to it from the middle m, times -c, is (f a + c mx, f b + c my), which has a
/// direction for points at infinity too. The miss is halfLength (d x t) / |t|.
Miss missOf(const Edge& edge, const Aim& aim)
{
    constexpr double kSmallestWay = 1e-12;
    const Vector3 axis = aim.cameraFromWorld.col(edge.axis);
    const auto wayOf = [&](const Vector3& direction) {
        return Vector2(aim.focalLength * direction.head<2>() + direction.z() * edge.middle);
    };
    const Vector2 way = wayOf(axis);
    const double length = way.norm();
    Miss miss;
    if (length < kSmallestWay) {
        return miss;  // the vanishing point is in the middle, where every direction passes it
    }
    const double sine = across(edge.direction, way) / length;
    miss.way = edge.halfLength * sine;
    for (int i = 0; i < kUnknowns; ++i) {
        const Vector2 change = i < 3 ? wayOf(Vector3(Vector3::Unit(i)).cross(axis))
                                     : Vector2(aim.focalLength * axis.head<2>());
        const double sineChange =
            (across(edge.direction, change) - sine * way.dot(change) / length) / length;
        miss.slope[i] = edge.halfLength * sineChange;
    }
    return miss;
}

Aim moved(const Aim& aim, const Step& step)
{
    const Vector3 turn = step.head<3>();
    const double angle = turn.norm();
    Aim result = aim;
    if (angle > 0.0) {
        const Eigen::AngleAxisd rotation(angle, turn / angle);
        result.cameraFromWorld = nearestRotation(rotation * aim.cameraFromWorld);
    }
    result.focalLength *= std::exp(step[3]);
    return result;
}

}  // namespace

Edge makeEdge(int axis, const QLineF& line)
{
    const Vector2 first(line.x1(), line.y1());
    const Vector2 second(line.x2(), line.y2());
    const Vector2 way = second - first;
    return { axis, 0.5 * (first + second), way.normalized(), 0.5 * way.norm() };
}

Matrix3 nearestRotation(const Matrix3& matrix)
{
    const Eigen::JacobiSVD<Matrix3> svd(matrix, Eigen::ComputeFullU | Eigen::ComputeFullV);
    const double handedness = (svd.matrixU() * svd.matrixV().transpose()).determinant();
    const Vector3 signs(1.0, 1.0, handedness < 0.0 ? -1.0 : 1.0);
    return svd.matrixU() * signs.asDiagonal() * svd.matrixV().transpose();
}

double squaredError(const std::vector<Edge>& edges, const Aim& aim)
{
    double sum = 0.0;
    for (const Edge& edge : edges) {
        const double way = missOf(edge, aim).way;
        sum += way * way;
    }
    return sum;
}

Aim fit(const std::vector<Edge>& edges, const Aim& start, bool isFovFree)
{
    constexpr int kMostSteps = 60;
    constexpr double kSmallestStep = 1e-13;
    constexpr double kLargestFovStep = 1.0;
    constexpr double kLeastDamping = 1e-9;
    constexpr double kMostDamping = 1e9;
    constexpr double kDampingFactor = 10.0;
    Aim aim = start;
    double error = squaredError(edges, aim);
    double damping = kLeastDamping;
    for (int i = 0; i < kMostSteps && damping < kMostDamping; ++i) {
        Normal normal = Normal::Zero();
        Step gradient = Step::Zero();
        for (const Edge& edge : edges) {
            Miss miss = missOf(edge, aim);
            if (!isFovFree) {
                miss.slope[3] = 0.0;
            }
            normal += miss.slope * miss.slope.transpose();
            gradient += miss.slope * miss.way;
        }
        const double scale = normal.trace();
        if (!(scale > 0.0)) {
            break;
        }
        normal.diagonal().array() += damping * scale;
        const Step step = -normal.ldlt().solve(gradient);
        if (!step.allFinite() || step.norm() < kSmallestStep) {
            break;
        }
        const Aim next = moved(aim, step);
        const double nextError = squaredError(edges, next);
        if (std::abs(step[3]) <= kLargestFovStep && nextError < error) {
            aim = next;
            error = nextError;
            damping /= kDampingFactor;
        } else {
            damping = kDampingFactor * damping + kLeastDamping;
        }
    }
    return aim;
}

}  // namespace nbmatch
