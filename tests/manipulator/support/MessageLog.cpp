// SPDX-License-Identifier: MIT
#include "tests/manipulator/support/MessageLog.h"

#include <nbKernel/nbController.h>

#include <OpenSG/OSGVector.h>

#include <gtest/gtest.h>

namespace nbec::manipulator::test {

void MessageLog::listen(const std::string& name, const std::function<void(nbMessage&)>& reply)
{
    nbController::addReceiver(name, [this, name, reply](nbMessage& message) {
        log.push_back({ name, message });
        if (reply) {
            reply(message);
        }
    });
}

std::vector<std::string> MessageLog::takeNames()
{
    std::vector<std::string> names;
    for (const SentMessage& sent : log) {
        names.push_back(sent.name);
    }
    log.clear();
    return names;
}

SentMessage MessageLog::last() const
{
    return log.empty() ? SentMessage() : log.back();
}

template <class T>
T attribute(const SentMessage& sent, const std::string& name)
{
    T value {};
    EXPECT_TRUE(nbMessage::get(sent.message, name, value)) << sent.name << ' ' << name;
    return value;
}

template bool attribute<bool>(const SentMessage&, const std::string&);
template float attribute<float>(const SentMessage&, const std::string&);
template osg::Vec2f attribute<osg::Vec2f>(const SentMessage&, const std::string&);
template osg::Vec3f attribute<osg::Vec3f>(const SentMessage&, const std::string&);

}  // namespace nbec::manipulator::test
