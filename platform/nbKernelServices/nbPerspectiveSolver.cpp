// SPDX-License-Identifier: MIT
#include "nbPerspectiveSolver.h"

#include <nbKernelServices/detail/VanishingFit.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include <Eigen/Geometry>
#include <Eigen/LU>

namespace {

using namespace nbmatch;

bool isFovInRange(double focalLength)
{
    return focalLength >= focalLengthOf(nbPerspectiveSolver::kLargestFovDeg) &&
        focalLength <= focalLengthOf(nbPerspectiveSolver::kSmallestFovDeg);
}

Aim toAim(const PerspectiveAim& aim)
{
    Aim result;
    result.cameraFromWorld.row(0) = toEigen(aim.right);
    result.cameraFromWorld.row(1) = toEigen(aim.up);
    result.cameraFromWorld.row(2) = toEigen(aim.back);
    result.focalLength = aim.focalLength;
    return result;
}

PerspectiveAim fromAim(const Aim& aim)
{
    PerspectiveAim result;
    result.right = fromEigen(aim.cameraFromWorld.row(0));
    result.up = fromEigen(aim.cameraFromWorld.row(1));
    result.back = fromEigen(aim.cameraFromWorld.row(2));
    result.focalLength = aim.focalLength;
    return result;
}

// == The lines

bool isUsable(const QLineF& line)
{
    const double farthest = std::max(
        { std::abs(line.x1()), std::abs(line.y1()), std::abs(line.x2()), std::abs(line.y2()) });
    // Not a number is not less than anything.
    const bool isNear = farthest < nbPerspectiveSolver::kFarthestEnd && std::isfinite(line.x1()) &&
        std::isfinite(line.y1()) && std::isfinite(line.x2()) && std::isfinite(line.y2());
    return isNear && line.length() >= nbPerspectiveSolver::kShortestLine;
}

/// Distance of the farther end of an edge from the line through another one.
double distanceFrom(const Edge& line, const Edge& edge)
{
    const Vector3 through = line.throughLine();
    const auto distance = [&](const Vector2& point) {
        return std::abs(through.dot(Vector3(point.x(), point.y(), 1.0)));
    };
    return std::max(distance(edge.middle + edge.halfLength * edge.direction),
                    distance(edge.middle - edge.halfLength * edge.direction));
}

bool areIdentical(const Edge& first, const Edge& second)
{
    return std::max(distanceFrom(first, second), distanceFrom(second, first)) <
        nbPerspectiveSolver::kIdenticalDistance;
}

bool isFinite(const PerspectiveProblem& problem)
{
    const Aim start = toAim(problem.start);
    return start.cameraFromWorld.allFinite() && std::isfinite(start.focalLength) &&
        start.focalLength > 0.0 && std::isfinite(problem.width) && problem.width > 0.0 &&
        std::isfinite(problem.height) && problem.height > 0.0;
}

/// Turns the used lines into edges about the middle of the picture.
nbCameraTypes::MatchResult readEdges(const PerspectiveProblem& problem, std::vector<Edge>& edges)
{
    if (!isFinite(problem)) {
        return nbCameraTypes::NoCamera;
    }
    const QPointF middle(0.5 * problem.width, 0.5 * problem.height);
    for (int axis = 0; axis < kAxisCount; ++axis) {
        if (!nbCameraTypes::usesAxis(problem.type, axis)) {
            continue;
        }
        for (int i = 2 * axis; i < 2 * axis + 2; ++i) {
            if (!isUsable(problem.lines[i])) {
                return nbCameraTypes::UnusableLine;
            }
            edges.push_back(makeEdge(axis, problem.lines[i].translated(-middle)));
        }
        if (areIdentical(edges[edges.size() - 2], edges.back())) {
            return nbCameraTypes::IdenticalLines;
        }
    }
    return nbCameraTypes::Solved;
}

// == The vanishing points

struct VanishingPoint
{
    int axis;
    Vector3 point;  ///< homogeneous, unit length

    bool isFinite() const
    {
        return std::hypot(point.x(), point.y()) <
            nbPerspectiveSolver::kFarthestVanishingPoint * std::abs(point.z());
    }

