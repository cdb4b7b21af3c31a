// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/drag/DragParameters.h"
#include "manipulator/nbManipulatorExport.h"

#include <QtCore/QString>

namespace nbec::manipulator {

/// Drag parameters in words, such as "+12.50 along x (x 31.20)", "45.0 deg (78.3 deg)",
/// "765.0 = 2 x 360 + 45.0 deg", "x 1.20 (2.40)", "+3, -12 px"; translated in the context
/// "nbForegroundTextContext", numbers with "." in every language.
/// @param become  what is dragged as it is now, see DragControl::becomes()
/// @param decimals  of lengths, from 0
NB_MANIPULATOR_API QString describeDrag(const HandleAction& action,
                                        const DragParameters& parameters,
                                        const DragParameters& become, int decimals);

}  // namespace nbec::manipulator
