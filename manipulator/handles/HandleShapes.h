// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/nbManipulatorExport.h"

#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGQuaternion.h>

// Of X11's headers.
#pragma push_macro("None")
#undef None

namespace nbec::manipulator {

/// Turns by a right angle with which handles are laid onto their axes.
enum class Turn
{
    None,
    OntoX,  ///< +y onto +x: -90 degrees about z
    OntoZ,  ///< +y onto +z: +90 degrees about x
    OntoMinusX,  ///< +y onto -x: +90 degrees about z
    OntoMinusZ,  ///< +y onto -z: -90 degrees about x
    AboutY,  ///< -90 degrees about y
    ZOntoX  ///< +z onto +x: +90 degrees about y
};

NB_MANIPULATOR_API osg::Quaternion quaternionOf(Turn turn);

/// The same turn as angles about x, y and z, degrees.
NB_MANIPULATOR_API osg::Vec3f eulerDegOf(Turn turn);

/// Geometry of handles that all gizmos share: built once per process, on first use.
enum class HandleShape
{
    ArrowShaft,  ///< line of length 2 along y, centred
    ArrowHead,  ///< cone, height 0.4, radius 0.1, 24 sides, axis y, centred
    ScaleShaft,  ///< line of length 1.5 along y, centred at 0.75
    ScaleCube,  ///< box of 0.175, centred at 1.5 on y
    Cube,  ///< box of 0.175, centred
    Ring,  ///< line circle of radius 1.5 about y, 36 segments
    RingAxis,  ///< line of length 20 along y, centred
    PlanePatch,  ///< square of 0.4 in the xy plane, centred at (0.2, 0.2)
    PlaneBarX,  ///< bar of length 0.4 along x, centred at (0.2, 0.4): cylinder, radius 0.02, 8
                ///< sides
    PlaneBarY,  ///< bar of length 0.4 along y, centred at (0.4, 0.2)
    CentreSphere,  ///< sphere of radius 0.125

    // Solid handles of texture gizmos
    SolidArrowShaft,  ///< cylinder, height 2, radius 0.03, 8 sides, axis y, centred
    SolidArrowHead,  ///< ArrowHead centred at 1 on y
    SolidPatch,  ///< box 0.4 x 0.4 x 0.025, centred at (0.2, 0.2)
    SolidBarX,  ///< cylinder, height 0.4, radius 0.03, 8 sides, along x, centred at (0.2, 0.4)
    SolidBarY,  ///< the same along y, centred at (0.4, 0.2)
    SolidScaleShaftX,  ///< cylinder, height 2.5, radius 0.02, 8 sides, from the origin along x
    SolidScaleShaftY,  ///< the same along y
    SolidScaleShaftMinusZ,  ///< the same along -z
    ScaleTabX,  ///< box 0.3 x 0.25 x 0.025, centred at 2.5 on x
    ScaleTabY,  ///< box 0.25 x 0.3 x 0.025, centred at 2.5 on y
    ScaleTabMinusZ,  ///< box 0.25 x 0.25 x 0.025 turned by Turn::AboutY, centred at -2.5 on z
    BigCube,  ///< box of 0.25, centred
    SolidRing,  ///< torus about z, radius of the tube 0.03, of the ring 1, 6 sides, 36 rings
    RingGrip,  ///< sphere of radius 0.125, centred at -1 on x
    UprightTab,  ///< box 0.2 x 0.4 x 0.025, centred
    LyingTab,  ///< box 0.4 x 0.2 x 0.025, centred
    SquareTab,  ///< box 0.4 x 0.4 x 0.025, centred
    ScaleTabXY,  ///< box 0.25 x 0.3 x 0.025, centred at (2.5, 2.5)
    SlimArrowShaft,  ///< cylinder, height 1.9125, radius 0.02, 8 sides, axis y, centred
    LongScaleShaft,  ///< line of length 2.5 along y, centred
    SolidBigRing,  ///< torus about z, radius of the tube 0.02, of the ring 1.5, 6 sides, 36 rings
    UnitCircle,  ///< line circle of radius 1 about x, 72 segments

    // Handles that lie flat on the screen
    Square,  ///< square of 1 in the xy plane, centred
    SquareOutline  ///< its sides as lines
};

/// A new node with a Geometry core of its own whose positions, normals, indices and so on are
/// shared with all other nodes of the shape: visibility and colour sit on the core, so that no two
/// handles share one. No material is set.
NB_MANIPULATOR_API osg::NodePtr makeShapeNode(HandleShape shape);

}  // namespace nbec::manipulator

#pragma pop_macro("None")
