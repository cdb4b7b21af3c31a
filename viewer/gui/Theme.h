// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>

namespace viewer {

/// Colours of the window.
enum class Theme
{
    System,  ///< style and colours that the desktop gives
    Light,
    Dark
};

/// Word for a theme in the settings: "system", "light" or "dark".
QString themeName(Theme theme);

/// @return Theme::System for an unknown word
Theme themeFromName(const QString& name);

/// Gives the application, which must exist, the style and palette of a theme. What is shown follows
/// at once. The first call remembers what the desktop gave.
void applyTheme(Theme theme);
/// What applyTheme() was called with last; at first Theme::System.
Theme appliedTheme();

/// Whether the application's palette has light text on a dark ground.
bool isDarkPalette();

/// Colour that stands out of the present palette: what matters in an icon, links.
QColor accentColor();

}  // namespace viewer
