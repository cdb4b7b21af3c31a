// SPDX-License-Identifier: MIT
#include <nbUtils/nbLog.h>

#include <QtCore/QScopedValueRollback>

#include <cstdio>
#include <utility>

namespace {

struct LogState
{
    nbLog::Sink sink;
    bool insideSink = false;  ///< its own entries do not come back to it
};

/// Made on first use, so that static objects of other sources can log; never destroyed, so that
/// their destructors can too.
LogState& state()
{
    static LogState* const theState = new LogState;
    return *theState;
}

void writeToStandardError(nbLog::Level level, const std::string& text)
{
    std::fprintf(stderr, "%s: %s\n", nbLog::getLevelName(level), text.c_str());
}

}  // namespace

void nbLog::write(Level level, const std::string& text)
{
    if (!state().sink || state().insideSink) {
        writeToStandardError(level, text);
        return;
    }
    const Sink current = state().sink;  // the sink may replace itself while it runs
    const QScopedValueRollback<bool> run(state().insideSink, true);
    try {
        current(level, text);
    } catch (...) {
        writeToStandardError(level, text);
    }
}

void nbLog::write(Level level, const char* text)
{
    write(level, std::string(text == nullptr ? "" : text));
}

nbLog::Sink nbLog::setSink(Sink sink)
{
    return std::exchange(state().sink, std::move(sink));
}

const char* nbLog::getLevelName(Level level)
{
    constexpr const char* kNames[] = { "debug", "info", "warning", "error" };
    return kNames[static_cast<int>(level)];
}
