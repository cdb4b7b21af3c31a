// SPDX-License-Identifier: MIT
#include "manipulator/ManipulatorInteractionContext.h"

#include "tests/manipulator/support/RecordingManipulator.h"

#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace nbec::manipulator::test {

namespace {

using interaction::InteractionEvent;
using interaction::InteractionManager;
using interaction::Picker;
using Calls = std::vector<std::string>;

/// The manager asks it when the context above lets an event pass.
class Below : public interaction::AbstractInteractionContext
{
public:
    bool triggerEvent(InteractionManager* /*manager*/, const InteractionEvent& event) override
    {
        seen.push_back(event.getEvent());
        return true;
    }

    Calls seen;
};

struct EventRow
{
    const char* name;
    const char* event;
    const char* tool;
    const char* hint;
    Calls calls;  ///< what reaches the manipulator
    bool passesOn;  ///< whether the context lets the base answer, which handles nothing
};

void PrintTo(const EventRow& row, std::ostream* stream)
{
    *stream << row.name;
}

class EventTable : public testing::TestWithParam<EventRow>
{ };

}  // namespace

TEST_P(EventTable, ReachesTheManipulatorAsRouted)
{
    const EventRow& row = GetParam();
    ManipulatorInteractionContext context;
    RecordingManipulator manipulator;
    manipulator.answer = true;
    context.setManipulator(&manipulator);
    const InteractionEvent event(row.event, row.tool, row.hint);

    const bool answer = context.triggerEvent(nullptr, event);

    EXPECT_EQ(manipulator.takeCalls(), row.calls);
    EXPECT_EQ(answer, !row.passesOn && !row.calls.empty());
}

INSTANTIATE_TEST_SUITE_P(
    ManipulatorInteractionContext, EventTable,
    testing::Values(
        EventRow { "Start", "start", "tool", "select", { "start select" }, false },
        EventRow { "StartToggle", "start", "tool", "toggle", { "start toggle" }, false },
        EventRow { "Process", "process", "tool", "select", { "process select" }, false },
        EventRow { "Stop", "stop", "tool", "toggle", { "stop toggle" }, false },
        EventRow { "Hover", "hover", "tool", "select", { "hover select" }, false },
        EventRow { "StopHoverPassesOn", "stopHover", "tool", "select", { "reset select" }, true },
        EventRow { "UnknownNameIsConsumed", "Start", "tool", "select", {}, false },
        EventRow { "OtherTool", "start", "precisionTool", "select", {}, true },
        EventRow { "OtherHint", "start", "tool", "add", {}, true },
        EventRow { "SelectThroughStart",
                   "start",
                   "tool",
                   "selectThrough",
                   { "reset selectThrough" },
                   true },
        EventRow { "SelectThroughProcess", "process", "tool", "selectThrough", {}, true },
        EventRow { "ModeStart", "start", "mode", "tool", { "hover tool", "mode tool" }, true },
        EventRow { "ModeStop", "stop", "mode", "tool", { "reset tool" }, true },
        EventRow { "ModeProcess", "process", "mode", "tool", {}, true },
        EventRow { "ModeOfOtherTool", "start", "mode", "zoom", { "mode zoom" }, true },
        EventRow { "Empty", "", "", "", {}, true }),
    [](const testing::TestParamInfo<EventRow>& row) { return std::string(row.param.name); });

TEST(ManipulatorInteractionContext, ReturnsTheManipulatorsAnswer)
{
    ManipulatorInteractionContext context;
    RecordingManipulator manipulator;
    context.setManipulator(&manipulator);
    for (const bool answer : { true, false }) {
        manipulator.answer = answer;
        EXPECT_EQ(context.triggerEvent(nullptr, InteractionEvent("start", "tool", "select")),
                  answer);
        EXPECT_EQ(context.selectMode("precisionTool"), answer);
    }
}

TEST(ManipulatorInteractionContext, WithoutManipulatorEverythingFallsThrough)
{
    InteractionManager manager;
    Below below;
    ManipulatorInteractionContext context;
    manager.addContext(&below);
    manager.addContext(&context);

    EXPECT_TRUE(manager.triggerEvent(InteractionEvent("hover", "tool", "select")));

    EXPECT_EQ(below.seen, Calls { "hover" });
    EXPECT_FALSE(context.selectMode("tool"));
}

TEST(ManipulatorInteractionContext, LifeCycleOfTheContextActivatesTheManipulator)
{
    InteractionManager manager;
    ManipulatorInteractionContext context;
    RecordingManipulator manipulator;
    context.setManipulator(&manipulator);
    context.enabled(&manager);
    EXPECT_EQ(manipulator.takeCalls(), Calls {})
        << "an enabled context that is in no manager stays idle";

    manager.addContext(&context);
    EXPECT_TRUE(manipulator.isActive());
    manager.setEnabled(&context, false);
    EXPECT_FALSE(manipulator.isActive());
    manager.setEnabled(&context, true);
    EXPECT_TRUE(manipulator.isActive());
    manager.removeContext(&context);
    EXPECT_FALSE(manipulator.isActive());
}

TEST(ManipulatorInteractionContext, PointerReachesTheManipulator)
{
    ManipulatorInteractionContext context;
    RecordingManipulator manipulator;
    EXPECT_EQ(context.getPointerPosition(), osg::Pnt2f(0, 0));
    context.pointerMoved(osg::Pnt2f(1, 2));
    context.setManipulator(&manipulator);

    context.pointerMoved(osg::Pnt2f(3, 4));

    EXPECT_EQ(context.getPointerPosition(), osg::Pnt2f(3, 4));
    EXPECT_EQ(manipulator.getMousePosition(), osg::Pnt2f(3, 4));
}

TEST(ManipulatorInteractionContext, PickerGetsTheColliderWhicheverComesFirst)
{
    RecordingManipulator manipulator;
    Picker first;
    Picker second;
    ManipulatorInteractionContext context;

    context.setManipulator(&manipulator);
    context.setPicker(&first);
    EXPECT_EQ(first.getPickNode(), manipulator.getCollider());

    context.setPicker(&second);
    EXPECT_EQ(first.getPickNode(), osg::NullFC);
    EXPECT_EQ(second.getPickNode(), manipulator.getCollider());

    context.setManipulator(nullptr);
    EXPECT_EQ(second.getPickNode(), manipulator.getCollider()) << "null keeps the last collider";

    context.setPicker(&first);
    EXPECT_EQ(second.getPickNode(), osg::NullFC);
    EXPECT_EQ(first.getPickNode(), osg::NullFC)
        << "without a manipulator there is nothing to hand over";
}

}  // namespace nbec::manipulator::test
