// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbLog.h>

#include <exception>
#include <string>
#include <type_traits>

/// Calls foreign code that may throw and keeps what it throws: that is logged as one error that
/// begins with `who`.
/// @param who   who called what, such as "nbSelection: a changed callback"
/// @param call  callable without arguments that answers bool or nothing
/// @return its answer, true for nothing; false if it threw
template <class Call>
bool nbGuarded(const char* who, Call&& call)
{
    try {
        if constexpr (std::is_void_v<decltype(call())>) {
            call();
            return true;
        } else {
            return call();
        }
    } catch (const std::exception& error) {
        nbLog::error(std::string(who) + " threw: " + error.what());
    } catch (...) {
        nbLog::error(std::string(who) + " threw something that is no exception");
    }
    return false;
}
