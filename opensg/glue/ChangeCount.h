// SPDX-License-Identifier: MIT
/// @file
/// Counters of ended edits, on both scene graphs: who keeps something made from containers compares
/// a number instead of looking through them. getEditCount, getChangeCount, getSubtreeChangeCount
/// and getTreeChangeCount stand in OSGChangeCount.h of the bundled scene graph, which counts
/// itself.
#pragma once

#if defined(NBMANIPULATOR_SYSTEM_OPENSG)
#include <ChangeCountSystem.h>
#else
#include <OpenSG/OSGChangeCount.h>
#endif
