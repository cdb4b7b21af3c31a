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

using nbmatch::Aim;
using nbmatch::Edge;
using nbmatch::Matrix3;
using nbmatch::Vector3;

constexpr double kPi = 3.14159265358979323846;
constexpr int kAxisCount = 3;

Vector3 toEigen(const osg::Vec3d& vector)
{
    return { vector[0], vector[1], vector[2] };
}

osg::Vec3d fromEigen(const Vector3& vector)
{
    return { vector.x(), vector.y(), vector.z() };
}

double focalLengthOf(double fovDeg)
{
    return 0.5 / std::tan(fovDeg * kPi / 360.0);
}

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
    const auto distance = [&](const nbmatch::Vector2& point) {
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
            edges.push_back(nbmatch::makeEdge(axis, problem.lines[i].translated(-middle)));
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
        const Matrix3 rotation = nbmatch::nearestRotation(candidate);
        // The trace of the turn from one to the other grows as its angle falls.
        if (!best || rotation.cwiseProduct(reference).sum() > best->cwiseProduct(reference).sum()) {
            best = rotation;
        }
    }
    return best;
}

/// The best fit of all that the vanishing points propose for the focal length; none if there is no
/// usable one.
std::optional<Aim> fitWithFov(const std::vector<Edge>& edges,
                              const std::vector<VanishingPoint>& points, const Matrix3& reference)
{
    std::optional<Aim> best;
    double bestError = 0.0;
    for (const double focalLength : proposeFocalLengths(points)) {
        const std::optional<Matrix3> orientation = orient(points, focalLength, reference);
        if (!orientation) {
            continue;
        }
        const Aim aim = nbmatch::fit(edges, Aim { *orientation, focalLength }, true);
        const double error = nbmatch::squaredError(edges, aim);
        if (isFovInRange(aim.focalLength) && std::isfinite(error) && (!best || error < bestError)) {
            best = aim;
            bestError = error;
        }
    }
    return best;
}

std::optional<Aim> fitWithoutFov(const std::vector<Edge>& edges,
                                 const std::vector<VanishingPoint>& points, double focalLength,
                                 const Matrix3& reference)
{
    const std::optional<Matrix3> orientation = orient(points, focalLength, reference);
    if (!orientation) {
        return std::nullopt;
    }
    const Aim aim = nbmatch::fit(edges, Aim { *orientation, focalLength }, false);
    return std::isfinite(nbmatch::squaredError(edges, aim)) ? std::optional(aim) : std::nullopt;
}

// == Quality

/// The farther of two vanishing points is that of the more nearly parallel lines.
bool isFarther(const VanishingPoint& a, const VanishingPoint& b)
{
    return std::abs(a.point.z()) < std::abs(b.point.z());
}

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

// == Poses

osg::Vec3d toDouble(const osg::Pnt3f& point)
{
    return { point[0], point[1], point[2] };
}

osg::Pnt3f toPoint(const osg::Vec3d& vector)
{
    return { static_cast<osg::Real32>(vector[0]), static_cast<osg::Real32>(vector[1]),
             static_cast<osg::Real32>(vector[2]) };
}

osg::Vec3d toCamera(const PerspectiveAim& aim, const osg::Vec3d& way)
{
    return { aim.right.dot(way), aim.up.dot(way), aim.back.dot(way) };
}

osg::Vec3d toWorld(const PerspectiveAim& aim, const osg::Vec3d& way)
{
    return aim.right * way[0] + aim.up * way[1] + aim.back * way[2];
}

/// What a pose turns about, world space: the pivot, or at if the pivot is not before the eye.
osg::Vec3d turningPoint(const CameraPose& pose, const PerspectiveAim& aim)
{
    const osg::Vec3d pivot = toDouble(pose.pivot);
    const double depth = -toCamera(aim, pivot - toDouble(pose.from))[2];
    return depth >= nbCameraNavigation::kNearestDistance ? pivot : toDouble(pose.at);
}

/// How much two edges tell about a vanishing point: the areas between them, roughly.
double usefulness(const QLineF& first, const QLineF& second)
{
    const QPointF apart = second.center() - first.center();
    const QPointF along = first.p2() - first.p1();
    return std::abs(apart.x() * along.y() - apart.y() * along.x());
}

/// A box about the point that a camera turns about, as its picture shows it.
struct BoxPicture
{
    /// Where a line ends on its edge, from the middle, in half edges: before the box's corners.
    static constexpr double kUsualPlace = 0.8;

