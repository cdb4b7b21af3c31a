// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/detail/PlateFrame.h"
#include "manipulator/detail/PreviewPause.h"
#include "manipulator/nbSceneplateManipulator.h"

/// Colours of handles and guides, in the order of the manipulator's material arrays.
enum class SceneplateColor : std::size_t
{
    Yellow,
    Blue,
    Orange,
    Purple,
    Shadow,  ///< around the others, so that they are seen on every plate
    Count
};

/// How a handle is built.
enum class SceneplateHandleKind
{
    Box,
    Arm,
    Body
};

/// One row of the handle table. The order of rows is that of the tree, so that of two handles at
/// one place the first is hit.
struct nbSceneplateManipulator::HandleRow
{
    const char* name;
    ActiveMode mode;
    SceneplateHandleKind kind;
    SceneplateColor idle;
};

/// What a drag knows of its start, and how far it has come.
struct nbSceneplateManipulator::Drag
{
    nbec::manipulator::detail::PreviewPause preview;  ///< ends with the drag
    nbec::manipulator::detail::PlateFrame start;
    osg::Pnt2f pressedPx;
    nbec::manipulator::detail::PlateArm arm;
    int widthPx = 0;
    int heightPx = 0;
    bool isBroken = false;  ///< other plates were set
    nbec::manipulator::detail::PlateChange change;  ///< sent last
    nbec::manipulator::detail::PlateGuides guides;
    double turned = 0.0;  ///< angle of the pointer since the start, degrees, whole turns counted
};
