// SPDX-License-Identifier: MIT
#pragma once

#include <array>

/// The corners of a box along the axes, x changing first.
template <class Point>
std::array<Point, 8> nbBoxCorners(const Point& low, const Point& high)
{
    std::array<Point, 8> corners;
    for (unsigned i = 0; i < corners.size(); ++i) {
        corners[i] = Point((i & 1) != 0 ? high[0] : low[0], (i & 2) != 0 ? high[1] : low[1],
                           (i & 4) != 0 ? high[2] : low[2]);
    }
    return corners;
}
