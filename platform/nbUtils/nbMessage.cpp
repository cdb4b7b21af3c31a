// SPDX-License-Identifier: MIT
#include <nbUtils/nbMessage.h>

#include <cstdio>

#include <execinfo.h>
#include <unistd.h>

void nbMessage::set(const std::string& name, const boost::any& value, bool overwrite)
{
    for (Attribute& attribute : attributes) {
        if (attribute.name == name) {
            if (overwrite) {
                attribute.value = value;
            }
            return;
        }
    }
    attributes.push_back(Attribute { name, value });
}

const boost::any* nbMessage::find(const std::string& name) const
{
    for (const Attribute& attribute : attributes) {
        if (attribute.name == name) {
            return &attribute.value;
        }
    }
    return nullptr;
}

std::vector<std::string> nbMessage::names() const
{
    std::vector<std::string> result;
    result.reserve(attributes.size());
    for (const Attribute& attribute : attributes) {
        result.push_back(attribute.name);
    }
    return result;
}

void nbMessage::printBT()
{
    constexpr int kMostCalls = 64;
    void* calls[kMostCalls];
    const int found = backtrace(calls, kMostCalls);
    // The descriptor is written directly, so what the stream still holds has to go first.
    std::fflush(stderr);
    backtrace_symbols_fd(calls, found, STDERR_FILENO);
}

void nbMessage::reportWrongType(const std::string& name, const char* stored, const char* requested)
{
    std::fprintf(stderr, "nbMessage::get : Attribute '%s' has wrong type (is:'%s' != req:'%s')!\n",
                 name.c_str(), stored, requested);
    printBT();
}