    Vector3 direction(double focalLength) const
    {
        return Vector3(point.x(), point.y(), -focalLength * point.z()).normalized();
    }
};

std::vector<VanishingPoint> findVanishingPoints(const std::vector<Edge>& edges)
{
    std::vector<VanishingPoint> result;
    for (std::size_t i = 0; i + 1 < edges.size(); i += 2) {
        const Vector3 meeting = edges[i].throughLine().cross(edges[i + 1].throughLine());
        result.push_back({ edges[i].axis, meeting.normalized() });
    }
    return result;
}

/// What each pair of finite vanishing points says about the focal length.
std::vector<double> proposeFocalLengths(const std::vector<VanishingPoint>& points)
{
    std::vector<double> result;
    for (std::size_t i = 0; i < points.size(); ++i) {
        for (std::size_t j = i + 1; j < points.size(); ++j) {
            if (!points[i].isFinite() || !points[j].isFinite()) {
                continue;
            }
            const Vector3& a = points[i].point;
            const Vector3& b = points[j].point;
            const double square = -(a.x() * b.x() + a.y() * b.y()) / (a.z() * b.z());
            if (square > 0.0 && isFovInRange(std::sqrt(square))) {
                result.push_back(std::sqrt(square));
            }
        }
    }
    return result;
}

/// Orientation that brings the axes into the directions of their vanishing points, the one nearest
/// to the reference; none if two axes have the same direction.
std::optional<Matrix3> orient(const std::vector<VanishingPoint>& points, double focalLength,
                              const Matrix3& reference)
{
    Matrix3 directions = Matrix3::Zero();
    for (const VanishingPoint& point : points) {
        const Vector3 direction = point.direction(focalLength);
        for (int axis = 0; axis < point.axis; ++axis) {
            const bool isUsed = !directions.col(axis).isZero();
            if (isUsed &&
                directions.col(axis).cross(direction).norm() <
                    nbPerspectiveSolver::kSmallestAxisSine) {
                return std::nullopt;
            }
        }
        directions.col(point.axis) = direction;
    }
    std::optional<Matrix3> best;
    for (int signs = 0; signs < (1 << kAxisCount); ++signs) {
        Matrix3 candidate = directions;
        for (int axis = 0; axis < kAxisCount; ++axis) {
            candidate.col(axis) *= (signs & (1 << axis)) != 0 ? -1.0 : 1.0;
        }
        if (candidate.determinant() < 0.0) {
            continue;  // left-handed
        }
        const Matrix3 rotation = nearestRotation(candidate);
        // The trace of the turn from one to the other grows as its angle falls.
        if (!best || rotation.cwiseProduct(reference).sum() > best->cwiseProduct(reference).sum()) {
            best = rotation;
        }
    }
    return best;
}

/// The best of the fits that start from these focal lengths; none if there is no usable one.
/// @param isFovFree  whether the focal length is fitted too
std::optional<Aim> bestFit(const std::vector<Edge>& edges,
                           const std::vector<VanishingPoint>& points,
                           const std::vector<double>& focalLengths, bool isFovFree,
                           const Matrix3& reference)
{
    std::optional<Aim> best;
    double bestError = 0.0;
    for (const double focalLength : focalLengths) {
        const std::optional<Matrix3> orientation = orient(points, focalLength, reference);
        if (!orientation) {
            continue;
        }
        const Aim aim = fit(edges, Aim { *orientation, focalLength }, isFovFree);
        const double error = squaredError(edges, aim);
        const bool isInRange = !isFovFree || isFovInRange(aim.focalLength);
        if (isInRange && std::isfinite(error) && (!best || error < bestError)) {
            best = aim;
            bestError = error;
        }
    }
    return best;
}

// == Quality

PerspectiveDoubt doubtOf(const std::vector<VanishingPoint>& points, bool isFovFound, double fovDeg)
{
    if (isFovFound) {
        return fovDeg > nbPerspectiveSolver::kDoubtfulFovDeg ? PerspectiveDoubt::AlmostParallelLines
                                                             : PerspectiveDoubt::NoDoubt;
    }
    const auto meeting = std::count_if(points.begin(), points.end(),
                                       [](const auto& point) { return point.isFinite(); });
    return meeting < 2 ? PerspectiveDoubt::ParallelLines : PerspectiveDoubt::NoFieldOfViewFits;
}

}  // namespace

PerspectiveSolution nbPerspectiveSolver::solve(const PerspectiveProblem& problem)
{
    PerspectiveSolution solution;
    solution.aim = problem.start;
    std::vector<Edge> edges;
    solution.result = readEdges(problem, edges);
    if (solution.result != nbCameraTypes::Solved) {
        return solution;
    }
    const Matrix3 reference = toAim(problem.reference.value_or(problem.start)).cameraFromWorld;
    const std::vector<VanishingPoint> points = findVanishingPoints(edges);
    std::optional<Aim> aim;
    if (problem.fovMode == nbCameraTypes::SolvedFov) {
        aim = bestFit(edges, points, proposeFocalLengths(points), true, reference);
    }
    if (!aim) {
        solution.result = nbCameraTypes::SolvedWithKeptFov;
        aim = bestFit(edges, points, { problem.start.focalLength }, false, reference);
    }
    if (aim) {
        solution.aim = fromAim(*aim);
    } else {
        solution.result = nbCameraTypes::ContradictingLines;
    }
    return solution;
}

PerspectiveQuality nbPerspectiveSolver::judge(const PerspectiveProblem& problem,
                                              const PerspectiveSolution& solution,
                                              double endDeviation)
{
    PerspectiveQuality quality;
    std::vector<Edge> edges;
    if (!nbCameraTypes::isSolved(solution.result) ||
        readEdges(problem, edges) != nbCameraTypes::Solved) {
        return quality;
    }
    const Aim aim = toAim(solution.aim);
    const bool isFovFound = solution.result == nbCameraTypes::Solved;
    for (std::size_t i = 0; i < edges.size(); ++i) {
        quality.residuals[static_cast<std::size_t>(2 * edges[i].axis) + i % 2] =
            std::abs(missOf(edges[i], aim));
    }
    const int spare = static_cast<int>(edges.size()) - (isFovFound ? 4 : 3);
    const double seen = spare > 0 ? std::sqrt(2.0 * squaredError(edges, aim) / spare) : 0.0;
    const Deviation deviation = deviationOf(edges, aim, isFovFound, std::max(endDeviation, seen));
    const double fov = 2.0 * std::atan(0.5 * problem.height / aim.focalLength);
    quality.rotationDeg = deviation.angle * 180.0 / kPi;
    quality.fovDeg = std::sin(fov) * deviation.focalLength * 180.0 / kPi;
    if (isFovFound || problem.fovMode == nbCameraTypes::SolvedFov) {
        const std::vector<VanishingPoint> points = findVanishingPoints(edges);
        quality.doubt = doubtOf(points, isFovFound, quality.fovDeg);
        if (quality.doubt != PerspectiveDoubt::NoDoubt) {
            // The farthest vanishing point is that of the most nearly parallel lines.
            const auto isFarther = [](const VanishingPoint& a, const VanishingPoint& b) {
                return std::abs(a.point.z()) < std::abs(b.point.z());
            };
            quality.doubtfulAxis = std::min_element(points.begin(), points.end(), isFarther)->axis;
        }
    }
    return quality;
}
