// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QSize>
#include <QString>

class QPainter;

namespace viewer {

/// Whether there are on-screen texts to paint.
bool hasVisibleTexts(const QSize& logicalSize);

/// Paints the on-screen texts of the notification manager over a picture of the view. Texts of one
/// notifier stand below each other; each is cut off at its notifier's area.
/// @param painter  its coordinates are logical pixels of the view
/// @param logicalSize  of the view
void paintTexts(QPainter& painter, const QSize& logicalSize);

/// Paints a short text above and to the right of a place, readable on any ground.
void paintLabel(QPainter& painter, const QPointF& place, const QString& text);

}  // namespace viewer
