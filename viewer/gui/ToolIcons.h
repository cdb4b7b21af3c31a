// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/core/GizmoController.h"

#include <QIcon>

namespace viewer {

/// Picture for a manipulator's tool button, in the text colour of the application's palette; null
/// for manipulators without one.
QIcon gizmoIcon(Gizmo gizmo);

/// Bent arrow to the left.
QIcon undoIcon();
/// Bent arrow to the right.
QIcon redoIcon();

}  // namespace viewer
