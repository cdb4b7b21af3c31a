// SPDX-License-Identifier: MIT
#pragma once

class QMainWindow;

namespace viewer {

/// Makes the toolbars of a window from the actions that its menus have: files, steps, camera and
/// sessions above the view, manipulators and tools at its left.
void addToolBars(QMainWindow& window);

}  // namespace viewer
