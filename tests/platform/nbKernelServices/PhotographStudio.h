// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbPerspectiveSolver.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <random>

/// What tests of the perspective solver share: random cameras and what they see of edges along the
/// axes of the world.
namespace matchtest {

using osg::Vec3d;

inline constexpr double kPi = 3.14159265358979323846;

inline Vec3d turned(const Vec3d& vector, const Vec3d& axis, double angle)
{
    return vector * std::cos(angle) + axis.cross(vector) * std::sin(angle) +
        axis * (axis.dot(vector) * (1.0 - std::cos(angle)));
}

inline PerspectiveAim turned(const PerspectiveAim& aim, const Vec3d& axis, double angle)
{
    PerspectiveAim result = aim;
    result.right = turned(aim.right, axis, angle);
    result.up = turned(aim.up, axis, angle);
    result.back = turned(aim.back, axis, angle);
    return result;
}

inline double angleDeg(const PerspectiveAim& a, const PerspectiveAim& b)
{
    // By the difference of the matrices, 2 sqrt(2) sin(angle / 2), which is exact near 0.
    const double square = (a.right - b.right).squareLength() + (a.up - b.up).squareLength() +
        (a.back - b.back).squareLength();
    return 2.0 * std::asin(std::min(1.0, std::sqrt(square / 8.0))) * 180.0 / kPi;
}

/// Across the height, as the camera's field is.
inline double fovDeg(const PerspectiveAim& aim, double height)
{
    return 2.0 * std::atan(0.5 * height / aim.focalLength) * 180.0 / kPi;
}

/// An axis of the world in the camera's frame.
inline Vec3d axisSeen(const PerspectiveAim& aim, int axis)
{
    return { aim.right[axis], aim.up[axis], aim.back[axis] };
}

/// Lays two edges along each axis of the world, 5 units before the camera.
inline void layEdges(PerspectiveProblem& problem, const PerspectiveAim& aim)
{
    constexpr double kDepth = 5.0;
    for (int i = 0; i < 6; ++i) {
        const double side = i % 2 == 0 ? -0.35 : 0.3;
        const Vec3d middle(side * problem.width * kDepth / aim.focalLength,
                           (0.15 * (i / 2) - side) * problem.height * kDepth / aim.focalLength,
                           -kDepth);
        QPointF ends[2];
        for (int end = 0; end < 2; ++end) {
            const Vec3d point = middle + axisSeen(aim, i / 2) * (end == 0 ? -1.0 : 1.0);
            ends[end] = QPointF(0.5 * problem.width - aim.focalLength * point[0] / point[2],
                                0.5 * problem.height - aim.focalLength * point[1] / point[2]);
        }
        problem.lines[i] = QLineF(ends[0], ends[1]);
    }
}

/// Random cameras and lines along the axes of their world, always the same ones.
class Studio
{
public:
    explicit Studio(unsigned int seed)
        : generator(seed)
    { }

    double between(double low, double high)
    {
        return std::uniform_real_distribution<double>(low, high)(generator);
    }

    /// A line whose ends are off by a normal deviation.
    QLineF trembling(const QLineF& line, double deviation)
    {
        std::normal_distribution<double> way(0.0, deviation);
        const QPointF first(way(generator), way(generator));
        return { line.p1() + first, line.p2() + QPointF(way(generator), way(generator)) };
    }

    Vec3d direction()
    {
        Vec3d result;
        do {
            result = Vec3d(between(-1.0, 1.0), between(-1.0, 1.0), between(-1.0, 1.0));
        } while (result.length() < 0.1 || result.length() > 1.0);
        return result * (1.0 / result.length());
    }

    PerspectiveAim camera()
    {
        PerspectiveAim aim = turned(PerspectiveAim(), direction(), between(0.0, kPi));
        aim.focalLength = 0.5 / std::tan(0.5 * between(20.0, 100.0) * kPi / 180.0);
        return aim;
    }

    /// A problem whose solution is `aim`, from a start that is somewhat off. Nothing if this camera
    /// sees an axis of the type badly: a vanishing point beyond 20 reference sizes, or edges that
    /// are short or next to parallel.
    std::optional<PerspectiveProblem> photograph(const PerspectiveAim& aim,
                                                 nbCameraTypes::VanishingLinesType type,
                                                 bool verticalSizing)
    {
        PerspectiveProblem problem;
        const double aspect = between(0.6, 2.2);
        problem.width = verticalSizing ? aspect : 1.0;
        problem.height = verticalSizing ? 1.0 : 1.0 / aspect;
        problem.type = type;
        problem.start = turned(aim, direction(), between(0.0, 0.5));
        problem.start.focalLength = aim.focalLength * between(0.6, 1.6);
        layEdges(problem, aim);
        for (int axis = 0; axis < 3; ++axis) {
            const Vec3d seen = axisSeen(aim, axis);
            const QLineF& first = problem.lines[2 * axis];
            const QLineF& second = problem.lines[2 * axis + 1];
            const double angle = std::fmod(first.angleTo(second), 180.0);
            if (nbCameraTypes::usesAxis(type, axis) &&
                (std::hypot(seen[0], seen[1]) * aim.focalLength > 20.0 * std::abs(seen[2]) ||
                 std::min(first.length(), second.length()) < 0.15 ||
                 std::min(angle, 180.0 - angle) < 2.0)) {
                return std::nullopt;
            }
        }
        return problem;
    }

private:
    std::mt19937 generator;
};

struct TypeRow
{
    const char* name;
    nbCameraTypes::VanishingLinesType type;
    bool verticalSizing;
};

inline constexpr TypeRow kTypeRows[] = {
    { "XYZ vertical", nbCameraTypes::XYZLines, true },
    { "XYZ horizontal", nbCameraTypes::XYZLines, false },
    { "XY vertical", nbCameraTypes::XYLines, true },
    { "XY horizontal", nbCameraTypes::XYLines, false },
    { "XZ vertical", nbCameraTypes::XZLines, true },
    { "YZ horizontal", nbCameraTypes::YZLines, false },
};

/// Calls `check` with so many random problems of a row and their cameras.
template <class Check>
void forRandomCameras(const TypeRow& row, int count, Check check)
{
    Studio studio(17);
    for (int made = 0; made < count;) {
        const PerspectiveAim aim = studio.camera();
        const auto problem = studio.photograph(aim, row.type, row.verticalSizing);
        if (problem) {
            ++made;
            check(*problem, aim, studio);
        }
    }
}

}  // namespace matchtest
