// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>

class QPainter;

namespace viewer {

/// Whether there are on-screen texts to paint.
bool hasVisibleTexts(const QSize& logicalSize);

/// Paints the on-screen texts of the notification manager over a picture of the view. Texts of one
/// notifier stand below each other; each is cut off at its notifier's area.
/// @param painter  its coordinates are logical pixels of the view
/// @param logicalSize  of the view
void paintTexts(QPainter& painter, const QSize& logicalSize);

}  // namespace viewer
