// SPDX-License-Identifier: MIT
#pragma once

#include "manipulator/drag/DragParameters.h"
#include "manipulator/nbManipulatorExport.h"

#include <QtCore/QString>

namespace nbec::manipulator {

/// Drag parameters in words, such as "+12.50 along x", "45.0 deg", "x 1.20", "+3, -12 px";
/// translated in the context "nbForegroundTextContext", numbers with "." in every language.
/// @param decimals  of lengths, from 0
NB_MANIPULATOR_API QString describeDrag(const HandleAction& action,
                                        const DragParameters& parameters, int decimals);

}  // namespace nbec::manipulator
