// SPDX-License-Identifier: MIT
#include "manipulator/detail/TurningAngles.h"

#include <nbOpenSGExt/nbRotationMath.h>

#include <cmath>

namespace nbec::manipulator::detail {

namespace {

constexpr double kShortestAxis = 1e-6;
/// Tangent of the greatest change of an angle that is followed, 3.5 degrees.
constexpr double kGreatestTangent = 0.0625;
/// Cosine of the middle angle below which first and last angle change too fast to be followed.
constexpr double kLeastCosine = 0.02;

/// Arctangent of a small number: the series, whose terms from t^15 on are below the last digit. In
/// groups, so that they do not wait for each other.
double arctangent(double t)
{
    const double s = t * t;
    const double s2 = s * s;
    const double low = (1.0 - s * (1.0 / 3)) + s2 * (1.0 / 5 - s * (1.0 / 7));
    const double high = (1.0 / 9 - s * (1.0 / 11)) + s2 * (1.0 / 13);
    return t * (low + s2 * s2 * high);
}

/// What rotates about an axis goes on a circle: the part along the axis stays, the rest goes from
/// itself to the cross product and back.
struct Circle
{
    nbRotationMath::Rows fixed;
    nbRotationMath::Rows along;
    nbRotationMath::Rows across;
};

double lengthOf(const osg::Vec3f& axis)
{
    return osg::Vec3d(axis.x(), axis.y(), axis.z()).length();
}

/// @param axis  as turnAbout() takes it; without length everything is fixed
Circle circleOf(const nbRotationMath::Rows& matrix, const osg::Vec3f& axis)
{
    Circle circle { matrix, {}, {} };
    const double length = lengthOf(axis);
    if (length <= kShortestAxis) {
        return circle;
    }
    const osg::Vec3d unit(axis.x() / length, axis.y() / length, axis.z() / length);
    for (std::size_t column = 0; column < 3; ++column) {
        const osg::Vec3d from(matrix[0][column], matrix[1][column], matrix[2][column]);
        const osg::Vec3d fixed = unit * unit.dot(from);
        const osg::Vec3d across = unit.cross(from);
        for (osg::UInt32 row = 0; row < 3; ++row) {
            circle.fixed[row][column] = fixed[row];
            circle.along[row][column] = from[row] - fixed[row];
            circle.across[row][column] = across[row];
        }
    }
    return circle;
}

}  // namespace

nbQuaterniond turnAbout(const osg::Vec3f& axis, double angleRad)
{
    nbQuaterniond turn;
    const double length = lengthOf(axis);
    if (length > kShortestAxis) {
        const double sine = std::sin(angleRad / 2) / length;
        turn.setValueAsQuat(axis.x() * sine, axis.y() * sine, axis.z() * sine,
                            std::cos(angleRad / 2));
    }
    return turn;
}

TurnAngle::TurnAngle(double angle)
    : angleRad(angle)
    , cosine(std::cos(angle))
    , sine(std::sin(angle))
{ }

TurningAngles::TurningAngles()
    : TurningAngles(nbEulerAngles(), osg::Vec3f())
{ }

TurningAngles::TurningAngles(const nbEulerAngles& anglesRad, const osg::Vec3f& turnAxis)
    : values { anglesRad.x, anglesRad.y, anglesRad.z }
    , order(&nbEulerRotation::getOrder(anglesRad.order))
    , orderNumber(anglesRad.order)
    , start(nbEulerUtils::QuatFromEul(anglesRad))
    , axis(turnAxis)
{
    const Circle circle = circleOf(nbRotationMath::rotationRows(start), axis);
    fixed = elementsOf(circle.fixed);
    along = elementsOf(circle.along);
    across = elementsOf(circle.across);
    side = std::cos(values[order->axes[1]]) < 0.0 ? -1.0 : 1.0;
    directions = directionsAt(TurnAngle(0.0));
}

/// With R = Rk(c) Rj(b) Ri(a) and e = +-1 for the order's parity, the elements are R_ki = -e sin b,
/// R_kj = e cos b sin a, R_kk = cos b cos a, R_ji = e cos b sin c, R_ii = cos b cos c.
TurningAngles::Elements TurningAngles::elementsOf(const nbRotationMath::Rows& matrix) const
{
    const auto [i, j, k] = order->axes;
    Elements elements {};
    elements[FirstCosine] = matrix[k][k];
    elements[LastCosine] = matrix[i][i];
    elements[FirstSine] = order->sign * matrix[k][j];
    elements[LastSine] = order->sign * matrix[j][i];
    elements[MiddleSine] = -order->sign * matrix[k][i];
    return elements;
}

TurningAngles::Directions TurningAngles::directionsAt(const TurnAngle& angle) const
{
    Elements at {};
    for (std::size_t i = 0; i < ElementCount; ++i) {
        at[i] = fixed[i] + angle.cosine * along[i] + angle.sine * across[i];
    }
    const double middle = std::sqrt(at[LastCosine] * at[LastCosine] + at[LastSine] * at[LastSine]);
    return { { side * at[FirstCosine], side * middle, side * at[LastCosine] },
             { side * at[FirstSine], at[MiddleSine], side * at[LastSine] } };
}

void TurningAngles::turnTo(const TurnAngle& angle)
{
    const Directions next = directionsAt(angle);
    if (!follow(next)) {
        findAngles(angle);
    }
}

/// @return false, with nothing changed, if an angle changes by more than a little
bool TurningAngles::follow(const Directions& next)
{
    if (std::fabs(next.cosines[1]) < kLeastCosine ||
        std::fabs(directions.cosines[1]) < kLeastCosine) {
        return false;
    }
    std::array<double, kAxes> tangents {};
    bool isLittle = true;
    for (std::size_t i = 0; i < kAxes; ++i) {
        const double dot =
            directions.cosines[i] * next.cosines[i] + directions.sines[i] * next.sines[i];
        const double cross =
            directions.cosines[i] * next.sines[i] - directions.sines[i] * next.cosines[i];
        isLittle = isLittle && std::fabs(cross) < kGreatestTangent * dot;
        tangents[i] = cross / dot;
    }
    if (!isLittle) {
        return false;
    }
    for (std::size_t i = 0; i < kAxes; ++i) {
        values[order->axes[i]] += arctangent(tangents[i]);
    }
    directions = next;
    return true;
}

void TurningAngles::findAngles(const TurnAngle& angle)
{
    const nbQuaterniond turned = nbRotationMath::product(turnAbout(axis, angle.angleRad), start);
    const nbEulerAngles found =
        nbEulerUtils::nearest(nbEulerUtils::EulFromQuat(turned, orderNumber), getAngles());
    values = { found.x, found.y, found.z };
    side = std::cos(values[order->axes[1]]) < 0.0 ? -1.0 : 1.0;
    directions = directionsAt(angle);
}

}  // namespace nbec::manipulator::detail
