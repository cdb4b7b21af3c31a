// SPDX-License-Identifier: MIT
#include "manipulator/drag/RingDrag.h"

#include "manipulator/drag/DragGeometry.h"

#include <cmath>

namespace nbec::manipulator {

namespace {

/// Cosine of 70 degrees.
constexpr double kWireCosine = 0.3420201433256687;
/// Radians. A bead goes in steps that are too short to leap over the ring's ends on screen; of
/// powers of two sums are exact, so that the way back ends where the way there began.
constexpr double kFirstStep = 1.0 / 64;
constexpr double kLastStep = 1e-5;
constexpr double kWholeTurn = 2.0 * 3.14159265358979323846;

/// Any unit vector at right angles to a unit vector.
osg::Vec3f anyPerpendicular(const osg::Vec3f& axis)
{
    osg::Vec3f result = axis.cross(std::abs(axis.x()) < 0.5F ? osg::Vec3f(1.0F, 0.0F, 0.0F)
                                                             : osg::Vec3f(0.0F, 1.0F, 0.0F));
    result.normalize();
    return result;
}

}  // namespace

RingDrag RingDrag::begin(const osg::Pnt3f& center, const osg::Vec3f& axis,
                         const osg::Pnt3f& grabbed, const Sight& sight)
{
    RingDrag ring;
    const osg::Vec3f arm = grabbed - center;
    const osg::Vec3f radial = arm - axis * arm.dot(axis);
    ring.center = center;
    ring.normal = axis;
    ring.radius = radial.length();
    ring.radial = ring.radius > 0.0F ? radial * (1.0F / ring.radius) : anyPerpendicular(axis);
    ring.tangent = axis.cross(ring.radial);
    ring.sight = sight;
    const osg::Vec3f toCenter = sight.eye ? center - *sight.eye : sight.ahead;
    ring.isWire = std::abs(axis.dot(toCenter)) < kWireCosine * toCenter.length();
    return ring;
}

RingDrag RingDrag::flat(const osg::Vec3f& normal, const osg::Pnt3f& place)
{
    RingDrag plane;
    plane.normal = normal;
    plane.center = place;
    return plane;
}

osg::Matrix RingDrag::frame(osg::UInt32 axis) const
{
    osg::Matrix result;
    const osg::Vec3f* const columns[] = { &normal, &radial, &tangent };
    for (osg::UInt32 i = 0; i < 3; ++i) {
        const osg::Vec3f& each = *columns[i];
        result[(axis + i) % 3] = osg::Vec4f(each.x(), each.y(), each.z(), 0.0F);
    }
    result.setTranslate(center);
    return result;
}

std::optional<osg::Pnt3f> RingDrag::follow(const std::optional<osg::Line>& ray,
                                           DragTrack& track) const
{
    DragTrack met = track;
    met.start = isWire ? track.grabbed : track.start;
    std::optional<osg::Pnt3f> hit = followPlane(plane(), ray, met);
    if (hit && isWire) {
        // Back where it was grabbed the bead is as well, whichever way the pointer has come.
        const double from =
            track.grabbed == hit ? kWholeTurn * std::round(track.bead / kWholeTurn) : track.bead;
        track.grabbed = met.start;
        track.bead = beadAt(osg::Vec3d(*hit - center), from);
        const osg::Vec3d arm = armAt(track.bead);
        hit = center +
            osg::Vec3f(static_cast<float>(arm.x()), static_cast<float>(arm.y()),
                       static_cast<float>(arm.z()));
    }
    track.start = track.start ? track.start : hit;
    return hit;
}

/// From the centre to the ring's point at an angle from the grabbed one.
osg::Vec3d RingDrag::armAt(double angle) const
{
    return (osg::Vec3d(radial) * std::cos(angle) + osg::Vec3d(tangent) * std::sin(angle)) *
        static_cast<double>(radius);
}

/// Squared distance in the plane that faces the viewer, from a point of it to where a point of the
/// ring is seen in it.
double RingDrag::distanceOnScreen(double angle, const osg::Vec3d& hit) const
{
    const osg::Vec3d ahead = osg::Vec3d(sight.ahead);
    const osg::Vec3d arm = armAt(angle);
    const osg::Vec3d line = sight.eye ? arm - osg::Vec3d(*sight.eye - center) : ahead;
    return (arm - line * (ahead.dot(arm) / ahead.dot(line)) - hit).squareLength();
}

/// The angle at which the distance is least, downhill from another one.
double RingDrag::beadAt(const osg::Vec3d& hit, double from) const
{
    double angle = from;
    double distance = distanceOnScreen(angle, hit);
    for (double step = kFirstStep; step > kLastStep; step /= 2) {
        for (const double way : { step, -step }) {
            double next = distanceOnScreen(angle + way, hit);
            while (next < distance) {
                angle += way;
                distance = next;
                next = distanceOnScreen(angle + way, hit);
            }
        }
    }
    return angle;
}

}  // namespace nbec::manipulator
