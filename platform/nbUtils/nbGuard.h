// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbLog.h>

#include <exception>
#include <string>

/// Calls foreign code that may throw and keeps what it throws: that is logged as one error that
/// begins with `who`.
/// @param who   who called what, such as "nbSelection: a changed callback"
/// @param call  callable without arguments that answers bool
/// @return its answer; false if it threw
template <class Call>
bool nbGuarded(const char* who, Call&& call)
{
    try {
        return call();
    } catch (const std::exception& error) {
        nbLog::error(std::string(who) + " threw: " + error.what());
    } catch (...) {
        nbLog::error(std::string(who) + " threw something that is no exception");
    }
    return false;
}
