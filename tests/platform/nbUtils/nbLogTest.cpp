// SPDX-License-Identifier: MIT
#include "tests/platform/support/LogLines.h"

#include <gmock/gmock.h>

#include <stdexcept>

using testing::ElementsAre;

TEST(nbLog, SinkThatThrowsLosesNothingAndReachesNobody)
{
    const nbtest::LogLines restoring;
    nbLog::setSink([](nbLog::Level, const std::string&) { throw std::runtime_error("full"); });

    testing::internal::CaptureStderr();
    EXPECT_NO_THROW(nbLog::error("disk"));
    EXPECT_NO_THROW(nbLog::error("again"));

    EXPECT_EQ(testing::internal::GetCapturedStderr(), "error: disk\nerror: again\n");
}

TEST(nbLog, SinkMayLogAndReplaceItself)
{
    std::vector<std::string> entries;
    nbLog::setSink([&entries](nbLog::Level, const std::string& text) {
        nbLog::setSink(nbLog::Sink());
        nbLog::info("inside");
        entries.push_back(text);
    });

    testing::internal::CaptureStderr();
    nbLog::info("first");
    nbLog::info("second");

    EXPECT_EQ(testing::internal::GetCapturedStderr(), "info: inside\ninfo: second\n");
    EXPECT_THAT(entries, ElementsAre("first"));
}
