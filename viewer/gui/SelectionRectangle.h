// SPDX-License-Identifier: MIT
#pragma once

class QPainter;
class nbOSGWidget;

namespace viewer {

/// Whether a rectangle is being drawn in a view to select what lies inside.
bool hasSelectionRectangle(const nbOSGWidget& view);

/// Paints that rectangle over a picture of the view; nothing without one.
/// @param painter     its coordinates are logical pixels of the view
/// @param pixelRatio  device pixels per logical one
void paintSelectionRectangle(QPainter& painter, const nbOSGWidget& view, double pixelRatio);

}  // namespace viewer
