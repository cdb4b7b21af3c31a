// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>

namespace nbec::interaction::detail {

/// A position on screen, device pixels, y from the top.
struct ScreenPoint
{
    float x = 0.0F;
    float y = 0.0F;
};

/// The point of a segment or triangle nearest to a position on screen, as weights of the corners
/// (sum 1).
struct ScreenNearest
{
    float weights[3] = { 1.0F, 0.0F, 0.0F };
    float squaredDistancePx = 0.0F;
};

/// Axis-parallel box on screen, edges included. Empty (nothing is near it) until something is
/// added.
struct ScreenBox
{
    static constexpr float kFar = 3.0e38F;

    float minX = kFar;
    float minY = kFar;
    float maxX = -kFar;
    float maxY = -kFar;

    void extend(const ScreenPoint& p)
    {
        minX = std::min(minX, p.x);
        minY = std::min(minY, p.y);
        maxX = std::max(maxX, p.x);
        maxY = std::max(maxY, p.y);
    }

    void extend(const ScreenBox& box)
    {
        minX = std::min(minX, box.minX);
        minY = std::min(minY, box.minY);
        maxX = std::max(maxX, box.maxX);
        maxY = std::max(maxY, box.maxY);
    }

    /// @return whether p lies within `margin` pixels of the box along both axes; false for NaN and
    /// for an empty box
    bool isNear(const ScreenPoint& p, float margin) const
    {
        // No short circuit: the four comparisons together are cheaper than a branch that is
        // predicted badly.
        return static_cast<int>(p.x >= minX - margin) & static_cast<int>(p.x <= maxX + margin) &
            static_cast<int>(p.y >= minY - margin) & static_cast<int>(p.y <= maxY + margin);
    }
};

/// Nearest point of the segment a b to p. weights[2] is 0; for a segment without length weights[0]
/// is 1. With s = (p - a).(b - a) / |b - a|^2, clamped to 0 .. 1, the point is a + s (b - a).
inline ScreenNearest nearestOnSegment(const ScreenPoint& p, const ScreenPoint& a,
                                      const ScreenPoint& b)
{
    const float dx = b.x - a.x;
    const float dy = b.y - a.y;
    const float px = p.x - a.x;
    const float py = p.y - a.y;
    const float squaredLength = dx * dx + dy * dy;
    const float s =
        squaredLength > 0.0F ? std::clamp((px * dx + py * dy) / squaredLength, 0.0F, 1.0F) : 0.0F;
    const float rx = px - s * dx;
    const float ry = py - s * dy;
    return { { 1.0F - s, s, 0.0F }, rx * rx + ry * ry };
}

/// Twice the signed area of the triangle u v w.
inline float doubleArea(const ScreenPoint& u, const ScreenPoint& v, const ScreenPoint& w)
{
    return (v.x - u.x) * (w.y - u.y) - (w.x - u.x) * (v.y - u.y);
}

/// Whether p lies beyond the line through u and v by more than `reachPx`, on the side where the
/// doubled area of u v p has the opposite sign of `winding`: |area| > reach |v - u|, squared.
inline bool isBeyondEdge(float area, float winding, const ScreenPoint& u, const ScreenPoint& v,
                         float reachPx)
{
    const float dx = v.x - u.x;
    const float dy = v.y - u.y;
    return area * winding < 0.0F && area * area > reachPx * reachPx * (dx * dx + dy * dy);
}

/// Nearest point of the filled triangle a b c to p, whichever way it winds; distance 0 inside and
/// on the edges. A triangle without area (seen edge-on) is the union of its edges.
/// @param reachPx  positions farther away than this may be given kFar as their squared distance
inline ScreenNearest nearestOnTriangle(const ScreenPoint& p, const ScreenPoint& a,
                                       const ScreenPoint& b, const ScreenPoint& c, float reachPx)
{
    const float whole = doubleArea(a, b, c);
    const float wa = doubleArea(p, b, c);
    const float wb = doubleArea(p, c, a);
    const float wc = doubleArea(p, a, b);
    const bool inside = whole > 0.0F ? wa >= 0.0F && wb >= 0.0F && wc >= 0.0F
                                     : whole < 0.0F && wa <= 0.0F && wb <= 0.0F && wc <= 0.0F;
    if (inside) {
        const float scale = 1.0F / (wa + wb + wc);
        return { { wa * scale, wb * scale, wc * scale }, 0.0F };
    }
    if (isBeyondEdge(wa, whole, b, c, reachPx) || isBeyondEdge(wb, whole, c, a, reachPx) ||
        isBeyondEdge(wc, whole, a, b, reachPx)) {
        return { { 1.0F, 0.0F, 0.0F }, ScreenBox::kFar };
    }
    ScreenNearest nearest = nearestOnSegment(p, a, b);
    const ScreenNearest onBC = nearestOnSegment(p, b, c);
    if (onBC.squaredDistancePx < nearest.squaredDistancePx) {
        nearest = { { 0.0F, onBC.weights[0], onBC.weights[1] }, onBC.squaredDistancePx };
    }
    const ScreenNearest onCA = nearestOnSegment(p, c, a);
    if (onCA.squaredDistancePx < nearest.squaredDistancePx) {
        nearest = { { onCA.weights[1], 0.0F, onCA.weights[0] }, onCA.squaredDistancePx };
    }
    return nearest;
}

}  // namespace nbec::interaction::detail
