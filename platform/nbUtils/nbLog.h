// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <QtCore/QString>

#include <functional>
#include <string>

/// Log of the host: one line of text per entry, with a level.
/// Entries go to the sink, which is standard error until it is replaced. Belongs to the
/// user-interface thread. Never throws.
class NB_PLATFORM_API nbLog
{
public:
    /// Weight of an entry, ascending.
    enum class Level : int
    {
        Debug = 0,
        Info = 1,
        Warning = 2,
        Error = 3
    };

    /// Receives each entry; the text has no line end.
    using Sink = std::function<void(Level, const std::string&)>;

    static void info(const std::string& text) { write(Level::Info, text); }

    static void warning(const std::string& text) { write(Level::Warning, text); }

    static void error(const std::string& text) { write(Level::Error, text); }

    /// The same for literals; null is an empty text.
    static void info(const char* text) { write(Level::Info, text); }

    static void warning(const char* text) { write(Level::Warning, text); }

    static void error(const char* text) { write(Level::Error, text); }

    /// The same for Qt's texts, written as UTF-8.
    static void info(const QString& text) { write(Level::Info, text.toStdString()); }

    static void warning(const QString& text) { write(Level::Warning, text.toStdString()); }

    static void error(const QString& text) { write(Level::Error, text.toStdString()); }

    /// Writes one entry. A sink that throws loses the entry to standard error; what a sink itself
    /// logs while it runs goes to standard error too.
    static void write(Level level, const std::string& text);
    static void write(Level level, const char* text);

    /// Replaces the sink; an empty function stands for standard error.
    /// @return the sink that was set before, empty for standard error
    static Sink setSink(Sink sink);

    /// "debug", "info", "warning" or "error".
    static const char* getLevelName(Level level);
};
