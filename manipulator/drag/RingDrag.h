// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/drag/DragParameters.h"
#include "manipulator/nbManipulatorExport.h"

#include <OpenSG/OSGLine.h>
#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGPlane.h>
#include <OpenSG/OSGVector.h>

#include <optional>

namespace nbec::manipulator {

/// How a camera looks, world space.
struct Sight
{
    osg::Vec3f ahead;  ///< along its axis, unit length
    std::optional<osg::Pnt3f> eye;  ///< none of a parallel projection
};

/// A ring as the start of a drag finds it, and how its points are measured.
///
/// A ring whose axis points within 70 degrees along the line of sight is measured in its own plane.
/// Nearer to edge-on a pointer ray meets that plane at a grazing angle, so that a pixel would mean
/// anything. There the drawn ring is a wire and the grabbed point a bead on it: the pointer is
/// followed in a plane that faces the viewer, and the bead goes to the nearest point of the ring on
/// screen, downhill from where it was, so that it does not jump to the ring's other side but where
/// it was grabbed. Either way the pointer comes to a point in the ring's own plane.
struct NB_MANIPULATOR_API RingDrag
{
    osg::Pnt3f center;
    osg::Vec3f radial;  ///< unit vector to the grabbed point
    osg::Vec3f tangent;  ///< the way that the grabbed point goes in a positive turn
    osg::Vec3f normal;
    float radius = 0.0F;
    Sight sight;
    bool isWire = false;

    /// Captures a ring. @param axis  unit length @param grabbed  of the ring; only its direction
    /// from the centre and its distance from the axis count
    static RingDrag begin(const osg::Pnt3f& center, const osg::Vec3f& axis,
                          const osg::Pnt3f& grabbed, const Sight& sight);

    /// No ring: the pointer is followed in the plane through a place.
    static RingDrag flat(const osg::Vec3f& normal, const osg::Pnt3f& place);

    /// The plane in which the pointer is followed.
    osg::Plane plane() const { return osg::Plane(isWire ? sight.ahead : normal, center); }

    /// World from the ring's frame: the normal is its axis, radial and tangent are the next two in
    /// cyclic order, so that a positive turn goes the way of the frame's axes.
    /// @param axis  0, 1 or 2
    osg::Matrix frame(osg::UInt32 axis) const;

    /// Where the pointer has come to, as followPlane(); a bead's place is kept in the track.
    std::optional<osg::Pnt3f> follow(const std::optional<osg::Line>& ray, DragTrack& track) const;

private:
    osg::Vec3d armAt(double angle) const;
    double distanceOnScreen(double angle, const osg::Vec3d& hit) const;
    double beadAt(const osg::Vec3d& hit, double from) const;
};

}  // namespace nbec::manipulator
