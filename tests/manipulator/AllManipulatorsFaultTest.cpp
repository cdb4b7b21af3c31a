// SPDX-License-Identifier: MIT
// What becomes of a drag when the host fails in the middle of it, for every manipulator that drags.
#include "tests/manipulator/support/AnyManipulator.h"

namespace nbec::manipulator::test {

TYPED_TEST(Gizmos, AHandlerThatFailsInEachStepStopsNoDrag)
{
    for (const Fault fault : { Fault::Throw, Fault::ThrowNumber }) {
        int received = 0;
        nbController::addReceiver(this->kTraits.message, [&](nbMessage&) {
            ++received;
            this->stage.commit(fault, 0);
        });
        ASSERT_TRUE(this->press());
        this->step();
        received = 0;
        EXPECT_TRUE(this->step());
        EXPECT_TRUE(this->step());
        EXPECT_EQ(received, 2);
        EXPECT_TRUE(this->say("stop"));
        EXPECT_FALSE(this->stage.preview.isPaused());
        EXPECT_EQ(this->stage.check(), "");
    }
}

TYPED_TEST(Gizmos, AHandlerMayDestroyWhatIsEditedWithinTheMessage)
{
    for (const Fault fault : { Fault::DropNode, Fault::DropMaterial, Fault::DropSettings,
                               Fault::DropPlate, Fault::DropView, Fault::ClearTexts }) {
        SCOPED_TRACE(static_cast<int>(fault));
        int received = 0;
        nbController::addReceiver(this->kTraits.message, [&](nbMessage&) {
            this->destroy(fault);
            ++received;
        });
        ASSERT_TRUE(this->press());
        this->step();
        this->step();
        ASSERT_GE(received, 1);
        this->step();
        // The answer tells whether there is still what the manipulator edits.
        EXPECT_EQ(this->say("stop"), fault != this->kTraits.edited);
        EXPECT_EQ(this->stage.check(), "");
        nbController::removeReceiver(this->kTraits.message);
        this->stage.renewReceivers();
        this->expectUsable();
    }
}

TYPED_TEST(Manipulators, AViewThatVanishesWithItsCameraInADragLosesNothing)
{
    for (const bool isReplaced : { false, true }) {
        ASSERT_TRUE(this->press());
        ASSERT_TRUE(this->step());
        this->stage.view.reset();
        const std::vector<float> before = this->stage.values();
        this->step();
        EXPECT_EQ(this->stage.values(), before);
        if (isReplaced) {
            this->stage.addView();
            this->step();
        }
        this->say("stop");
        EXPECT_EQ(this->stage.check(), "");
        this->expectUsable();
    }
}

TYPED_TEST(Manipulators, NoOrderOfDestructionDoesHarm)
{
    ASSERT_TRUE(this->hover(this->kTraits.handle));
    const osg::Pnt2f place = this->pointer;
    this->drop();
    std::array<int, 5> order { 0, 1, 2, 3, 4 };
    do {
        auto manager = std::make_unique<interaction::InteractionManager>();
        auto picker = std::make_unique<interaction::Picker>();
        this->gizmo = std::make_unique<TypeParam>();
        auto route = std::make_unique<ManipulatorInteractionContext>();
        auto copy = std::make_unique<ManipulatorInteractionContext>(*route);
        if (this->stage.view == nullptr) {
            this->stage.addView();
        }
        this->gizmo->setVisualisationRoot(nbScenegraph::getInternalRoot());
        route->setPicker(picker.get());
        route->setManipulator(this->gizmo.get());
        *copy = *route;
        manager->addContext(route.get());
        this->gizmo->addDragListener([&copy](const DragEvent& event) {
            EXPECT_EQ(copy->getManipulator(), event.manipulator) << "who dies hears of no event";
        });
        equip(*this->gizmo, this->stage);
        this->stage.view->setMousePosition(place);
        manager->pointerMoved(place);
        for (const char* event : { "hover", "start", "process", "process" }) {
            EXPECT_TRUE(
                manager->triggerEvent(interaction::InteractionEvent(event, "tool", "select")));
        }
        for (const int next : order) {
            next == 0       ? manager.reset()
                : next == 1 ? picker.reset()
                : next == 2 ? this->gizmo.reset()
                : next == 3 ? route.reset()
                            : this->stage.view.reset();
        }
        EXPECT_EQ(copy->getManipulator(), nullptr);
        this->stage.renewReceivers();
        EXPECT_EQ(this->textCount(), 0U) << "of drags that nobody goes on with";
    } while (std::next_permutation(order.begin(), order.end()));
    EXPECT_EQ(this->stage.check(), "");
    nbScenegraph::setPreselectionEnabled(true);  // who has died in a hover owes it
    this->stage.addView();
    this->equipNew();
    this->expectUsable();
}

using MatchDrags = Manipulators<PerspectiveMatchManipulator>;

TEST_F(MatchDrags, WhoHearsOfALineMayDestroyItsCamera)
{
    // The view's own camera, and one that nobody looks through.
    for (const Fault fault : { Fault::DropView, Fault::DropCamera }) {
        if (fault == Fault::DropCamera) {
            const nbdCameraNode seen(
                stage.view->getUberCamera()->getInternalParentNode().getFieldContainerId());
            const nbdCameraNode other(
                stage.firstCamera()->getInternalParentNode().getFieldContainerId());
            const auto line = nbdPerspectiveMatch::XLine2;  // where the pointer goes
            other.getPerspectiveMatch().setLine(line, seen.getPerspectiveMatch().getLine(line));
            gizmo->setCamera(stage.firstCamera());
        }
        ASSERT_TRUE(press("2"));
        ASSERT_TRUE(step());
        stage.arm(fault);
        step();
        EXPECT_FALSE(stage.isArmed());
        step();
        say("stop");
        EXPECT_EQ(stage.check(), "");
        expectUsable();
    }
}

TYPED_TEST(Manipulators, AGroupOfUndoThatIsNeverClosedLosesNoStep)
{
    std::vector<std::vector<float>> states { this->edited() };
    for (int i = 0; i < 2; ++i) {
        this->undo->beginGroup();  // ends the one before
        ASSERT_TRUE(this->drag());
        states.push_back(this->edited());
        ASSERT_NE(states[i], states[i + 1]);
    }
    this->undo->endGroup();
    EXPECT_TRUE(this->undo->undo());
    EXPECT_EQ(this->edited(), states[1]);
    EXPECT_TRUE(this->undo->undo());
    EXPECT_EQ(this->edited(), states[0]);
}

}  // namespace nbec::manipulator::test
