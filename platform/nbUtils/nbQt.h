// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QDropEvent>
#include <QKeySequence>
#include <QLibraryInfo>
#include <QMouseEvent>
#include <QNativeGestureEvent>

/// What Qt 5 and Qt 6 have under different names; OpenGL's functions are in GlProgram.h.
/// - position: of the pointer in the widget, in logical pixels
/// - firstKey: key and modifiers, or-ed, of the first step of a key sequence; 0 for an empty one
/// - translationFolder: of the translations that come with Qt
/// - useHighDpi: lets logical pixels follow the screen's resolution; said before there is an
///   application
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
struct nbQt
{
    static QPointF position(const QMouseEvent& event) { return event.position(); }

    static QPointF position(const QDropEvent& event) { return event.position(); }

    static QPointF position(const QNativeGestureEvent& event) { return event.position(); }

    static int firstKey(const QKeySequence& keys) { return keys[0].toCombined(); }

    static QString translationFolder()
    {
        return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    }

    static void useHighDpi() { }
};
#else
struct nbQt
{
    static QPointF position(const QMouseEvent& event) { return event.localPos(); }

    static QPointF position(const QDropEvent& event) { return event.posF(); }

    static QPointF position(const QNativeGestureEvent& event) { return event.localPos(); }

    static int firstKey(const QKeySequence& keys) { return keys[0]; }

    static QString translationFolder()
    {
        return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    }

    static void useHighDpi()
    {
        QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
        // Icons are drawn in device pixels, and 1.5 device pixels for a logical one are not made 2.
        QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    }
};
#endif
