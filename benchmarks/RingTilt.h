// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace nbec::manipulator::test {

/// What drags on a ring give, in degrees, at one tilt of the ring against the line of sight: radius
/// 1 around the point looked at from 10 away, field of view 45, 800 x 600 pixels, dragged 40 pixels
/// sideways, away from the nearest point, in steps of one pixel.
struct RingTilt
{
    double tiltDeg;
    double cleanDeg;  ///< along a straight way
    double
        wobbleDeg;  ///< greatest deviation from clean, at the end, with wobbles of 4 pixels across
    double backDeg;  ///< left after going back to the start
    bool isFinite;  ///< no step missed the drag plane or jumped by more than 45 degrees
};

/// @param besideDeg  angle on the ring between its nearest point and the grabbed one
RingTilt measureRingTilt(double tiltDeg, double besideDeg);

/// Tilts 0 to 90 in steps of 1 degree.
std::vector<RingTilt> measureRingTilts(double besideDeg);

/// Angle gathered by one way around a ring that faces the viewer, degrees.
double measureFullCircle();

}  // namespace nbec::manipulator::test
