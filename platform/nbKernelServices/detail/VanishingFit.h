// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGVector.h>

#include <QtCore/QLineF>

#include <cmath>
#include <vector>

#include <Eigen/Core>

/// Fit of a camera's orientation and focal length to lines of its picture, in double precision.
/// Everything is about the middle of the picture, in reference sizes, y up.
namespace nbmatch {

using Vector2 = Eigen::Vector2d;
using Vector3 = Eigen::Vector3d;
using Matrix3 = Eigen::Matrix3d;

constexpr double kPi = 3.14159265358979323846;
constexpr int kAxisCount = 3;

inline Vector3 toEigen(const osg::Vec3d& vector)
{
    return { vector[0], vector[1], vector[2] };
}

inline osg::Vec3d fromEigen(const Vector3& vector)
{
    return { vector.x(), vector.y(), vector.z() };
}

/// Of a picture with a height of 1. @param fovDeg  vertical opening angle
inline double focalLengthOf(double fovDeg)
{
    return 0.5 / std::tan(fovDeg * kPi / 360.0);
}

/// A line of the picture that runs along an axis of the world.
struct Edge
{
    int axis;  ///< 0 x, 1 y, 2 z
    Vector2 middle;
    Vector2 direction;  ///< unit length
    double halfLength;

    /// The line through it: a x + b y + c = 0 with a^2 + b^2 = 1.
    Vector3 throughLine() const
    {
        const Vector2 normal(-direction.y(), direction.x());
        return { normal.x(), normal.y(), -normal.dot(middle) };
    }
};

/// @param line  of a length above 0
Edge makeEdge(int axis, const QLineF& line);

/// What is looked for: the camera looks along its -z.
struct Aim
{
    Matrix3 cameraFromWorld = Matrix3::Identity();
    double focalLength = 1.0;
};

/// The rotation with the smallest sum of squared differences to a matrix of determinant >= 0.
Matrix3 nearestRotation(const Matrix3& matrix);

/// How far the ends of an edge must move across it, root mean square of both, for the line to pass
/// the vanishing point of its axis; signed.
double missOf(const Edge& edge, const Aim& aim);

/// Sum over the edges of the square of their miss: half the least sum of squares of the ways of all
/// ends that makes the lines those of this camera.
double squaredError(const std::vector<Edge>& edges, const Aim& aim);

/// Least squares of squaredError by Gauss-Newton with damping, from a start that is near.
/// @param isFovFree  whether the focal length is fitted too
/// @return never worse than the start
Aim fit(const std::vector<Edge>& edges, const Aim& start, bool isFovFree);

/// Standard deviations of a fit, to first order; infinite where the edges do not determine it.
struct Deviation
{
    double angle;  ///< of the orientation, radians: root of the squares about three axes
    double focalLength;  ///< relative; 0 where it is not fitted
};

/// @param endDeviation  of each end of an edge, across it
Deviation deviationOf(const std::vector<Edge>& edges, const Aim& aim, bool isFovFree,
                      double endDeviation);

}  // namespace nbmatch
