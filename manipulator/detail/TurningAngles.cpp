// SPDX-License-Identifier: MIT
#include "manipulator/detail/TurningAngles.h"

#include <nbOpenSGExt/nbRotationMath.h>

#include <cmath>

namespace nbec::manipulator::detail {

namespace {

/// Tangent of the greatest change of an angle that is followed, 7 degrees.
constexpr double kGreatestTangent = 0.125;
/// Of the arctangent's series, at t^17.
constexpr double kLastFactor = 1.0 / 17.0;
/// Cosine of the middle angle below which first and last angle change too fast to be followed.
constexpr double kLeastCosine = 0.02;

/// Arctangent of a small number: the series, whose terms from t^19 on are below the last digit. In
/// groups, so that they do not wait for each other.
double arctangent(double t)
{
    const double s = t * t;
    const double s2 = s * s;
    const double s4 = s2 * s2;
    const double low = (1.0 - s * (1.0 / 3)) + s2 * (1.0 / 5 - s * (1.0 / 7));
    const double high = (1.0 / 9 - s * (1.0 / 11)) + s2 * (1.0 / 13 - s * (1.0 / 15));
    return t * (low + s4 * (high + s4 * kLastFactor));
}

std::array<double*, 3> valuesOf(nbEulerAngles& angles)
{
    return { &angles.x, &angles.y, &angles.z };
}

}  // namespace

TurningAngles::TurningAngles(const nbEulerAngles& anglesRad)
    : rotation(nbEulerUtils::QuatFromEul(anglesRad))
    , angles(anglesRad)
{
    const std::size_t middle = nbEulerRotation::getOrder(angles.order).axes[1];
    side = std::cos(*valuesOf(angles)[middle]) < 0.0 ? -1.0 : 1.0;
    directions = directionsOf(rotation);
}

void TurningAngles::turn(const nbQuaterniond& step)
{
    // The length strays from 1 by rounding only, and does not matter to the directions.
    rotation = nbRotationMath::product(step, rotation);
    if (follow(directionsOf(rotation))) {
        return;
    }
    const nbQuaterniond turned = rotation;
    *this = TurningAngles(
        nbEulerUtils::nearest(nbEulerUtils::EulFromQuat(turned, angles.order), angles));
    rotation = turned;
}

/// With R = Rk(c) Rj(b) Ri(a) and e = +-1 for the order's parity, the elements are R_ki = -e sin b,
/// R_kj = e cos b sin a, R_kk = cos b cos a, R_ji = e cos b sin c, R_ii = cos b cos c.
TurningAngles::Directions TurningAngles::directionsOf(const nbQuaterniond& turned) const
{
    const nbEulerRotation::Order& order = nbEulerRotation::getOrder(angles.order);
    const auto [i, j, k] = order.axes;
    const nbRotationMath::Rows r = nbRotationMath::rotationRows(turned);
    Directions result;
    result[i] = { side * r[k][k], side * order.sign * r[k][j] };
    result[j] = { side * std::sqrt(r[i][i] * r[i][i] + r[j][i] * r[j][i]), -order.sign * r[k][i] };
    result[k] = { side * r[i][i], side * order.sign * r[j][i] };
    return result;
}

/// @return false, with nothing changed, if an angle changes by more than a little
bool TurningAngles::follow(const Directions& next)
{
    const std::size_t middle = nbEulerRotation::getOrder(angles.order).axes[1];
    if (std::fabs(next[middle].cosine) < kLeastCosine ||
        std::fabs(directions[middle].cosine) < kLeastCosine) {
        return false;
    }
    std::array<double, 3> tangents {};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const Direction& from = directions[axis];
        const Direction& to = next[axis];
        const double along = from.cosine * to.cosine + from.sine * to.sine;
        const double across = from.cosine * to.sine - from.sine * to.cosine;
        if (!(std::fabs(across) < kGreatestTangent * along)) {
            return false;
        }
        tangents[axis] = across / along;
    }
    const std::array<double*, 3> values = valuesOf(angles);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        *values[axis] += arctangent(tangents[axis]);
    }
    directions = next;
    return true;
}

}  // namespace nbec::manipulator::detail
