// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <iostream>
#include <ostream>

/// @file
/// The scene graph's log: lines to standard error, by level.
/// Stream form `SWARNING << "text" << std::endl`, printf form `FWARNING(("text %d\n", number))`.

namespace osg {

/// Weight of a line; a log shows those up to its own level.
enum LogLevel
{
    LOG_NONE,
    LOG_LOG,
    LOG_FATAL,
    LOG_WARNING,
    LOG_NOTICE,
    LOG_INFO,
    LOG_DEBUG
};

/// Filters lines by level and sends them to a stream.
/// Left out of what real OpenSG has: header elements, modules, files, indentation.
class Log
{
public:
    Log();

    LogLevel getLogLevel() const { return level; }

    void setLogLevel(LogLevel logLevel) { level = logLevel; }

    /// Redirects all lines; the stream must outlive its use here.
    void setLogStream(std::ostream& stream) { out = &stream; }

    /// Stream for a line of this level; one that swallows everything if the level is not shown.
    std::ostream& stream(LogLevel lineLevel);

    /// printf; the text brings its own line end.
    void log(LogLevel lineLevel, const Char8* format, ...) __attribute__((format(printf, 3, 4)));

private:
    LogLevel level = LOG_WARNING;
    std::ostream* out;
    std::ostream silent;
};

/// The one log.
Log& osgLog();

namespace detail {

/// printf at a fixed level: what the printf macros expand to.
template <LogLevel lineLevel, class... Arguments>
void logPrintf(const Char8* format, Arguments... arguments)
{
    if constexpr (sizeof...(Arguments) == 0) {
        osgLog().log(lineLevel, "%s", format);
    } else {
        osgLog().log(lineLevel, format, arguments...);
    }
}

}  // namespace detail

}  // namespace osg

#define SLOG ::osg::osgLog().stream(::osg::LOG_LOG)
#define SFATAL ::osg::osgLog().stream(::osg::LOG_FATAL)
#define SWARNING ::osg::osgLog().stream(::osg::LOG_WARNING)
#define SNOTICE ::osg::osgLog().stream(::osg::LOG_NOTICE)
#define SINFO ::osg::osgLog().stream(::osg::LOG_INFO)

#define FLOG(parenthesised) ::osg::detail::logPrintf<::osg::LOG_LOG> parenthesised
#define FFATAL(parenthesised) ::osg::detail::logPrintf<::osg::LOG_FATAL> parenthesised
#define FWARNING(parenthesised) ::osg::detail::logPrintf<::osg::LOG_WARNING> parenthesised
#define FNOTICE(parenthesised) ::osg::detail::logPrintf<::osg::LOG_NOTICE> parenthesised
#define FINFO(parenthesised) ::osg::detail::logPrintf<::osg::LOG_INFO> parenthesised
