// SPDX-License-Identifier: MIT
#include "tests/platform/nbInteraction/Recording.h"
#include "tests/platform/support/LogLines.h"
#include "tests/platform/support/VirtualSlot.h"

#include <nbInteraction/AbstractInteractionTool.h>

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>

namespace nbec::interaction {
namespace {

using nbtest::CallLog;
using nbtest::RecordingContext;
using nbtest::takeLog;
using testing::ElementsAre;
using testing::IsEmpty;

class InteractionManagerTest : public testing::Test
{
protected:
    bool send(const std::string& event, const std::string& tool = "tool",
              const std::string& hint = "select")
    {
        return manager.triggerEvent(InteractionEvent(event, tool, hint));
    }

    void add(RecordingContext& context)
    {
        manager.addContext(&context);
        log.clear();
    }

    CallLog log;
    InteractionManager manager;
};

TEST_F(InteractionManagerTest,
       AsksRaisedContextsFirstThenHigherPositionsAndAmongEqualsTheLaterAdded)
{
    RecordingContext low(log, "low", Camera);
    RecordingContext early(log, "early", Manipulator);
    RecordingContext late(log, "late", Manipulator);
    RecordingContext between(log, "between", 70);
    for (RecordingContext* context : { &early, &low, &between, &late }) {
        add(*context);
    }
    const auto asked = [&] {
        log.clear();
        EXPECT_FALSE(send("custom", "t", "h"));
        return log;
    };
    const CallLog inOrder { "late custom t/h", "early custom t/h", "between custom t/h",
                            "low custom t/h" };
    EXPECT_EQ(asked(), inOrder);
    manager.raise(&between);
    manager.raise(&low);
    EXPECT_THAT(
        asked(),
        ElementsAre("low custom t/h", "between custom t/h", "late custom t/h", "early custom t/h"));
    EXPECT_TRUE(between.isRaised());

    manager.lower(&low);
    EXPECT_THAT(
        asked(),
        ElementsAre("between custom t/h", "late custom t/h", "early custom t/h", "low custom t/h"));
    EXPECT_FALSE(low.isRaised());

    manager.removeContext(&between);
    EXPECT_FALSE(between.isRaised());
    manager.addContext(&between);
    EXPECT_EQ(asked(), inOrder);
}

TEST_F(InteractionManagerTest, TakerEndsTheDeliveryAndDisabledContextsAreLeftOut)
{
    RecordingContext upper(log, "upper", Manipulator, { "trigger" });
    RecordingContext lower(log, "lower", Tool, { "trigger" });
    add(upper);
    add(lower);

    EXPECT_TRUE(send("trigger"));
    EXPECT_THAT(takeLog(log), ElementsAre("upper trigger tool/select"));

    manager.setEnabled(&upper, false);
    EXPECT_TRUE(upper.isActive());
    EXPECT_TRUE(send("trigger"));
    manager.pointerMoved(osg::Pnt2f(3, 4));
    manager.selectMode("precisionTool");
    EXPECT_THAT(takeLog(log),
                ElementsAre("upper disabled", "lower trigger tool/select", "lower pointer 3 4",
                            "lower mode precisionTool"));

    manager.setEnabled(&upper, true);
    EXPECT_THAT(takeLog(log), ElementsAre("upper enabled", "upper mode precisionTool"));
}

TEST_F(InteractionManagerTest, DragEndedFromHereIsStoppedOnceAndItsRestIsDropped)
{
    const std::tuple<const char*,
                     std::function<void(InteractionManager&, std::unique_ptr<RecordingContext>&)>,
                     std::vector<std::string>>
        // clang-format off
        rows[] = {
            { "ended", [](auto& owner, auto&) { owner.endDrag(); }, { "a stop tool/toggle" } },
            { "removed", [](auto& owner, auto& context) { owner.removeContext(context.get()); }, { "a stop tool/toggle", "a removed" } },
            { "disabled", [](auto& owner, auto& context) { owner.setEnabled(context.get(), false); }, { "a stop tool/toggle", "a disabled" } },
            { "destroyed", [](auto&, auto& context) { context.reset(); }, { "a stop tool/toggle", "a removed" } },
        };
    // clang-format on
    for (const auto& [name, end, calls] : rows) {
        SCOPED_TRACE(name);
        RecordingContext other(log, "other", Background);
        auto context =
            std::make_unique<RecordingContext>(log, "a", Tool, std::set<std::string> { "start" });
        add(other);
        add(*context);
        send("start", "tool", "toggle");
        log.clear();

        end(manager, context);

        EXPECT_THAT(takeLog(log), testing::ElementsAreArray(calls));
        EXPECT_FALSE(manager.isDragging());
        send("process", "tool", "toggle");
        send("stop", "tool", "toggle");
        EXPECT_THAT(log, IsEmpty());
        send("process");
        EXPECT_FALSE(log.empty());
    }
}

TEST_F(InteractionManagerTest, HoverTakenFromALowerContextEndsThere)
{
    RecordingContext upper(log, "upper", Manipulator);
    RecordingContext lower(log, "lower", Tool, { "hover" });
    add(upper);
    add(lower);

    send("hover");
    upper.taken = { "hover" };
    log.clear();
    send("hover");
    EXPECT_THAT(takeLog(log),
                ElementsAre("upper hover tool/select", "lower stopHover tool/select",
                            "upper hover tool/select"));

    // The upper one was asked itself this time.
    upper.taken.clear();
    send("hover");
    EXPECT_THAT(takeLog(log), ElementsAre("upper hover tool/select", "lower hover tool/select"));
}

TEST_F(InteractionManagerTest, EndOfHoverAndModeEventsReachEveryContext)
{
    RecordingContext upper(log, "upper", Manipulator, { "stopHover", "start" });
    RecordingContext lower(log, "lower", Tool);
    add(upper);
    add(lower);

    EXPECT_TRUE(send("stopHover"));
    EXPECT_THAT(takeLog(log),
                ElementsAre("upper stopHover tool/select", "lower stopHover tool/select"));

    send("start", "mode", "tool");
    EXPECT_FALSE(manager.isDragging());
    EXPECT_THAT(takeLog(log), ElementsAre("upper start mode/tool", "lower start mode/tool"));

    send("start", "mode", "measure");
    send("stop", "mode", "other");
    EXPECT_EQ("measure", lower.getMode());
    EXPECT_EQ("measure", manager.getMode()) << "what is added later hears it, too";
    send("stop", "mode", "measure");
    EXPECT_EQ("", lower.getMode());
    EXPECT_EQ("", manager.getMode());
    EXPECT_EQ(1, std::count(log.begin(), log.end(), "lower mode measure"));
    EXPECT_EQ(1, std::count(log.begin(), log.end(), "lower mode "));
}

TEST_F(InteractionManagerTest, ContextsMayComeAndGoWithinAnEvent)
{
    auto self = std::make_unique<RecordingContext>(log, "self", 90);
    RecordingContext upper(log, "upper", Manipulator);
    RecordingContext next(log, "next", 80);
    RecordingContext last(log, "last", Tool);
    RecordingContext added(log, "added", 60);
    for (RecordingContext* context : { &upper, self.get(), &next, &last }) {
        add(*context);
    }
    upper.onEvent = [&](const InteractionEvent&) {
        self.reset();
        manager.removeContext(&next);
        manager.addContext(&added);
    };

    send("trigger");

    EXPECT_THAT(log,
                ElementsAre("upper trigger tool/select", "self removed", "next removed",
                            "added added", "added mode tool", "last trigger tool/select"));
}

TEST_F(InteractionManagerTest, ContextThatLeavesWithinItsStartLeavesNoDragBehind)
{
    auto self =
        std::make_unique<RecordingContext>(log, "self", Tool, std::set<std::string> { "start" });
    RecordingContext other(log, "other", Background);
    add(*self);
    add(other);
    self->onEvent = [&](const InteractionEvent&) { self.reset(); };

    EXPECT_TRUE(send("start"));

    EXPECT_FALSE(manager.isDragging());
    send("process");
    send("stop");
    EXPECT_THAT(log, ElementsAre("self start tool/select", "self removed"));
}

TEST_F(InteractionManagerTest, WhatAContextThrowsIsLoggedAndCountsAsRefusal)
{
    const nbtest::LogLines errors;
    RecordingContext upper(log, "upper", Manipulator, { "start" });
    RecordingContext lower(log, "lower", Tool, { "start" });
    add(upper);
    add(lower);
    upper.onEvent = [](const InteractionEvent&) { throw std::runtime_error("no luck"); };

    EXPECT_TRUE(send("start"));

    EXPECT_EQ(&lower, manager.getDragContext());
    EXPECT_THAT(errors.lines, ElementsAre("InteractionManager: a context threw: no luck"));
}

TEST_F(InteractionManagerTest, EitherSideMayDieFirst)
{
    RecordingContext context(log, "a", Tool, { "start" });
    {
        InteractionManager former;
        former.addContext(&context);
        manager.addContext(&context);
        EXPECT_FALSE(former.removeContext(&context));
        former.addContext(&context);
        former.triggerEvent(InteractionEvent("start", "tool", "select"));
        log.clear();
    }
    EXPECT_THAT(log, ElementsAre("a stop tool/select", "a removed"));
    EXPECT_EQ(nullptr, context.getInteractionManager());
    EXPECT_FALSE(context.isActive());

    {
        RecordingContext copy(context);
        manager.addContext(&copy);
        const RecordingContext second(copy);
        EXPECT_FALSE(second.isActive());
        EXPECT_EQ(nullptr, second.getInteractionManager());
    }
    log.clear();
    send("custom");
    EXPECT_THAT(log, IsEmpty());
}

using nbtest::expectSlotsFrom;
using nbtest::virtualSlot;

TEST(Interaction, VirtualOperationsKeepTheirSlots)
{
    using Context = InteractionContext;
    expectSlotsFrom(0, &Context::getInteractionManager, &Context::enabled, &Context::disabled,
                    &Context::contextAdded, &Context::contextRemoved, &Context::contextRaised,
                    &Context::contextLowered, &Context::pointerMoved, &Context::cameraMoved,
                    &Context::triggerEvent, &Context::isRaised, &Context::isActive,
                    &Context::isEnabled, &Context::getPreferredPosition, &Context::selectMode);
    using Tool = AbstractInteractionTool;
    expectSlotsFrom(0, &Tool::setToolMode, &Tool::activateTool, &Tool::deactivateTool,
                    &Tool::isActive, &Tool::startTool, &Tool::processTool, &Tool::stopTool,
                    &Tool::triggerTool, &Tool::hoverTool, &Tool::stopHoverTool, &Tool::isPickHint);
    EXPECT_EQ(-1, virtualSlot(&Tool::setDescription));
}

}  // namespace
}  // namespace nbec::interaction
