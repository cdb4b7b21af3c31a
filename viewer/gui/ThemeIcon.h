// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/stage/HandleCursor.h"

#include <QCursor>
#include <QIcon>
#include <QString>

namespace viewer {

/// Line icon of the program by its name, which is that of the action it stands for, such as
/// "gizmoTranslate". Drawn anew for each size and pixel ratio and in the text colour that the
/// application's palette has at that moment, so that it is sharp and legible in every theme.
/// @return null for a name without icon
QIcon themeIcon(const QString& name);

/// Cursor that shows what a handle does: double arrows along its direction, with squares at the
/// ends where it scales, a turning arrow for rings; the usual arrow for no handle.
QCursor cursorShape(const HandleCursor& cursor);

}  // namespace viewer
