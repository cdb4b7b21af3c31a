// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <QtCore/QPointF>
#include <QtCore/QSize>
#include <QtCore/QString>

class QPainter;

/// Paints texts over a picture of a view. A painter's coordinates are logical pixels of the view.
class NB_PLATFORM_API nbTextPainter
{
public:
    /// Whether the notification manager has texts to paint. @param logicalSize  of the view
    static bool hasTexts(const QSize& logicalSize);

    /// Paints the on-screen texts of the notification manager. Texts of one notifier stand below
    /// each other; each is cut off at its notifier's area. @param logicalSize  of the view
    static void paintTexts(QPainter& painter, const QSize& logicalSize);

    /// Paints a short text above and to the right of a place, readable on any ground.
    static void paintLabel(QPainter& painter, const QPointF& place, const QString& text);
};
