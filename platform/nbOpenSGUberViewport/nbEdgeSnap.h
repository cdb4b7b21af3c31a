// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGUberViewport/nbPhotographFit.h>

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGVector.h>

/// A line over a view, device pixels from the lower left corner, y up.
struct nbViewLine
{
    osg::Pnt2f first;
    osg::Pnt2f second;
};

/// Lays lines onto edges of a photograph.
struct nbEdgeSnap
{
    /// How far an end goes at most, device pixels.
    static constexpr osg::Real32 kReachPx = 6.0F;
    /// What an edge must be at least: mean difference of brightness, 0 to 1, from one side of the
    /// line to the other, two pixels of the view apart.
    static constexpr osg::Real32 kFaintest = 0.04F;

    /// Moves ends of a line across it to where the photograph's brightness changes most from one
    /// side of the line to the other, in one direction along the whole line: differences that
    /// change their sign, as in a texture, cancel out.
    /// @param image  1 to 4 bytes per pixel; others have no edges
    /// @param movesFirst, movesSecond  which ends may move; both move alike
    /// @return the line as it was where there is no edge within reach
    NB_PLATFORM_API static nbViewLine onto(const osg::ImagePtr& image, const nbPhotographFit& fit,
                                           const nbViewLine& line, bool movesFirst,
                                           bool movesSecond);
};