    PerspectiveAim aim;
    double width, height;
    double depth;  ///< of the middle
    double halfSize;

    /// A point of an edge along an axis at a corner (0 to 3) of the plane across the axis.
    /// @param place  from the edge's middle, in half edges
    QPointF pointOf(int axis, int corner, double place) const
    {
        osg::Vec3d onBox;
        onBox[axis] = place;
        onBox[(axis + 1) % kAxisCount] = (corner & 1) != 0 ? 1.0 : -1.0;
        onBox[(axis + 2) % kAxisCount] = (corner & 2) != 0 ? 1.0 : -1.0;
        const osg::Vec3d point = osg::Vec3d(0.0, 0.0, -depth) + toCamera(aim, onBox) * halfSize;
        return QPointF(0.5 * width - aim.focalLength * point[0] / point[2],
                       0.5 * height - aim.focalLength * point[1] / point[2]);
    }

    /// Corners of the two edges along an axis that tell most.
    std::array<int, 2> usefulEdges(int axis) const
    {
        const auto edge = [&](int corner) {
            return QLineF(pointOf(axis, corner, -kUsualPlace), pointOf(axis, corner, kUsualPlace));
        };
        std::array<int, 2> found {};
        double best = -1.0;
        for (int first = 0; first < 4; ++first) {
            for (int second = first + 1; second < 4; ++second) {
                const double use = usefulness(edge(first), edge(second));
                if (use > best) {
                    best = use;
                    found = { first, second };
                }
            }
        }
        return found;
    }

    /// An end of an edge, where it keeps away from the ends that lie already: lines are grabbed
    /// there.
    /// @param side  -1 or 1
    QPointF freeEnd(int axis, int corner, double side, const std::vector<QPointF>& ends) const
    {
        constexpr double kPlaces[] = {
            kUsualPlace, 0.6, 1.0, 0.4, 1.2, 1.5
        };  // the first if it is free
        constexpr double kFree = 0.03;  // reference sizes
        QPointF found;
        double most = -1.0;
        for (const double place : kPlaces) {
            const QPointF point = pointOf(axis, corner, side * place);
            double distance = kFree;
            for (const QPointF& end : ends) {
                distance = std::min(distance, QLineF(point, end).length());
            }
            if (distance > most) {
                most = distance;
                found = point;
            }
        }
        return found;
    }
};

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
        aim = fitWithFov(edges, points, reference);
    }
    if (!aim) {
        solution.result = nbCameraTypes::SolvedWithKeptFov;
        aim = fitWithoutFov(edges, points, problem.start.focalLength, reference);
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
            std::abs(nbmatch::missOf(edges[i], aim));
    }
    const int spare = static_cast<int>(edges.size()) - (isFovFound ? 4 : 3);
    const double seen =
        spare > 0 ? std::sqrt(2.0 * nbmatch::squaredError(edges, aim) / spare) : 0.0;
    const nbmatch::Deviation deviation =
        nbmatch::deviationOf(edges, aim, isFovFound, std::max(endDeviation, seen));
    const double fov = 2.0 * std::atan(0.5 * problem.height / aim.focalLength);
    quality.rotationDeg = deviation.angle * 180.0 / kPi;
    quality.fovDeg = std::sin(fov) * deviation.focalLength * 180.0 / kPi;
    if (isFovFound || problem.fovMode == nbCameraTypes::SolvedFov) {
        const std::vector<VanishingPoint> points = findVanishingPoints(edges);
        quality.doubt = doubtOf(points, isFovFound, quality.fovDeg);
        quality.doubtfulAxis = quality.doubt == PerspectiveDoubt::NoDoubt
            ? -1
            : std::max_element(points.begin(), points.end(), [](const auto& a, const auto& b) {
                  return isFarther(b, a);
              })->axis;
    }
    return quality;
}

PerspectiveAim nbPerspectiveSolver::aimOf(const CameraPose& pose, double height)
{
    const nbCameraNavigation::Axes axes = nbCameraNavigation::axes(pose);
    PerspectiveAim aim;
    aim.right = osg::Vec3d(axes.right);
    aim.up = osg::Vec3d(axes.up);
    aim.back = osg::Vec3d(axes.back);
    aim.focalLength = height * focalLengthOf(nbCameraNavigation::usableFovDeg(pose.fovDeg));
    return aim;
}

