// SPDX-License-Identifier: MIT
#include "tests/platform/support/LogLines.h"

#include <nbKernel/nbController.h>

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Pair;

namespace {

class nbControllerTest : public testing::Test
{
protected:
    ~nbControllerTest() override { nbController::clear(); }
};

}  // namespace

TEST_F(nbControllerTest, UnknownNamesAreSilentAndCounted)
{
    nbController::addReceiver("updateMatRender", [](nbMessage&) {});
    nbMessage msg;

    testing::internal::CaptureStderr();
    EXPECT_FALSE(nbController::call("updateMatrender", 0));
    EXPECT_FALSE(nbController::call("::changedUVManipulator", msg, 0));
    EXPECT_FALSE(nbController::call("updateMatrender", 0));
    EXPECT_FALSE(nbController::call(nullptr, 0));
    EXPECT_TRUE(nbController::call("updateMatRender", 0));

    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_THAT(
        nbController::getLostCalls(),
        ElementsAre(Pair("", 1u), Pair("::changedUVManipulator", 1u), Pair("updateMatrender", 2u)));
}

TEST_F(nbControllerTest, ReceiverThatThrowsIsLoggedAndHarmsNobody)
{
    const nbtest::LogLines log;
    nbController::addReceiver("broken",
                              [](nbMessage&) { throw std::runtime_error("no material"); });
    nbController::addReceiver("odd", [](nbMessage&) { throw 42; });

    EXPECT_FALSE(nbController::call("broken", 0));
    EXPECT_FALSE(nbController::call("odd", 0));

    ASSERT_EQ(log.lines.size(), 2u);
    EXPECT_THAT(log.lines[0], HasSubstr("'broken' failed: no material"));
    EXPECT_THAT(log.lines[1], HasSubstr("'odd'"));
    EXPECT_TRUE(nbController::getLostCalls().empty());
}

TEST_F(nbControllerTest, ReceiversMayChangeTheRegistryAndCallWhileTheyRun)
{
    std::vector<std::string> order;
    const auto owned = std::make_shared<int>(5);
    nbController::addReceiver("once", [&order, owned](nbMessage&) {
        nbController::removeReceiver("once");
        for (int i = 0; i < 100; ++i) {
            nbController::addReceiver("late" + std::to_string(i), [](nbMessage&) {});
        }
        nbController::addReceiver("inner", [&order](nbMessage&) { order.push_back("inner"); });
        EXPECT_TRUE(nbController::call("inner", 0));
        order.push_back("once " + std::to_string(*owned));
    });

    EXPECT_TRUE(nbController::call("once", 0));
    EXPECT_FALSE(nbController::call("once", 0));

    EXPECT_THAT(order, ElementsAre("inner", "once 5"));
    EXPECT_EQ(owned.use_count(), 1);
    EXPECT_TRUE(nbController::hasReceiver("late99"));
}
