// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/PerspectiveMatchLine.h"

#include <nbOpenSGExt/Line2D.h>

#include <OpenSG/OSGMatrix.h>
#include <OpenSG/OSGVector.h>

#include <array>
#include <cstddef>
#include <vector>

/// Arithmetic of the perspective match overlay, without widget and nodes.
///
/// Line coordinates have their origin in the lower left corner of the view, x to the right and y
/// up; their unit is the reference size, a number of device pixels.
namespace nbec::manipulator::match {

constexpr std::size_t kMatchLineCount = 6;
constexpr std::size_t kMatchAxisCount = 3;

/// Parts of a line that can be grabbed, as the manipulator numbers them.
constexpr osg::UInt32 kNoPart = 0;
constexpr osg::UInt32 kLineBody = 1;
constexpr osg::UInt32 kFirstEnd = 2;
constexpr osg::UInt32 kSecondEnd = 3;

/// Sizes of what is drawn and of what is hit around it, logical pixels.
constexpr float kLineWidthPx = 2.0F;
constexpr float kEndRadiusPx = 6.0F;
constexpr float kHitTolerancePx = 4.0F;

/// A line and a part of it.
struct MatchPart
{
    PerspectiveMatchLine line = PerspectiveMatchLine::NoLine;
    osg::UInt32 part = kNoPart;

    bool isSet() const { return line != PerspectiveMatchLine::NoLine && part != kNoPart; }

    bool operator==(const MatchPart& other) const
    {
        return line == other.line && part == other.part;
    }
};

/// The view that the lines lie in.
struct MatchView
{
    int widthPx = 0;  ///< device pixels
    int heightPx = 0;
    float referencePx = 0.0F;  ///< device pixels per unit of line coordinates
    float pixelRatio = 1.0F;  ///< device pixels per logical pixel

    bool operator==(const MatchView& other) const
    {
        return widthPx == other.widthPx && heightPx == other.heightPx &&
            referencePx == other.referencePx && pixelRatio == other.pixelRatio;
    }

    bool hasArea() const { return widthPx > 0 && heightPx > 0 && referencePx > 0.0F; }
};

/// The six lines in their order X1, X2, Y1, Y2, Z1, Z2, and the axes that count.
struct MatchLines
{
    std::array<osg::Line2D, kMatchLineCount> lines;
    std::array<bool, kMatchAxisCount> isAxisUsed { true, true, true };

    bool operator==(const MatchLines& other) const
    {
        return lines == other.lines && isAxisUsed == other.isAxisUsed;
    }
};

/// Index of a line in MatchLines. @param line  one of the six
constexpr std::size_t matchLineIndex(PerspectiveMatchLine line)
{
    return static_cast<std::size_t>(line) - 1;
}

/// Axis of the line with an index: 0 x, 1 y, 2 z.
constexpr std::size_t matchAxisOfLine(std::size_t lineIndex)
{
    return lineIndex / 2;
}

/// Whether a line can be drawn: its coordinates are finite and not all of them 0. A line whose ends
/// coincide elsewhere is shown, so that they can be pulled apart again.
bool isMatchLineShown(const osg::Line2D& line);

/// The matrix that brings line coordinates to clip space: 4x4, column vectors, depth 0 for z = 0.
/// The identity for a view without area.
osg::Matrix clipFromLineUnits(const MatchView& view);

/// The part under the pointer. Ends come before bodies, however near a body is; within a kind the
/// nearest wins, at equal distance a line whose axis counts, then the first in order.
/// @param pointerPx  centre of the pointer's pixel, device pixels, origin lower left, y up
/// @return not set if nothing lies within the drawn half width and the tolerance
MatchPart partUnderPointer(const MatchLines& lines, const MatchView& view,
                           const osg::Pnt2f& pointerPx);

/// Distance from the origin, reference sizes, beyond which lines count as parallel.
constexpr double kFarthestVanishingPoint = 200.0;

/// Where the lines of one axis meet: the point as (x, y, 1), line coordinates; of parallel lines
/// (x, y, 0) with their direction, of unit length; zero if a line has no length or both are one.
osg::Vec3d vanishingPointOf(const osg::Line2D& first, const osg::Line2D& second);

/// Pairs of ends, line coordinates with z = 0.
using MatchSegments = std::vector<osg::Pnt3f>;

/// What helps to aim during a drag. Of each axis that counts: both lines extended to where they
/// vanish, with a small cross there; parallel ones extended both ways. Then the horizon: the line
/// through the points where the two horizontal axes vanish.
using MatchGuides = std::array<MatchSegments, kMatchAxisCount + 1>;

/// Guides, cut at the edges of the view, so that they are few however far the lines reach.
/// @param upAxis  the vertical axis of the world, 1 for y or 2 for z
MatchGuides makeMatchGuides(const MatchLines& lines, const MatchView& view, std::size_t upAxis);

}  // namespace nbec::manipulator::match
