// SPDX-License-Identifier: MIT
#include <OpenSG/OSGLog.h>

#include <cstdarg>
#include <cstdio>
#include <vector>

namespace osg {

Log::Log()
    : out(&std::cerr)
    , silent(nullptr)
{ }

std::ostream& Log::stream(LogLevel lineLevel)
{
    return lineLevel <= level ? *out : silent;
}

void Log::log(LogLevel lineLevel, const Char8* format, ...)
{
    if (lineLevel > level) {
        return;
    }

    std::va_list arguments;
    va_start(arguments, format);
    std::va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    va_end(arguments);
    if (length > 0) {
        std::vector<Char8> text(static_cast<std::size_t>(length) + 1);
        std::vsnprintf(text.data(), text.size(), format, again);
        *out << text.data() << std::flush;
    }
    va_end(again);
}

Log& osgLog()
{
    static Log log;
    return log;
}

}  // namespace osg
