// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUtils/nbEulerUtils.h>

#include <OpenSG/OSGVector.h>

#include <array>
#include <cstddef>

namespace nbec::manipulator::detail {

/// Quaternion of an angle about an axis. @param axis  of any length; one that is not longer than
/// 1e-6 gives the identity
nbQuaterniond turnAbout(const osg::Vec3f& axis, double angleRad);

/// An angle with its cosine and sine, worked out once for all that turn by it.
struct TurnAngle
{
    explicit TurnAngle(double angle);

    double angleRad;
    double cosine;
    double sine;
};

/// The Euler angles of a rotation that turns about an axis, away from where it starts. Of all
/// angles that give the rotation they are those nearest to the ones before, as
/// nbEulerUtils::multiply gives them, so that they go on smoothly past whole turns and past the
/// ends of the middle angle. Turned a little further, an angle costs no sine and no arctangent: it
/// grows by what the turn adds to it.
class TurningAngles
{
public:
    /// No rotation, order 0, and no axis.
    TurningAngles();

    /// @param anglesRad  to start from, with the order to keep
    /// @param axis  in the frame that the rotation leads to; see turnAbout()
    TurningAngles(const nbEulerAngles& anglesRad, const osg::Vec3f& axis);

    /// Turns by an angle, measured from the start, whatever was between.
    void turnTo(const TurnAngle& angle);

    /// Radians, in the order of the start.
    nbEulerAngles getAngles() const { return { values[0], values[1], values[2], orderNumber }; }

private:
    static constexpr std::size_t kAxes = 3;

    /// Cosines and sines of the three angles in the order of turning, each pair times the same
    /// positive number.
    struct Directions
    {
        std::array<double, kAxes> cosines;
        std::array<double, kAxes> sines;
    };

    /// Elements of the rotation's matrix that the directions are made of.
    enum Element : std::size_t
    {
        FirstCosine,
        LastCosine,
        FirstSine,
        LastSine,
        MiddleSine,
        ElementCount
    };

    using Elements = std::array<double, ElementCount>;

    Elements elementsOf(const nbRotationMath::Rows& matrix) const;
    Directions directionsAt(const TurnAngle& angle) const;
    bool follow(const Directions& next);
    void findAngles(const TurnAngle& angle);

    std::array<double, kAxes> values {};  ///< the angles about x, y and z
    double side = 1.0;  ///< sign of the middle angle's cosine
    const nbEulerRotation::Order* order;
    int orderNumber = 0;
    Directions directions;
    /// Turned by an angle, an element is fixed + cosine * along + sine * across.
    Elements fixed {};
    Elements along {};
    Elements across {};
    nbQuaterniond start;
    osg::Vec3f axis;
};

}  // namespace nbec::manipulator::detail
