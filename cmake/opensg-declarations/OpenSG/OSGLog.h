// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGBaseTypes.h>

#include <iostream>
#include <ostream>

namespace osg {
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

class Log
{
public:
    void setLogLevel(LogLevel level, bool force = false);
    LogLevel getLogLevel();
    std::ostream& stream(LogLevel level);
    void doLog(const char* format, ...);
};

Log& osgLog();
}  // namespace osg

#define SLOG osg::osgLog().stream(osg::LOG_LOG)
#define SFATAL osg::osgLog().stream(osg::LOG_FATAL)
#define SWARNING osg::osgLog().stream(osg::LOG_WARNING)
#define SNOTICE osg::osgLog().stream(osg::LOG_NOTICE)
#define SINFO osg::osgLog().stream(osg::LOG_INFO)
#define FFATAL(arguments) osg::osgLog().doLog arguments
#define FWARNING(arguments) osg::osgLog().doLog arguments
#define FINFO(arguments) osg::osgLog().doLog arguments
