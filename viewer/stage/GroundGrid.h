// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/stage/Lines.h"

#include <OpenSG/OSGBoxVolume.h>

namespace viewer {

/// A grid on the ground, the plane through the origin across the upward axis: cells of 1, 10, 0.1
/// or another power of ten, as the scene is large.
class GroundGrid
{
public:
    GroundGrid();

    /// Lays the grid below a scene; edits the lines only if they are others than before.
    /// @param bounds  of the scene, world; empty: no grid
    /// @param upAxis  1 for y, 2 for z
    void lay(const osg::BoxVolume& bounds, osg::UInt32 upAxis);

    void hide();

private:
    HelperLines lines;
    osg::Pnt3f middle;
    float cell = 0.0F;  ///< 0: hidden
    osg::UInt32 up = 1;
};

}  // namespace viewer
