// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/detail/PlateFrame.h"
#include "manipulator/nbSceneplateManipulator.h"

/// Materials of handles and guides, in the order of the manipulator's array.
enum class SceneplateMaterial : std::size_t
{
    YellowSolid,
    BlueSolid,
    OrangeSolid,
    YellowLine,
    BlueLine,
    OrangeLine,
    PurpleLine,
    Clear,  ///< not seen, but hit
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
    std::array<SceneplateMaterial, kPartCount> idle;  ///< of each part
    std::array<SceneplateMaterial, kPartCount> highlight;
};

/// What a drag knows of its start, and how far it has come.
struct nbSceneplateManipulator::Drag
{
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
