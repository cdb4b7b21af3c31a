// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbMessage.h>

#include <functional>
#include <string>
#include <vector>

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
    void listen(const std::string& name, const std::function<void(nbMessage&)>& reply = {});

    /// Names of the messages in the log, which is emptied.
    std::vector<std::string> takeNames();
    /// The last message in the log; an empty one if there is none.
    SentMessage last() const;

    std::vector<SentMessage> log;
};

/// Value of an attribute; fails the test if it is missing or of another type.
template <class T>
T attribute(const SentMessage& sent, const std::string& name);

}  // namespace nbec::manipulator::test
