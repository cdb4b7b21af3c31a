// SPDX-License-Identifier: MIT
#include "manipulator/ManipulatorInteractionContext.h"

#include "tests/manipulator/support/RecordingManipulator.h"

#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbKernel/nbScenegraph.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace nbec::manipulator::test {

namespace {

using interaction::InteractionEvent;
using interaction::InteractionManager;
using interaction::Picker;
using Calls = std::vector<std::string>;

}  // namespace

TEST(ManipulatorInteractionContext, EventsReachTheManipulatorAsRouted)
{
    const struct
    {
        const char* event;
        const char* tool;
        const char* hint;
        Calls calls;  ///< what reaches the manipulator
        bool answer;
    } rows[] = {
        { "start", "tool", "select", { "start select" }, true },
        { "start", "tool", "toggle", { "start toggle" }, true },
        { "process", "tool", "select", { "process select" }, true },
        { "stop", "tool", "toggle", { "stop toggle" }, true },
        { "hover", "tool", "select", { "hover select" }, true },
        { "stopHover", "tool", "select", { "reset select" }, false },
        { "Start", "tool", "select", {}, false },
        { "start", "precisionTool", "select", {}, false },
        { "start", "tool", "add", {}, false },
        { "start", "tool", "selectThrough", { "reset selectThrough" }, false },
        { "process", "tool", "selectThrough", {}, false },
        { "start", "mode", "tool", { "hover tool", "mode tool" }, false },
        { "stop", "mode", "tool", { "reset tool" }, false },
        { "process", "mode", "tool", {}, false },
        { "start", "mode", "zoom", { "mode zoom" }, false },
        { "", "", "", {}, false },
    };

    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.event) + ' ' + row.tool + ' ' + row.hint);
        ManipulatorInteractionContext context;
        RecordingManipulator manipulator;
        manipulator.answer = true;
        context.setManipulator(&manipulator);
        EXPECT_EQ(context.triggerEvent(nullptr, InteractionEvent(row.event, row.tool, row.hint)),
                  row.answer);
        EXPECT_EQ(manipulator.takeCalls(), row.calls);
    }
}

TEST(ManipulatorInteractionContext, ReturnsTheManipulatorsAnswer)
{
    ManipulatorInteractionContext context;
    EXPECT_FALSE(context.triggerEvent(nullptr, InteractionEvent("hover", "tool", "select")));
    EXPECT_FALSE(context.selectMode("tool"));
    RecordingManipulator manipulator;
    context.setManipulator(&manipulator);
    for (const bool answer : { true, false }) {
        manipulator.answer = answer;
        EXPECT_EQ(context.triggerEvent(nullptr, InteractionEvent("start", "tool", "select")),
                  answer);
        EXPECT_EQ(context.selectMode("precisionTool"), answer);
    }
}

TEST(ManipulatorInteractionContext, AModeIsTheSameHoweverItIsSet)
{
    InteractionManager manager;
    ManipulatorInteractionContext context;
    RecordingManipulator manipulator;
    context.setManipulator(&manipulator);
    manager.addContext(&context);
    manager.selectMode("precisionTool");
    manipulator.takeCalls();
    manager.triggerEvent(InteractionEvent("start", "mode", "precisionTool"));
    EXPECT_EQ(manipulator.takeCalls(), Calls {}) << "it has it already";
    manager.triggerEvent(InteractionEvent("start", "mode", "zoom"));
    EXPECT_EQ(manipulator.takeCalls(), Calls { "mode zoom" });
    EXPECT_EQ(context.getMode(), manager.getMode());
    manager.triggerEvent(InteractionEvent("stop", "mode", "zoom"));
    EXPECT_EQ(manipulator.takeCalls(), Calls { "mode " });
    EXPECT_EQ(manager.getMode(), "");
}

TEST(ManipulatorInteractionContext, PreselectionStaysOffWhenHoverGoesToAnUpperOne)
{
    InteractionManager manager;
    ManipulatorInteractionContext upper(static_cast<interaction::PreferredPosition>(101));
    ManipulatorInteractionContext lower;
    nbScenegraph::setPreselectionEnabled(true);
    RecordingManipulator manipulators[2];
    upper.setManipulator(&manipulators[0]);
    lower.setManipulator(&manipulators[1]);
    manager.addContext(&upper);
    manager.addContext(&lower);
    manipulators[1].answer = true;
    manager.triggerEvent(InteractionEvent("hover", "tool", "select"));
    manipulators[0].answer = true;
    manager.triggerEvent(InteractionEvent("hover", "tool", "select"));
    EXPECT_FALSE(nbScenegraph::isPreselectionEnabled());
    manager.triggerEvent(InteractionEvent("stopHover", "tool", "select"));
    EXPECT_TRUE(nbScenegraph::isPreselectionEnabled());
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
