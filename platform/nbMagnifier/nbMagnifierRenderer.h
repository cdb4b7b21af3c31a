// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

/// The magnifier of the main view: a round lens that shows the finished picture enlarged around a
/// pixel; with a photograph behind the scene, the photograph and the handles alone. This is what is
/// to be shown; the render action draws it into the pictures of the main render widget.
///
/// Positions are device pixels as those of the pointer: x from the left, y from the top, each pixel
/// by its whole number. Changes ask the main render widget for a redraw.
class NB_PLATFORM_API nbMagnifierRenderer
{
public:
    static constexpr float kDefaultScale = 4.0F;
    static constexpr float kSmallestScale = 1.0F;
    static constexpr float kLargestScale = 32.0F;

    /// The pixel whose middle stays in its place; may lie outside the view.
    static void setCursorPosition(int x, int y);
    static int getCursorX();
    static int getCursorY();

    /// How many times the lens enlarges, limited to the range above; not finite is ignored.
    static void setMagnificationScale(float scale);
    static float getMagnificationScale();

    /// Shows or hides the lens; hidden at the start.
    static void setVisible(bool visible);
    static bool isVisible();
};
