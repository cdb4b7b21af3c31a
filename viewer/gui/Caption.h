// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QPainter;
class QRect;

namespace viewer {

/// Paints a caption over the lower part of an area: a title and below it what is being shown, on a
/// dark ground that lets the picture through.
/// @param area   whose size decides that of the letters
/// @param title  not empty
void paintCaption(QPainter& painter, const QRect& area, const QString& title, const QString& text);

}  // namespace viewer
