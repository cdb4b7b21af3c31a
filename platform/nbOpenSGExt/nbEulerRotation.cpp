// SPDX-License-Identifier: MIT
#include "nbEulerRotation.h"

#include <nbOpenSGExt/nbRotationMath.h>

#include <cctype>
#include <cmath>

namespace {

constexpr double kRadPerDeg = 3.14159265358979323846 / 180.0;
constexpr double kFloatGimbalCosine = 1e-6;
constexpr double kDoubleGimbalCosine = 1e-10;

struct NamedOrder
{
    const char* name;
    nbEulerRotation::Order order;
};

constexpr std::array<NamedOrder, nbEulerRotation::kOrderCount> kOrders { {
    { "xyz", { { 0, 1, 2 }, 1.0 } },
    { "yzx", { { 1, 2, 0 }, 1.0 } },
    { "zxy", { { 2, 0, 1 }, 1.0 } },
    { "xzy", { { 0, 2, 1 }, -1.0 } },
    { "yxz", { { 1, 0, 2 }, -1.0 } },
    { "zyx", { { 2, 1, 0 }, -1.0 } },
} };

const NamedOrder& namedOrder(int order)
{
    return kOrders[order > 0 && order < nbEulerRotation::kOrderCount
                       ? static_cast<std::size_t>(order)
                       : 0];
}

bool isSameText(const char* name, const std::string& order)
{
    if (order.size() != 3) {
        return false;
    }
    for (std::size_t i = 0; i < 3; ++i) {
        if (name[i] != order[i] && name[i] != std::tolower(static_cast<unsigned char>(order[i]))) {
            return false;
        }
    }
    return true;
}

using nbRotationMath::Rows;

/// With R = Rk(c) Rj(b) Ri(a) and e = +-1 for the order's parity, the elements are R_ki = -e sin b,
/// R_kj = e cos b sin a, R_kk = cos b cos a, R_ji = e cos b sin c, R_ii = cos b cos c.
std::array<double, 3> anglesOf(const Rows& r, int order, double gimbalCosine)
{
    const nbEulerRotation::Order& axes = nbEulerRotation::getOrder(order);
    const auto [i, j, k] = axes.axes;
    const double e = axes.sign;
    const double cosine = std::sqrt(r[i][i] * r[i][i] + r[j][i] * r[j][i]);
    const bool locked = cosine < gimbalCosine;
    std::array<double, 3> anglesRad {};
    anglesRad[i] = locked ? std::atan2(-e * r[j][k], r[j][j]) : std::atan2(e * r[k][j], r[k][k]);
    anglesRad[j] = std::atan2(-e * r[k][i], cosine);
    anglesRad[k] = locked ? 0.0 : std::atan2(e * r[j][i], r[i][i]);
    return anglesRad;
}

struct HalfTurn
{
    double sine = 0.0;
    double cosine = 1.0;
};

HalfTurn halfTurnRad(double angleRad)
{
    if (angleRad == 0.0) {
        return {};
    }
    return { std::sin(0.5 * angleRad), std::cos(0.5 * angleRad) };
}

/// Sine and cosine of half an angle in degrees, to 1e-11: far below what a float keeps, and quick.
/// The angle is reduced in degrees, which is exact, so that half turns come out exact too. The rest
/// is at most a quarter of pi; there the series end with x^11 / 11! and x^12 / 12!.
inline HalfTurn halfTurnDeg(double angleDeg)
{
    constexpr double kLargest = 1e6;
    const double half =
        0.5 * (std::fabs(angleDeg) < kLargest ? angleDeg : std::fmod(angleDeg, 720.0));
    if (!std::isfinite(half)) {
        return { half - half, half - half };
    }
    const auto quarter = static_cast<int>(half * (1.0 / 90.0) + (half < 0.0 ? -0.5 : 0.5));
    const double x = kRadPerDeg * (half - 90.0 * quarter);
    // Terms in pairs, so that they do not wait for each other.
    const double x2 = x * x;
    const double x4 = x2 * x2;
    const double sine = x *
        ((1.0 - x2 * (1.0 / 6)) +
         x4 * ((1.0 / 120 - x2 * (1.0 / 5040)) + x4 * (1.0 / 362880 - x2 * (1.0 / 39916800))));
    const double cosine = (1.0 - 0.5 * x2) +
        x4 *
            ((1.0 / 24 - x2 * (1.0 / 720)) +
             x4 * ((1.0 / 40320 - x2 * (1.0 / 3628800)) + x4 * (1.0 / 479001600)));
    const bool isSwapped = (quarter & 1) != 0;
    const double first = isSwapped ? cosine : sine;
    const double second = isSwapped ? sine : cosine;
    return { (quarter & 2) != 0 ? -first : first, ((quarter + 1) & 2) != 0 ? -second : second };
}

/// The product qk qj qi of three turns about the axes of an order, multiplied out.
/// @param turns  about x, y, z
nbQuaterniond product(const std::array<HalfTurn, 3>& turns, const nbEulerRotation::Order& order)
{
    const auto [i, j, k] = order.axes;
    const double e = order.sign;
    const HalfTurn& first = turns[i];
    const HalfTurn& middle = turns[j];
    const HalfTurn& last = turns[k];
    const double cosines = first.cosine * middle.cosine;
    const double sines = first.sine * middle.sine;
    const double firstOnly = first.sine * middle.cosine;
    const double middleOnly = first.cosine * middle.sine;
    std::array<double, 3> axis {};
    axis[i] = firstOnly * last.cosine - e * middleOnly * last.sine;
    axis[j] = middleOnly * last.cosine + e * firstOnly * last.sine;
    axis[k] = cosines * last.sine - e * sines * last.cosine;
    nbQuaterniond result;
    result.setValueAsQuat(axis[0], axis[1], axis[2], cosines * last.cosine + e * sines * last.sine);
    return result;
}

}  // namespace

