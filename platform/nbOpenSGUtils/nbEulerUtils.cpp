// SPDX-License-Identifier: MIT
#include "nbEulerUtils.h"

#include <array>
#include <cmath>

namespace {

constexpr double kPi = 3.14159265358979323846;
/// How near to a right angle, radians, the middle angle leaves only a sum of first and last angle
/// with a meaning.
constexpr double kLockedAngle = 1e-9;

using Angles = std::array<double, 3>;

Angles valuesOf(const nbEulerAngles& angles)
{
    return { angles.x, angles.y, angles.z };
}

nbEulerAngles makeAngles(const Angles& values, int order)
{
    return { values[0], values[1], values[2], order };
}

/// The angle plus whole turns that is nearest to another.
double unwound(double angle, double reference)
{
    constexpr double kTurnsPerRad = 0.5 / kPi;
    return angle + 2.0 * kPi * std::round((reference - angle) * kTurnsPerRad);
}

double squaredDistance(const Angles& a, const Angles& b)
{
    double sum = 0.0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        sum += (a[i] - b[i]) * (a[i] - b[i]);
    }
    return sum;
}

Angles allUnwound(const Angles& angles, const Angles& reference)
{
    return { unwound(angles[0], reference[0]), unwound(angles[1], reference[1]),
             unwound(angles[2], reference[2]) };
}

/// With the middle angle at one of its ends, first and last turn about the same line: with k = +-1
/// only first - k last matters.
Angles nearestLocked(Angles angles, const Angles& reference, const nbEulerRotation::Order& order)
{
    const auto [i, j, k] = order.axes;
    const double sense = std::sin(angles[j]) > 0.0 ? order.sign : -order.sign;
    const double turn = angles[i] - sense * angles[k];
    const double wanted = reference[i] - sense * reference[k];
    const double missing = unwound(turn, wanted) - wanted;
    angles[i] = reference[i] + 0.5 * missing;
    angles[k] = reference[k] - 0.5 * sense * missing;
    angles[j] = unwound(angles[j], reference[j]);
    return angles;
}

}  // namespace

int nbEulerUtils::getOrderFromString(const std::string& order)
{
    return nbEulerRotation::getOrderNumber(order);
}

nbEulerAngles nbEulerUtils::EulFromQuat(const nbQuaterniond& rotation, int order)
{
    return makeAngles(nbEulerRotation::fromQuaternion(rotation, order), order);
}

nbQuaterniond nbEulerUtils::QuatFromEul(const nbEulerAngles& angles)
{
    return nbEulerRotation::toQuaternion(valuesOf(angles), angles.order);
}

nbEulerAngles nbEulerUtils::nearest(const nbEulerAngles& angles, const nbEulerAngles& reference)
{
    const nbEulerRotation::Order& order = nbEulerRotation::getOrder(angles.order);
    const Angles wanted = valuesOf(reference);
    const Angles given = valuesOf(angles);
    const auto [i, j, k] = order.axes;
    if (std::fabs(std::fabs(unwound(given[j], 0.0)) - kPi / 2) < kLockedAngle) {
        return makeAngles(nearestLocked(given, wanted, order), angles.order);
    }
    const Angles same = allUnwound(given, wanted);
    // The other three angles of the same rotation differ by half turns about two axes: they are no
    // nearer than these if these are within half of that.
    if (squaredDistance(same, wanted) < kPi * kPi / 2) {
        return makeAngles(same, angles.order);
    }
    Angles turned = given;
    turned[i] += kPi;
    turned[j] = kPi - turned[j];
    turned[k] += kPi;
    turned = allUnwound(turned, wanted);
    return makeAngles(squaredDistance(turned, wanted) < squaredDistance(same, wanted) ? turned
                                                                                      : same,
                      angles.order);
}