CameraPose nbPerspectiveSolver::turned(const CameraPose& start, const PerspectiveAim& aim,
                                       double height)
{
    const PerspectiveAim before = aimOf(start, height);
    const osg::Vec3d eye = toDouble(start.from);
    const osg::Vec3d centre = turningPoint(start, before);
    const osg::Vec3d newEye = centre - toWorld(aim, toCamera(before, centre - eye));
    const double distance = (toDouble(start.at) - eye).length();
    CameraPose result = start;
    result.from = toPoint(newEye);
    // Eye and centre in one point would leave the camera without a direction.
    result.at = toPoint(newEye - aim.back * (distance > 0.0 ? distance : 1.0));
    result.up = osg::Vec3f(aim.up);
    result.fovDeg =
        static_cast<osg::Real32>(2.0 * std::atan(0.5 * height / aim.focalLength) * 180.0 / kPi);
    return result;
}

std::optional<CameraPose> nbPerspectiveSolver::placedBy(const CameraPose& pose, const QLineF& line,
                                                        int axis, double length, double width,
                                                        double height)
{
    // The eye is -t d1 and the end of the line k d2 from there, for rays d1 and d2 of its ends:
    // least squares of t d1 - k d2 = -s e for the axis e and s, the length in one of its
    // directions.
    constexpr double kSmallestSine = 1e-6;
    const PerspectiveAim aim = aimOf(pose, height);
    const auto rayTo = [&](const QPointF& end) {
        return toEigen(toWorld(aim,
                               osg::Vec3d(end.x() - 0.5 * width, end.y() - 0.5 * height,
                                          -aim.focalLength)))
            .normalized();
    };
    const Vector3 first = rayTo(line.p1());
    const Vector3 second = rayTo(line.p2());
    const double cosine = first.dot(second);
    const double determinant = first.cross(second).squaredNorm();
    const double near = cosine * second[axis] - first[axis];
    const double far = second[axis] - cosine * first[axis];
    if (!(determinant > kSmallestSine * kSmallestSine) || !(length > 0.0) || !(near * far > 0.0)) {
        return std::nullopt;
    }
    const Vector3 eye = -first * (length * std::abs(near) / determinant);
    CameraPose result = pose;
    result.from = toPoint(fromEigen(eye));
    result.at = toPoint(fromEigen(eye) - aim.back * eye.norm());
    return nbCameraNavigation::isFinite(result) ? std::optional(result) : std::nullopt;
}

CameraPose nbPerspectiveSolver::turnedByQuarter(const CameraPose& pose, int axis)
{
    const auto turned = [axis](const osg::Vec3f& way) {
        osg::Vec3f result;
        result[axis] = way[axis];
        result[(axis + 1) % kAxisCount] = -way[(axis + 2) % kAxisCount];
        result[(axis + 2) % kAxisCount] = way[(axis + 1) % kAxisCount];
        return result;
    };
    CameraPose result = pose;
    result.from = pose.pivot + turned(pose.from - pose.pivot);
    result.at = pose.pivot + turned(pose.at - pose.pivot);
    result.up = turned(pose.up);
    return result;
}

PerspectiveLines nbPerspectiveSolver::linesOf(const CameraPose& pose, double width, double height)
{
    /// Half the box in parts of the depth, and of the smaller half of the picture.
    constexpr double kPartOfDepth = 0.3;
    constexpr double kPartOfPicture = 0.5;
    BoxPicture box { aimOf(pose, height), width, height, 0.0, 0.0 };
    const osg::Vec3d centre = toCamera(box.aim, turningPoint(pose, box.aim) - toDouble(pose.from));
    box.depth = std::max<double>(-centre[2], nbCameraNavigation::kNearestDistance);
    const double halfPicture = 0.5 * std::min(width, height) * box.depth / box.aim.focalLength;
    box.halfSize = std::min(kPartOfDepth * box.depth, kPartOfPicture * halfPicture);
    std::vector<QPointF> ends;
    PerspectiveLines lines;
    auto* line = lines.begin();
    for (int axis = 0; axis < kAxisCount; ++axis) {
        for (const int corner : box.usefulEdges(axis)) {
            for (const double side : { -1.0, 1.0 }) {
                ends.push_back(box.freeEnd(axis, corner, side, ends));
            }
            *line++ = QLineF(ends[ends.size() - 2], ends.back());
        }
    }
    return lines;
}
