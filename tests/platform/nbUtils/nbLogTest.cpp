// SPDX-License-Identifier: MIT
#include <nbUtils/nbLog.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

using testing::ElementsAre;

namespace {

/// Puts the log back to its start afterwards.
class nbLogTest : public testing::Test
{
protected:
    ~nbLogTest() override { nbLog::setSink(nbLog::Sink()); }
};

}  // namespace

TEST_F(nbLogTest, SinkThatThrowsLosesNothingAndReachesNobody)
{
    nbLog::setSink([](nbLog::Level, const std::string&) { throw std::runtime_error("full"); });

    testing::internal::CaptureStderr();
    EXPECT_NO_THROW(nbLog::error("disk"));
    EXPECT_NO_THROW(nbLog::error("again"));

    EXPECT_EQ(testing::internal::GetCapturedStderr(), "error: disk\nerror: again\n");
}

TEST_F(nbLogTest, SinkMayLogAndReplaceItself)
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
