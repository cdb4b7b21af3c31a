// SPDX-License-Identifier: MIT
#include <nbUtils/nbLog.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

using testing::ElementsAre;

namespace {

/// Collects entries as "level: text" and puts the log back to its start afterwards.
class nbLogTest : public testing::Test
{
protected:
    nbLogTest()
    {
        nbLog::setSink([this](nbLog::Level level, const std::string& text) {
            entries.push_back(std::string(nbLog::getLevelName(level)) + ": " + text);
        });
    }

    ~nbLogTest() override { nbLog::setSink(nbLog::Sink()); }

    std::vector<std::string> entries;
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
    nbLog::setSink([this](nbLog::Level, const std::string& text) {
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
