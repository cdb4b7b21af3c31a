// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGExt/nbIsFinite.h>
#include <nbUtils/nbMessage.h>

#include <cmath>
#include <optional>
#include <string>

/// Reads the attributes of one message that says what has changed, until one of them is wrong.
class AttributeReader
{
public:
    /// @param read   outlives this
    /// @param wrong  receives what is wrong with the message; outlives this
    AttributeReader(const nbMessage& read, std::string& wrong)
        : message(read)
        , reason(wrong)
    {
        reason.clear();
    }

    /// Reads an attribute that may be missing; leaves the target where it is missing, has another
    /// type, or is not finite.
    template <class Value>
    void read(const char* name, std::optional<Value>& target)
    {
        const boost::any* const stored = message.find(name);
        if (stored == nullptr) {
            return;
        }
        const Value* const value = boost::any_cast<Value>(stored);
        if (value == nullptr) {
            refuse(name, "has a wrong type");
        } else if (!isFinite(*value)) {
            refuse(name, "is not finite");
        } else {
            target = *value;
            ++count;
        }
    }

    /// Makes the message wrong.
    void refuse(const char* name, const char* what)
    {
        reason = std::string("the attribute '") + name + "' " + what;
    }

    /// Whether the message has an attribute that was read, and none that is wrong.
    bool isGood()
    {
        if (reason.empty() && count == 0) {
            reason = "no attribute says what has changed";
        }
        return reason.empty();
    }

private:
    static bool isFinite(float value) { return std::isfinite(value); }

    static bool isFinite(bool) { return true; }

    template <class Vector>
    static bool isFinite(const Vector& value)
    {
        return nbIsFinite(value);
    }

    const nbMessage& message;
    std::string& reason;
    int count = 0;
};
