// SPDX-License-Identifier: MIT
#include "manipulator/AbstractManipulator.h"

#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/NodeManipulator.h"

#include <nbInteraction/InteractionManager.h>
#include <nbInteraction/Picker.h>
#include <nbKernel/nbScenegraph.h>

#include <OpenSG/OSGGroup.h>

#include <gtest/gtest.h>

#include <utility>

namespace nbec::manipulator::test {

namespace {

using interaction::InteractionEvent;
using interaction::InteractionManager;
using interaction::Picker;
using Calls = std::vector<std::string>;

/// A manipulator with an empty visualisation that writes down which of its operations ran and
/// answers as told.
class RecordingManipulator : public NodeManipulator
{
public:
    RecordingManipulator()
        : visualisation(osg::makeCoredNode<osg::Group>())
        , collider(osg::makeCoredNode<osg::Group>())
    { }

    osg::NodePtr getVisualisation() override { return visualisation.get(); }

    osg::NodePtr getCollider() override { return collider.get(); }

    void update(bool /*force*/) override { }

    using Context = ManipulatorInteractionContext*;
    using Hint = const std::string&;

    bool startManipulator(Context, Hint hint) override { return record("start " + hint); }

    bool processManipulator(Context, Hint hint) override { return record("process " + hint); }

    bool stopManipulator(Context, Hint hint) override { return record("stop " + hint); }

    bool hoverManipulator(Context, Hint hint) override { return record("hover " + hint); }

    bool resetManipulator(Context, Hint hint) override { return record("reset " + hint); }

    bool setManipulatorMode(Hint newMode) override { return record("mode " + newMode); }

    Calls takeCalls() { return std::exchange(calls, {}); }

    bool answer = false;

private:
    bool record(const std::string& call)
    {
        calls.push_back(call);
        return answer;
    }

    osg::RefPtr<osg::NodePtr> visualisation;
    osg::RefPtr<osg::NodePtr> collider;
    Calls calls;
};

}  // namespace

TEST(AbstractManipulator, AnActiveVisualisationFollowsItsRoot)
{
    const osg::NodeRefPtr root(osg::makeCoredNode<osg::Group>());
    const osg::NodeRefPtr otherRoot(osg::makeCoredNode<osg::Group>());
    RecordingManipulator manipulator;
    manipulator.setVisualisationRoot(root.get());
    manipulator.activate(nullptr);
    const osg::NodePtr sibling = osg::makeCoredNode<osg::Group>();
    root->addChild(sibling);

    manipulator.setVisualisationRoot(root.get());
    EXPECT_EQ(root->findChild(manipulator.getVisualisation()), 0)
        << "the same root must not re-hang it";

    manipulator.setVisualisationRoot(otherRoot.get());
    EXPECT_EQ(root->getNChildren(), 1U);
    EXPECT_EQ(otherRoot->getNChildren(), 1U);

    manipulator.setVisualisationRoot(osg::NodePtr());
    EXPECT_EQ(otherRoot->getNChildren(), 0U);
    EXPECT_EQ(manipulator.getVisualisationRoot(), osg::NullFC);
    manipulator.setVisualisationRoot(manipulator.getVisualisation());
    EXPECT_EQ(manipulator.getVisualisation()->getNChildren(), 0U) << "nothing hangs below itself";

    manipulator.deactivate(nullptr);
    manipulator.setVisualisationRoot(root.get());
    EXPECT_EQ(root->getNChildren(), 1U) << "an inactive manipulator only stores the root";
}

TEST(AbstractManipulator, PreselectionThatSomebodyElseSwitchedOffStaysOff)
{
    nbScenegraph::setPreselectionEnabled(false);
    RecordingManipulator manipulator;

    manipulator.answer = true;
    manipulator.hover(nullptr, "select");
    manipulator.answer = false;
    manipulator.hover(nullptr, "select");
    manipulator.reset(nullptr, "select");
    manipulator.activate(nullptr);
    manipulator.deactivate(nullptr);

    EXPECT_FALSE(nbScenegraph::isPreselectionEnabled());
    nbScenegraph::setPreselectionEnabled(true);
}

TEST(ManipulatorInteractionContext, EventsReachTheManipulatorAsRouted)
{
    // calls: what reaches the manipulator
    const std::tuple<const char*, const char*, const char*, Calls, bool> rows[] = {
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
    };

    for (const auto& [event, tool, hint, calls, answer] : rows) {
        SCOPED_TRACE(std::string(event) + ' ' + tool + ' ' + hint);
        ManipulatorInteractionContext context;
        RecordingManipulator manipulator;
        manipulator.answer = true;
        context.setManipulator(&manipulator);
        EXPECT_EQ(context.triggerEvent(nullptr, InteractionEvent(event, tool, hint)), answer);
        EXPECT_EQ(manipulator.takeCalls(), calls);
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
    EXPECT_FALSE(manipulator.isActive()) << "a context that is in no manager stays idle";

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
