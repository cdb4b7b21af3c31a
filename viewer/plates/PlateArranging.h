// SPDX-License-Identifier: MIT
#pragma once

namespace viewer {

class PlatesTool;
class Stage;

/// Adds the commands that arrange the selected plates, each one step of undo:
///
/// - "plates.align": "left", "centre", "right", "top", "middle" or "bottom" of the box around them,
///   of one plate in the view; "plates.distribute": "across" or "down", with equal gaps.
/// - "plates.move": [across, up], device pixels.
/// - "plates.duplicate": copies them and selects the copies.
void addPlateArranging(Stage& stage, PlatesTool& tool);

}  // namespace viewer
