// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUtils/nbEulerUtils.h>

#include <array>

namespace nbec::manipulator::detail {

/// A rotation that is turned step by step, together with its Euler angles. Of all angles that give
/// the rotation they are those nearest to the ones before, as nbEulerUtils::multiply gives them, so
/// that they go on smoothly past whole turns and past the ends of the middle angle. A small turn
/// costs no sine and no arctangent: each angle grows by what the step adds to it.
class TurningAngles
{
public:
    /// No rotation, order 0.
    TurningAngles() = default;

    /// @param anglesRad  to start from, with the order to keep
    explicit TurningAngles(const nbEulerAngles& anglesRad);

    /// Turns further, about an axis of the frame that the rotation leads to. @param step  unit
    void turn(const nbQuaterniond& step);

    /// Radians, in the order of the start.
    const nbEulerAngles& getAngles() const { return angles; }

    const nbQuaterniond& getRotation() const { return rotation; }

private:
    /// Cosine and sine of an angle, both times the same positive number.
    struct Direction
    {
        double cosine = 1.0;
        double sine = 0.0;
    };

    using Directions = std::array<Direction, 3>;

    Directions directionsOf(const nbQuaterniond& turned) const;
    bool follow(const Directions& next);

    nbQuaterniond rotation;
    nbEulerAngles angles;
    Directions directions;  ///< of the angles about x, y and z
    double side = 1.0;  ///< sign of the middle angle's cosine
};

}  // namespace nbec::manipulator::detail
