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
    /// sees an axis of the type badly: a vanishing point beyond 20 reference sizes, or no edges of
    /// some length and angle in view.
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
        for (int axis = 0; axis < 3; ++axis) {
            if (!nbCameraTypes::usesAxis(type, axis)) {
                continue;
            }
            const Vec3d world(axis == 0, axis == 1, axis == 2);
            const Vec3d seen(aim.right.dot(world), aim.up.dot(world), aim.back.dot(world));
            if (std::hypot(seen[0], seen[1]) * aim.focalLength > 20.0 * std::abs(seen[2]) ||
                !layEdges(problem, aim, axis, seen)) {
                return std::nullopt;
            }
        }
        return problem;
    }

private:
    QLineF edge(const PerspectiveProblem& problem, const PerspectiveAim& aim, const Vec3d& along)
    {
        const double depth = between(3.0, 8.0);
        const Vec3d middle(between(-0.5, 0.5) * problem.width * depth / aim.focalLength,
                           between(-0.5, 0.5) * problem.height * depth / aim.focalLength, -depth);
        QPointF ends[2];
        for (int i = 0; i < 2; ++i) {
            const Vec3d point = middle + along * (i == 0 ? -1.0 : 1.0);
            ends[i] = QPointF(0.5 * problem.width - aim.focalLength * point[0] / point[2],
                              0.5 * problem.height - aim.focalLength * point[1] / point[2]);
        }
        return QLineF(ends[0], ends[1]);
    }

    bool layEdges(PerspectiveProblem& problem, const PerspectiveAim& aim, int axis,
                  const Vec3d& along)
    {
        constexpr double kShortest = 0.15;
        constexpr double kSmallestAngleDeg = 2.0;
        for (int attempt = 0; attempt < 50; ++attempt) {
            const QLineF first = edge(problem, aim, along);
            const QLineF second = edge(problem, aim, along);
            const double angle = std::fmod(first.angleTo(second), 180.0);
            if (first.length() > kShortest && second.length() > kShortest &&
                std::min(angle, 180.0 - angle) > kSmallestAngleDeg) {
                problem.lines[2 * axis] = first;
                problem.lines[2 * axis + 1] = second;
                return true;
            }
        }
        return false;
    }

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
