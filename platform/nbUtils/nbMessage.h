// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <boost/any.hpp>

#include <cstring>
#include <string>
#include <typeinfo>
#include <vector>

/// Bag of named attributes that a kernel call carries to its receiver and back.
/// Attributes keep the order in which they were first set. Meant for the stack: an empty message
/// allocates nothing. A value is read with exactly the type that was stored.
class NB_PLATFORM_API nbMessage
{
public:
    nbMessage() = default;
    nbMessage(const nbMessage& other) = default;
    nbMessage(nbMessage&& other) noexcept = default;
    nbMessage& operator=(const nbMessage& other) = default;
    nbMessage& operator=(nbMessage&& other) noexcept = default;
    ~nbMessage() = default;

    /// Stores an attribute.
    /// @param name       any text, compared exactly
    /// @param value      copied
    /// @param overwrite  true: a value already stored under the name is replaced and keeps its
    ///                   place in the order; false: it stays as it is
    void set(const std::string& name, const boost::any& value, bool overwrite);

    /// Value stored under a name, or null. The message owns it; the next set() may invalidate it.
    const boost::any* find(const std::string& name) const;

    /// Whether an attribute of that name is stored, whatever its type.
    bool has(const std::string& name) const { return find(name) != nullptr; }

    /// Names in the order in which they were first set.
    std::vector<std::string> names() const;

    /// Number of attributes.
    std::size_t size() const { return attributes.size(); }

    /// Reads an attribute with its exact type.
    /// Deliberate: types are compared by the text of their names, not by identity, so that one
    /// type seen from two modules matches.
    /// @param out  receives a copy of the value; untouched unless true is returned
    /// @return false without a word if there is no such attribute; false with a line and a
    ///         backtrace on standard error if its type is another one
    /// @throws boost::bad_any_cast if the names of the types agree but the cast still fails
    template <class T>
    static bool get(const nbMessage& msg, const std::string& name, T& out)
    {
        const boost::any* const value = msg.find(name);
        if (value == nullptr) {
            return false;
        }
        if (std::strcmp(value->type().name(), typeid(T).name()) != 0) {
            reportWrongType(name, value->type().name(), typeid(T).name());
            return false;
        }
        out = boost::any_cast<const T&>(*value);
        return true;
    }

    /// Prints the calls that led here to standard error, innermost first.
    static void printBT();

private:
    struct Attribute
    {
        std::string name;
        boost::any value;
    };

    static void reportWrongType(const std::string& name, const char* stored, const char* requested);

    std::vector<Attribute> attributes;
};
