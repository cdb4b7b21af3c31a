// SPDX-License-Identifier: MIT
// The course that all manipulators take, and in what they differ: each column of Traits.
#include "tests/manipulator/support/AnyManipulator.h"
#include "tests/platform/support/Edited.h"

#include <OpenSG/OSGSimpleGeometry.h>

#include <QUndoStack>

#include <cmath>
#include <limits>

#include <ChangeCount.h>

namespace nbec::manipulator::test {

template <class Gizmo>
using Pausing = AnyManipulator<Gizmo>;

TYPED_TEST_SUITE(Pausing, KindsThatPause, );

// == Hover

TYPED_TEST(Manipulators, HoverLightsUpTheHandleUnderThePointerAlone)
{
    const Traits& traits = this->kTraits;
    for (const auto& [name, other] :
         { std::pair(traits.handle, traits.other), std::pair(traits.other, traits.handle) }) {
        ASSERT_TRUE(this->hover(name));
        EXPECT_TRUE(this->isLit(name));
        EXPECT_FALSE(this->isLit(other));
        EXPECT_FALSE(nbScenegraph::isPreselectionEnabled());
        const osg::UInt64 edits = osg::getTreeChangeCount(this->gizmo->getVisualisation());
        EXPECT_TRUE(this->say("hover"));
        EXPECT_EQ(osg::getTreeChangeCount(this->gizmo->getVisualisation()), edits);
    }
    this->hoverNothing();
    EXPECT_FALSE(this->isLit(traits.other));
    EXPECT_TRUE(nbScenegraph::isPreselectionEnabled());
    EXPECT_FALSE(this->say("start"));
    EXPECT_FALSE(this->say("process"));
    EXPECT_FALSE(this->say("stop"));

    ASSERT_TRUE(this->hover(traits.handle));
    EXPECT_FALSE(this->say("stopHover")) << "reset, but passed on";
    EXPECT_FALSE(this->isLit(traits.handle));
    EXPECT_TRUE(nbScenegraph::isPreselectionEnabled());
    EXPECT_EQ(this->say("process"), traits.isHoverKept);
    this->say("stop");
}

TYPED_TEST(Gizmos, OnlyNodesOfTheOwnTreeWithExactNamesAreHandles)
{
    const Traits& traits = this->kTraits;
    ASSERT_TRUE(this->hover(traits.handle));
    const Pnt2f place = this->pointer;
    const osg::NodePtr own = this->node(traits.handle);
    nbNodeUtils::setName(own, std::string(traits.handle) + "s", true);
    EXPECT_FALSE(this->say("hover"));
    EXPECT_FALSE(this->say("start"));
    nbNodeUtils::setName(own, traits.handle, true);
    EXPECT_TRUE(this->say("hover"));

    // A box of the scene that bears the name.
    const osg::NodePtr stranger = osg::makeBox(9, 9, 1, 1, 1, 1);
    addChild(nbScenegraph::getRootNode(), stranger);
    nbNodeUtils::setName(stranger, traits.handle);
    this->stage.picker.setPickNode(stranger);
    this->point(place);
    EXPECT_FALSE(this->say("hover"));
    EXPECT_FALSE(this->say("start"));
    EXPECT_FALSE(this->gizmo->hoverManipulator(nullptr, "select")) << "no picker";
    EXPECT_FALSE(this->gizmo->startManipulator(nullptr, "select"));
}

// == Grab and stop

TYPED_TEST(Manipulators, ADragBeginsWithTheFirstStepThatItsKindHas)
{
    const std::vector<float> before = this->edited();
    ASSERT_TRUE(this->press());
    EXPECT_EQ(this->edited(), before);
    EXPECT_TRUE(this->step());
    EXPECT_EQ(this->edited() != before, this->kTraits.movesAtFirstStep);
    EXPECT_TRUE(this->step());
    EXPECT_NE(this->edited(), before);
    EXPECT_TRUE(this->say("stop"));
    EXPECT_FALSE(this->say("stop")) << "let go already";
    EXPECT_FALSE(this->say("process"));
}

TYPED_TEST(Manipulators, AMereHoverMayBeGoneOnWithAndStopped)
{
    this->listen(false);
    const std::vector<float> before = this->edited();
    ASSERT_TRUE(this->hover(this->kTraits.handle));
    EXPECT_EQ(this->gizmo->processManipulator(&this->context, "select"),
              this->kTraits.goesOnAfterHover);
    this->say("stop");
    EXPECT_EQ(this->edited(), before);
    this->messages.log.clear();

    ASSERT_TRUE(this->hover(this->kTraits.handle));
    EXPECT_EQ(this->gizmo->stopManipulator(&this->context, "select"),
              this->kTraits.stopsAfterHover);
    EXPECT_EQ(this->messages.takeNames(),
              this->kTraits.pause == Pause::AtFirstStep ? kResume : Names());
}

TYPED_TEST(Manipulators, AStartAfterAHoverThatWentOnDragsWhatItGrabs)
{
    ASSERT_TRUE(this->hover(this->kTraits.other));
    this->gizmo->processManipulator(&this->context, "select");
    this->gizmo->processManipulator(&this->context, "select");
    this->gizmo->startManipulator(&this->context, "select");
    this->gizmo->stopManipulator(&this->context, "select");

    this->hover(this->kTraits.other);
    this->gizmo->processManipulator(&this->context, "select");
    this->gizmo->reset(&this->context, "select");
    ASSERT_TRUE(this->say("stop") || !this->kTraits.stopsAfterHover);
    ASSERT_TRUE(this->hover(this->kTraits.handle));
    const Pnt2f place = this->pointer;
    ASSERT_TRUE(this->hover(this->kTraits.other));
    this->gizmo->processManipulator(&this->context, "select");
    this->point(place);
    if (this->kIsMatch) {
        this->gizmo->hoverManipulator(&this->context, "select");
    }
    ASSERT_TRUE(this->gizmo->startManipulator(&this->context, "select"));
    const std::vector<float> before = this->edited();
    EXPECT_TRUE(this->step());
    EXPECT_TRUE(this->step());
    EXPECT_NE(this->edited(), before);
    EXPECT_TRUE(this->say("stop"));
}

TYPED_TEST(Manipulators, NeitherHoverNorResetTakesAGrabbedHandleAway)
{
    ASSERT_TRUE(this->press());
    EXPECT_TRUE(this->step());
    const Pnt2f held = this->pointer;
    this->point(Pnt2f(3, 3));
    EXPECT_EQ(this->gizmo->hoverManipulator(&this->context, "select"), !this->kIsMatch);
    if (!this->kIsMatch) {
        EXPECT_TRUE(this->gizmo->resetManipulator(&this->context, "select"));
        EXPECT_EQ(this->isLit(this->kTraits.handle), this->kTraits.hasGrabbedLit);
    }
    this->point(held);
    const std::vector<float> before = this->edited();
    EXPECT_TRUE(this->step());
    EXPECT_NE(this->edited(), before);
    EXPECT_TRUE(this->say("stop"));
}

TYPED_TEST(Manipulators, APointerThatIsNoNumberIsIgnored)
{
    ASSERT_TRUE(this->press());
    const Pnt2f start = this->pointer;
    constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
    const auto stepNowhere = [&] {
        for (const Pnt2f& nowhere : { Pnt2f(kNaN, 9), Pnt2f(9, kNaN), Pnt2f(kNaN, kNaN) }) {
            const std::vector<float> before = this->edited();
            this->stage.point(nowhere);
            this->gizmo->setMousePosition(nowhere);  // as of a manager of the host's own
            EXPECT_TRUE(this->say("process"));
            EXPECT_EQ(this->edited(), before);
        }
    };
    stepNowhere();
    this->point(start);
    EXPECT_TRUE(this->step());
    EXPECT_TRUE(this->step());
    stepNowhere();
    this->point(start);
    EXPECT_TRUE(this->say("process"));
    const std::vector<float> after = this->edited();
    EXPECT_TRUE(this->say("stop"));
    for (const float value : after) {
        EXPECT_TRUE(std::isfinite(value));
    }
}

TYPED_TEST(Gizmos, AStopThatIsLostIsMadeGoodByTheNextStart)
{
    ASSERT_TRUE(this->press());
    this->step();
    this->step();
    this->listen(false);
    // Past the manager, which would stop the former drag first.
    this->point(Pnt2f(3, 3));
    EXPECT_FALSE(this->gizmo->startManipulator(&this->context, "select"));
    EXPECT_EQ(this->messages.takeNames(), this->kTraits.pause == Pause::Never ? Names() : kResume);
    EXPECT_TRUE(isShown(this->node(this->kTraits.other)));
    EXPECT_FALSE(this->gizmo->processManipulator(&this->context, "select"));
    EXPECT_FALSE(this->gizmo->stopManipulator(&this->context, "select"));
    this->say("stop");

    ASSERT_TRUE(this->press());
    const Pnt2f start = this->pointer;
    this->say("process");
    this->step();
    this->point(start);
    this->say("process");
    const std::vector<float> before = this->edited();
    ASSERT_TRUE(this->gizmo->startManipulator(&this->context, "select"));
    this->gizmo->processManipulator(&this->context, "select");
    this->gizmo->processManipulator(&this->context, "select");
    for (std::size_t i = 0; i < before.size(); ++i) {
        EXPECT_NEAR(this->edited()[i], before[i], 1e-4F) << "a new drag begins where it stands";
    }
    EXPECT_TRUE(this->say("stop"));
}

TYPED_TEST(Manipulators, TakenOutOfUseInADrag)
{
    const Traits& traits = this->kTraits;
    ASSERT_TRUE(this->press());
    this->step();
    this->step();
    this->listen(false);
    this->gizmo->deactivate(&this->context);
    EXPECT_EQ(this->gizmo->getVisualisation()->getParent(), osg::NullFC);
    EXPECT_EQ(this->messages.takeNames(),
              traits.endsWhenDeactivated && traits.pause != Pause::Never ? kResume : Names());
    EXPECT_EQ(nbScenegraph::getInternalRoot()->findChild(this->gizmo->getVisualisation()), -1);
    EXPECT_TRUE(nbScenegraph::isPreselectionEnabled());

    this->gizmo->activate(&this->context);
    if (this->kIsMatch) {
        equip(*this->gizmo, this->stage);  // it has forgotten its camera
    }
    EXPECT_GE(nbScenegraph::getInternalRoot()->findChild(this->gizmo->getVisualisation()), 0);
    const std::vector<float> before = this->edited();
    EXPECT_EQ(this->step(), !traits.endsWhenDeactivated);
    EXPECT_EQ(this->edited() != before, !traits.endsWhenDeactivated);
    EXPECT_EQ(this->say("stop"), !traits.endsWhenDeactivated);
    EXPECT_EQ(this->textCount(), 0U);
}

// == What a drag tells

TYPED_TEST(Pausing, ThePreviewIsPausedFromTheStartOrFirstStepToTheStop)
{
    const Traits& traits = this->kTraits;
    ASSERT_TRUE(this->hover(traits.handle));
    this->listen(true);
    const auto isEnabled = [this] {
        return attribute<bool>(this->messages.log.front(), "enabled");
    };
    ASSERT_TRUE(this->say("start"));
    const bool isAtStart = traits.pause == Pause::AtStart;
    EXPECT_EQ(this->messages.log.size(), isAtStart ? 1U : 0U);
    EXPECT_FALSE(isAtStart && isEnabled());
    this->messages.log.clear();
    EXPECT_TRUE(this->step());
    EXPECT_EQ(this->messages.log.size(), 1U);
    EXPECT_FALSE(!isAtStart && isEnabled());
    EXPECT_EQ(this->messages.takeNames(), isAtStart ? Names { traits.message } : kPause);
    EXPECT_TRUE(this->step());
    EXPECT_EQ(this->messages.takeNames(), Names { traits.message });
    EXPECT_TRUE(this->say("stop"));
    if (std::is_same_v<TypeParam, Tire>) {
        EXPECT_EQ(this->messages.log.front().name, traits.message) << "set by hand";
        this->messages.log.erase(this->messages.log.begin());
    }
    EXPECT_TRUE(isEnabled());
    EXPECT_EQ(this->messages.takeNames(), kResume);
}

TYPED_TEST(Pausing, ThePreviewGoesOnAtTheNextCallAfterTheTargetWasDestroyedInADrag)
{
    using Call = void (*)(TypeParam&, ManipulatorInteractionContext&);
    const Call calls[] = {
        [](TypeParam& of, ManipulatorInteractionContext&) { of.update(false); },
        [](TypeParam& of, ManipulatorInteractionContext& ctx) { of.hover(&ctx, "select"); },
        [](TypeParam& of, ManipulatorInteractionContext& ctx) {
            of.processManipulator(&ctx, "select");
        },
        [](TypeParam& of, ManipulatorInteractionContext& ctx) {
            of.stopManipulator(&ctx, "select");
        },
    };

    for (const Call call : calls) {
        ASSERT_TRUE(this->press());
        EXPECT_TRUE(this->step());
        EXPECT_TRUE(this->stage.preview.isPaused());
        this->destroy(this->kTraits.edited);
        call(*this->gizmo, this->context);
        EXPECT_FALSE(this->stage.preview.isPaused()) << &call - calls;
        this->say("stop");
        this->restore();
    }
}

TYPED_TEST(Pausing, AManipulatorThatDiesInADragResumesThePreview)
{
    ASSERT_TRUE(this->hover(this->kTraits.handle));
    this->listen(true);
    // Past the manager, which would stop the drag.
    EXPECT_TRUE(this->gizmo->startManipulator(&this->context, "select"));
    EXPECT_TRUE(this->gizmo->processManipulator(&this->context, "select"));
    this->messages.log.clear();
    this->drop();
    TypeParam::updateAllManipulators();
    EXPECT_EQ(this->messages.takeNames(), kResume);
}

TYPED_TEST(Manipulators, StepsMarkTheSceneAsModifiedOrLeaveItToWhoEdits)
{
    ASSERT_TRUE(this->press());
    this->step();
    if (*this->kTraits.message != '\0' && !std::is_same_v<TypeParam, Transform>) {
        this->listen(true);  // in the editor's place
    }
    nbController::setModified(0);
    EXPECT_TRUE(this->step());
    EXPECT_EQ(nbController::getModified(), this->kTraits.marksModified ? 1 : 0);
    EXPECT_TRUE(this->say("stop"));
}

TYPED_TEST(Manipulators, TheTextGoesWithTheDrag)
{
    ASSERT_TRUE(this->press());
    EXPECT_EQ(this->textCount(), 0U);
    this->step();
    this->step();
    EXPECT_EQ(this->textCount(), this->kTraits.hasText ? 1U : 0U);
    notification::NotificationManager::getInstance()->clear();  // the host forgets all texts
    this->step();
    EXPECT_EQ(this->textCount(), this->kTraits.hasText ? 1U : 0U);
    this->say("stop");
    EXPECT_EQ(this->textCount(), 0U);
}

TYPED_TEST(Manipulators, ADragIsUndoneAndRedoneExactlyAndBackAtItsStartChangesNothing)
{
    const std::vector<float> before = this->edited();
    {
        QUndoStack host;
        ASSERT_TRUE(this->undo->setStack(&host));
        host.push(new QUndoCommand("The host's"));
        ASSERT_TRUE(this->drag());
        const std::vector<float> after = this->edited();
        ASSERT_NE(after, before);
        ASSERT_EQ(host.count(), 2) << "the drag is one step, among the host's";
        host.undo();
        EXPECT_EQ(this->edited(), before);
        host.redo();
        EXPECT_EQ(this->edited(), after);
        ASSERT_TRUE(this->press());
        this->step();
        EXPECT_FALSE(this->undo->setStack(nullptr)) << "in a drag";
        this->stage.manager.cancelDrag();
        EXPECT_EQ(this->edited(), after);
        this->undo->clear();
        EXPECT_EQ(host.count(), 2) << "without the cancelled drag";
    }

    // The host's stack is gone.
    const std::vector<float> after = this->edited();
    ASSERT_TRUE(this->press());
    const Pnt2f start = this->pointer;
    this->say("process");
    this->step();
    EXPECT_NE(this->edited(), after);
    this->point(start);
    this->say("process");
    for (std::size_t i = 0; i < after.size(); ++i) {
        EXPECT_NEAR(this->edited()[i], after[i], 1e-5F) << i;
    }
    this->step();
    this->say("stop");
    EXPECT_TRUE(this->undo->undo());
    EXPECT_EQ(this->edited(), after);
    EXPECT_FALSE(this->undo->undo()) << "one step";
}

// == What is missing or goes

TYPED_TEST(Manipulators, WhatIsEditedGoesBetweenTwoSteps)
{
    if (this->kTraits.edited == Fault::DropMaterial) {
        this->messages.listen(this->kTraits.message);  // an editor's undo would keep it
    }
    ASSERT_TRUE(this->press());
    this->step();
    this->step();
    this->destroy(this->kTraits.edited);
    const std::vector<float> before = this->edited();
    this->gizmo->update(true);
    EXPECT_EQ(this->step(), this->kTraits.goesOnWithoutTarget);
    EXPECT_EQ(this->edited(), before);
    EXPECT_EQ(this->gizmo->stopManipulator(&this->context, "select"), this->kIsMatch);
    this->gizmo->update(false);
    EXPECT_FALSE(this->stage.preview.isPaused());
    EXPECT_EQ(this->textCount(), 0U);
    EXPECT_FALSE(this->say("hover"));
    EXPECT_FALSE(this->say("start"));
    this->stage.renewReceivers();
    this->expectUsable();
}

TYPED_TEST(Manipulators, WithoutAViewNothingIsFoundOrDone)
{
    this->stage.view.reset();
    const std::vector<float> before = this->edited();
    for (ManipulatorInteractionContext* const ctx :
         { &this->context, decltype(&this->context)() }) {
        this->gizmo->update(true);
        EXPECT_FALSE(this->gizmo->hover(ctx, "select"));
        EXPECT_FALSE(this->gizmo->startManipulator(ctx, "select"));
        EXPECT_FALSE(this->gizmo->processManipulator(ctx, "select"));
        EXPECT_FALSE(this->gizmo->stopManipulator(ctx, "select"));
        EXPECT_TRUE(this->gizmo->reset(ctx, "select"));
    }
    EXPECT_EQ(this->edited(), before);
}

}  // namespace nbec::manipulator::test
