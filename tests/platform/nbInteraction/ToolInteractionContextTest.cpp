// SPDX-License-Identifier: MIT
#include "tests/platform/nbInteraction/Recording.h"

#include <nbInteraction/ToolInteractionContext.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace nbec::interaction {
namespace {

using nbtest::CallLog;
using nbtest::RecordingTool;
using nbtest::takeLog;
using testing::ElementsAre;
using testing::IsEmpty;

class ToolInteractionContextTest : public testing::Test
{
protected:
    bool send(const std::string& event, const std::string& toolName = "tool",
              const std::string& hint = "select")
    {
        return manager.triggerEvent(InteractionEvent(event, toolName, hint));
    }

    CallLog log;
    InteractionManager manager;
    RecordingTool tool { log, "t" };
};

TEST_F(ToolInteractionContextTest, EventsOfTheToolNameReachTheToolWithTheirHint)
{
    ToolInteractionContext context;
    context.setTool(&tool);
    manager.addContext(&context);
    log.clear();

    for (const char* event : { "start", "process", "stop", "trigger", "hover" }) {
        EXPECT_TRUE(send(event, "tool", event)) << event;
    }
    EXPECT_THAT(takeLog(log),
                ElementsAre("t start start", "t process process", "t stop stop",
                            "t trigger trigger", "t hover hover"));

    EXPECT_FALSE(send("unknown"));
    EXPECT_FALSE(send("start", "Tool"));
    EXPECT_THAT(log, IsEmpty());

    context.setToolName("measure");
    EXPECT_FALSE(send("start"));
    EXPECT_TRUE(send("start", "measure", ""));
    EXPECT_THAT(log, ElementsAre("t start "));
}

TEST_F(ToolInteractionContextTest, ToolIsActiveWhileItsContextIsAddedAndEnabled)
{
    ToolInteractionContext context;
    context.setTool(&tool);
    EXPECT_FALSE(tool.isActive());

    manager.addContext(&context);
    EXPECT_TRUE(tool.isActive());
    manager.setEnabled(&context, false);
    EXPECT_FALSE(tool.isActive());
    manager.selectMode("precisionTool");
    manager.setEnabled(&context, true);
    EXPECT_TRUE(manager.selectMode("tool"));
    manager.removeContext(&context);
    EXPECT_FALSE(tool.isActive());

    EXPECT_THAT(log,
                ElementsAre("t activate ", "t mode tool", "t mode ", "t deactivate ", "t activate ",
                            "t mode precisionTool", "t mode tool", "t mode ", "t deactivate "));
}

TEST_F(ToolInteractionContextTest, DyingContextStopsAndDeactivatesItsTool)
{
    auto context = std::make_unique<ToolInteractionContext>();
    context->setTool(&tool);
    manager.addContext(context.get());
    send("start");
    log.clear();

    const ToolInteractionContext copy(*context);
    context.reset();

    EXPECT_THAT(log, ElementsAre("t stop select", "t mode ", "t deactivate "));
    EXPECT_EQ(nullptr, copy.getTool());
    EXPECT_FALSE(tool.isActive());
}

}  // namespace
}  // namespace nbec::interaction
