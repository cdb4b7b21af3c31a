// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbGuard.h>

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

/// Callbacks known by numbers. They may add and remove callbacks, themselves included, while they
/// are called. What they throw is logged.
class nbCallbackList
{
public:
    using Callback = std::function<void()>;

    /// @param caller  begins the log's line, such as "nbSelection: a changed callback"; a literal
    explicit nbCallbackList(const char* caller)
        : who(caller)
    { }

    /// @return a number for remove, never 0; 0 for an empty callback
    int add(Callback callback)
    {
        if (!callback) {
            return 0;
        }
        callbacks.push_back({ ++lastNumber, std::move(callback) });
        return lastNumber;
    }

    /// Unknown numbers: nothing.
    void remove(int number)
    {
        callbacks.erase(
            std::remove_if(callbacks.begin(), callbacks.end(),
                           [number](const Numbered& known) { return known.number == number; }),
            callbacks.end());
    }

    /// Calls those registered now, except for those that are removed meanwhile.
    void call() const
    {
        std::vector<int> numbers;
        for (const Numbered& known : callbacks) {
            numbers.push_back(known.number);
        }
        for (const int number : numbers) {
            const auto found =
                std::find_if(callbacks.begin(), callbacks.end(),
                             [number](const Numbered& known) { return known.number == number; });
            if (found != callbacks.end()) {
                // A copy: the callback may remove itself.
                const Callback callback = found->callback;
                nbGuarded(who, callback);
            }
        }
    }

private:
    struct Numbered
    {
        int number = 0;
        Callback callback;
    };

    const char* who;
    std::vector<Numbered> callbacks;
    int lastNumber = 0;
};
