// SPDX-License-Identifier: MIT
#include "VanishingFit.h"

#include <cmath>
#include <limits>

#include <Eigen/Cholesky>
#include <Eigen/Eigenvalues>
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
/// direction for points at infinity too. The ends of half length h move least, a and b with
/// (b - a) |t| + (a + b) h c = 2 h (d x t), when their root mean square is
/// h (d x t) / sqrt(|t|^2 + h^2 c^2).
Miss slopedMissOf(const Edge& edge, const Aim& aim)
{
    constexpr double kSmallestWay = 1e-12;
    const double half = edge.halfLength;
    const Vector3 axis = aim.cameraFromWorld.col(edge.axis);
    const auto wayOf = [&](const Vector3& direction) {
        return Vector2(aim.focalLength * direction.head<2>() + direction.z() * edge.middle);
    };
    const Vector2 way = wayOf(axis);
    const double length = std::hypot(way.norm(), half * axis.z());
    Miss miss;
    if (length < kSmallestWay) {
        return miss;
    }
    const double sine = across(edge.direction, way) / length;
    miss.way = half * sine;
    for (int i = 0; i < kUnknowns; ++i) {
        const Vector3 turned = i < 3 ? Vector3(Vector3::Unit(i)).cross(axis) : Vector3::Zero();
        const Vector2 change = i < 3 ? wayOf(turned) : Vector2(aim.focalLength * axis.head<2>());
        const double stretch =
            (way.dot(change) + half * half * axis.z() * turned.z()) / (length * length);
        miss.slope[i] = half * (across(edge.direction, change) / length - sine * stretch);
    }
    return miss;
}

/// Sum of the products of the slopes, for the unknowns that are free.
Normal normalOf(const std::vector<Edge>& edges, const Aim& aim, bool isFovFree, Step& gradient)
{
    Normal normal = Normal::Zero();
    gradient = Step::Zero();
    for (const Edge& edge : edges) {
        Miss miss = slopedMissOf(edge, aim);
        if (!isFovFree) {
            miss.slope[3] = 0.0;
        }
        normal += miss.slope * miss.slope.transpose();
        gradient += miss.slope * miss.way;
    }
    return normal;
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

double missOf(const Edge& edge, const Aim& aim)
{
    return slopedMissOf(edge, aim).way;
}

double squaredError(const std::vector<Edge>& edges, const Aim& aim)
{
    double sum = 0.0;
    for (const Edge& edge : edges) {
        const double way = missOf(edge, aim);
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
        Step gradient;
        Normal normal = normalOf(edges, aim, isFovFree, gradient);
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

Deviation deviationOf(const std::vector<Edge>& edges, const Aim& aim, bool isFovFree,
                      double endDeviation)
{
    constexpr double kSmallestPart = 1e-12;
    const int free = isFovFree ? kUnknowns : kUnknowns - 1;
    Step gradient;
    const Eigen::MatrixXd normal =
        normalOf(edges, aim, isFovFree, gradient).topLeftCorner(free, free);
    const Eigen::SelfAdjointEigenSolver<Eigen::MatrixXd> parts(normal);
    if (!(parts.eigenvalues()[0] > kSmallestPart * parts.eigenvalues()[free - 1])) {
        const double unknown = std::numeric_limits<double>::infinity();
        return { unknown, isFovFree ? unknown : 0.0 };
    }
    // A miss is the mean of two ends' ways in two directions: half their variance.
    const Eigen::MatrixXd covariance = normal.inverse() * (0.5 * endDeviation * endDeviation);
    return { std::sqrt(covariance.topLeftCorner<3, 3>().trace()),
             isFovFree ? std::sqrt(covariance(3, 3)) : 0.0 };
}

}  // namespace nbmatch
