// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbLog.h>

#include <string>
#include <vector>

namespace nbtest {

/// Collects what is logged while it lives.
class LogLines
{
public:
    LogLines()
        : former(nbLog::setSink(
              [this](nbLog::Level, const std::string& text) { lines.push_back(text); }))
    { }

    LogLines(const LogLines&) = delete;
    LogLines& operator=(const LogLines&) = delete;

    ~LogLines() { nbLog::setSink(former); }

    std::vector<std::string> lines;

private:
    nbLog::Sink former;
};

}  // namespace nbtest
