// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernel/nbController.h>
#include <nbUtils/nbMessage.h>

#include <gtest/gtest.h>

#include <functional>

namespace nbec::manipulator::test {

/// A message as it came, without replies.
struct SentMessage
{
    std::string name;
    nbMessage message;
};

/// Receives messages and writes them down.
class MessageLog
{
public:
    MessageLog() = default;
    MessageLog(const MessageLog&) = delete;
    MessageLog& operator=(const MessageLog&) = delete;

    /// Receives a message from now on.
    /// @param reply  called after it is written down; may be empty
    void listen(const std::string& name, const std::function<void(nbMessage&)>& reply = {})
    {
        nbController::addReceiver(name, [this, name, reply](nbMessage& message) {
            log.push_back({ name, message });
            if (reply) {
                reply(message);
            }
        });
    }

    /// Names of the messages in the log, which is emptied.
    std::vector<std::string> takeNames()
    {
        std::vector<std::string> names;
        for (const SentMessage& sent : log) {
            names.push_back(sent.name);
        }
        log.clear();
        return names;
    }

    /// The last message in the log; an empty one if there is none.
    SentMessage last() const { return log.empty() ? SentMessage() : log.back(); }

    std::vector<SentMessage> log;
};

/// Value of an attribute; fails the test if it is missing or of another type.
template <class T>
T attribute(const SentMessage& sent, const std::string& name)
{
    T value {};
    EXPECT_TRUE(nbMessage::get(sent.message, name, value)) << sent.name << ' ' << name;
    return value;
}

}  // namespace nbec::manipulator::test
