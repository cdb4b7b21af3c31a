// SPDX-License-Identifier: MIT
#include <nbKernelServices/detail/VanishingFit.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "nbPerspectiveSolver.h"
#include <Eigen/Geometry>

namespace {

using namespace nbmatch;

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
    const osg::Vec3d pivot = osg::Vec3d(pose.pivot);
    const double depth = -toCamera(aim, pivot - osg::Vec3d(pose.from))[2];
    return depth >= nbCameraNavigation::kNearestDistance ? pivot : osg::Vec3d(pose.at);
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
    const osg::Vec3d eye = osg::Vec3d(start.from);
    const osg::Vec3d centre = turningPoint(start, before);
    const osg::Vec3d newEye = centre - toWorld(aim, toCamera(before, centre - eye));
    const double distance = (osg::Vec3d(start.at) - eye).length();
    CameraPose result = start;
    result.from = osg::Pnt3f(newEye);
    // Eye and centre in one point would leave the camera without a direction.
    result.at = osg::Pnt3f(newEye - aim.back * (distance > 0.0 ? distance : 1.0));
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
    result.from = osg::Pnt3f(fromEigen(eye));
    result.at = osg::Pnt3f(fromEigen(eye) - aim.back * eye.norm());
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
    const osg::Vec3d centre =
        toCamera(box.aim, turningPoint(pose, box.aim) - osg::Vec3d(pose.from));
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