int nbEulerRotation::getOrderNumber(const std::string& order)
{
    for (std::size_t i = 0; i < kOrders.size(); ++i) {
        if (isSameText(kOrders[i].name, order)) {
            return static_cast<int>(i);
        }
    }
    return 0;
}

const char* nbEulerRotation::getOrderName(int order)
{
    return namedOrder(order).name;
}

const nbEulerRotation::Order& nbEulerRotation::getOrder(int order)
{
    return namedOrder(order).order;
}

nbQuaterniond nbEulerRotation::toQuaternion(const std::array<double, 3>& anglesRad, int order)
{
    return product(
        { halfTurnRad(anglesRad[0]), halfTurnRad(anglesRad[1]), halfTurnRad(anglesRad[2]) },
        getOrder(order));
}

osg::Quaternion nbEulerRotation::toQuaternion(const osg::Vec3f& anglesDeg, const std::string& order)
{
    return nbRotationMath::toFloat(product({ halfTurnDeg(static_cast<double>(anglesDeg[0])),
                                             halfTurnDeg(static_cast<double>(anglesDeg[1])),
                                             halfTurnDeg(static_cast<double>(anglesDeg[2])) },
                                           getOrder(getOrderNumber(order))));
}

std::array<double, 3> nbEulerRotation::fromQuaternion(const nbQuaterniond& rotation, int order)
{
    return anglesOf(nbRotationMath::rotationRows(rotation), order, kDoubleGimbalCosine);
}

osg::Vec3f nbEulerRotation::fromQuaternion(const osg::Quaternion& rotation,
                                           const std::string& order)
{
    const std::array<double, 3> anglesRad =
        anglesOf(nbRotationMath::rotationRows(nbRotationMath::toDouble(rotation)),
                 getOrderNumber(order), kFloatGimbalCosine);
    return { static_cast<osg::Real32>(anglesRad[0] / kRadPerDeg),
             static_cast<osg::Real32>(anglesRad[1] / kRadPerDeg),
             static_cast<osg::Real32>(anglesRad[2] / kRadPerDeg) };
}
