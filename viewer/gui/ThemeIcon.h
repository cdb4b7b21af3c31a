// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QString>

namespace viewer {

/// Line icon of the program by its name, which is that of the action it stands for, such as
/// "gizmoTranslate". Drawn anew for each size and pixel ratio and in the text colour that the
/// application's palette has at that moment, so that it is sharp and legible in every theme.
/// @return null for a name without icon
QIcon themeIcon(const QString& name);

}  // namespace viewer
