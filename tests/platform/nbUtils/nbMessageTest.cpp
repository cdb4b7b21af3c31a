// SPDX-License-Identifier: MIT
#include <nbUtils/nbMessage.h>

#include <OpenSG/OSGVector.h>

#include <gmock/gmock.h>

#include <string>
#include <typeinfo>

using testing::ElementsAre;
using testing::StartsWith;

TEST(nbMessage, KeepsTheOrderInWhichAttributesWereFirstSet)
{
    nbMessage msg;
    msg.set("scale", 2.f, true);
    msg.set("clamping", true, true);
    msg.set("offset", std::string("a"), true);

    msg.set("scale", 3.f, true);

    EXPECT_THAT(msg.names(), ElementsAre("scale", "clamping", "offset"));
    float scale = 0.f;
    EXPECT_TRUE(nbMessage::get(msg, "scale", scale));
    EXPECT_EQ(scale, 3.f);
}

TEST(nbMessage, WrongTypeNamesBothTypesAndLeavesTheValue)
{
    nbMessage msg;
    msg.set("projectionSize", osg::Vec3f(1.f, 2.f, 3.f), true);
    osg::Vec2f size(5.f, 6.f);

    testing::internal::CaptureStderr();
    const bool found = nbMessage::get(msg, "projectionSize", size);
    const std::string printed = testing::internal::GetCapturedStderr();

    EXPECT_FALSE(found);
    EXPECT_EQ(size, osg::Vec2f(5.f, 6.f));
    const std::string line = "nbMessage::get : Attribute 'projectionSize' has wrong type (is:'" +
        std::string(typeid(osg::Vec3f).name()) + "' != req:'" + typeid(osg::Vec2f).name() + "')!\n";
    EXPECT_THAT(printed, StartsWith(line));
    EXPECT_GT(printed.size(), line.size()) << "the backtrace is missing";
}
