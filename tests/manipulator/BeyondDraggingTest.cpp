// SPDX-License-Identifier: MIT
// What every manipulator offers of a drag beside its events: cancel, listeners, typed values, fine
// motion, limits, readout.
#include "tests/manipulator/support/AnyManipulator.h"

namespace nbec::manipulator::test {

using Phase = DragEvent::Phase;

template <class Gizmo>
class BeyondDragging : public AnyManipulator<Gizmo>
{
protected:
    using Base = AnyManipulator<Gizmo>;
    using Base::kTraits;

    /// Notes the phases of all drags from now on.
    void listen()
    {
        this->gizmo->addDragListener([this](const DragEvent& event) {
            phases.push_back(event.phase);
            last = event;
        });
    }

    /// Presses, in a group of undo as a host opens it for each drag.
    bool grab()
    {
        this->undo->beginGroup();
        return this->press();
    }

    /// Presses and makes some steps.
    bool move() { return grab() && this->step() && this->step() && this->step(); }

    void type(const char* keys)
    {
        for (const char* key = keys; *key != 0; ++key) {
            EXPECT_TRUE(this->gizmo->typeKey(QLatin1Char(*key))) << keys << " at " << *key;
        }
    }

    std::vector<Phase> phases;
    DragEvent last;
};

TYPED_TEST_SUITE(BeyondDragging, AllKinds, );

TYPED_TEST(BeyondDragging, CancelRestoresWhatWasEditedToTheBit)
{
    ASSERT_TRUE(this->drag()) << "conversions and pauses are over";
    this->gizmo->update(true);
    const std::vector<float> before = this->edited();
    this->undo->clear();
    EXPECT_FALSE(this->gizmo->cancelDrag()) << "no drag";
    ASSERT_TRUE(this->move());
    ASSERT_NE(this->edited(), before);
    EXPECT_TRUE(this->gizmo->cancelDrag());
    this->undo->endGroup();
    const std::vector<float> after = this->edited();
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < before.size(); ++i) {
        EXPECT_FLOAT_EQ(after[i], before[i]) << i;
    }
    EXPECT_FALSE(this->undo->undo()) << "no step is left";
    EXPECT_FALSE(this->stage.preview.isPaused());
    EXPECT_FALSE(this->say("stop")) << "the drag is over";
    EXPECT_TRUE(this->gizmo->getReadout().isEmpty());
    EXPECT_TRUE(this->drag());
}

TYPED_TEST(BeyondDragging, ListenersHearOneBeginAndOneEndOfEachDragThatEscapeCancelsAtLast)
{
    this->listen();
    ASSERT_TRUE(this->drag());
    ASSERT_GE(this->phases.size(), 3U);
    EXPECT_EQ(this->phases.front(), Phase::Begin);
    EXPECT_EQ(this->phases.back(), Phase::Commit);
    EXPECT_EQ(this->last.manipulator, this->gizmo.get());
    EXPECT_FALSE(this->last.handleName.empty());
    this->phases.clear();
    const std::vector<float> before = this->edited();
    ASSERT_TRUE(this->move());
    this->type("3\x1b");
    EXPECT_EQ(this->phases.back(), Phase::Change) << "it only clears what was typed";
    EXPECT_EQ(this->gizmo->getReadout().indexOf(QLatin1Char('=')), -1);
    this->type("\x1b");
    EXPECT_EQ(this->phases.back(), Phase::Cancel);
    EXPECT_EQ(this->edited(), before);
    this->phases.clear();

    const auto count = [this](Phase phase) {
        return std::count(this->phases.begin(), this->phases.end(), phase);
    };
    this->undo->cancelGroup();
    ASSERT_TRUE(this->move());
    this->drop();
    EXPECT_EQ(count(Phase::Begin), 1);
    EXPECT_EQ(count(Phase::Commit) + count(Phase::Cancel), 1) << "the manipulator's end";
    this->equipNew();
}

TYPED_TEST(BeyondDragging, AListenerMayDestroyTheManipulatorInTheMiddle)
{
    for (const Phase when : { Phase::Begin, Phase::Change, Phase::Commit }) {
        bool wasLost = false;
        this->gizmo->addDragListener([&](const DragEvent& event) {
            if (event.phase == when && !wasLost) {
                wasLost = true;
                this->drop();
            }
        });
        this->listen();
        this->phases.clear();
        this->drag();
        EXPECT_TRUE(wasLost);
        EXPECT_EQ(std::count(this->phases.begin(), this->phases.end(), Phase::Begin), 1);
        EXPECT_NE(this->phases.back(), Phase::Change) << "the end is told";
        EXPECT_EQ(this->last.manipulator, nullptr);
        this->equipNew();
    }
}

TYPED_TEST(BeyondDragging, ATypedValueEqualsTheDraggedOne)
{
    ASSERT_TRUE(this->drag());
    this->listen();
    ASSERT_TRUE(this->move());
    const DragParameters dragged = this->last.parameters;
    const std::vector<float> expected = this->edited();
    ASSERT_TRUE(this->gizmo->cancelDrag());

    ASSERT_TRUE(this->grab());
    const std::vector<std::size_t> places = freeNumbers(this->last.action);
    for (const std::size_t i : places) {
        this->type(QByteArray::number(dragged.values[i], 'f', 12).constData());
        this->type("\t");
    }
    const std::vector<float> typed = this->edited();
    ASSERT_EQ(typed.size(), expected.size());
    for (std::size_t i = 0; i < typed.size(); ++i) {
        EXPECT_NEAR(typed[i], expected[i], 1e-4 * (1.0 + std::abs(expected[i]))) << i;
    }
    this->step();
    EXPECT_EQ(this->edited(), typed) << "the pointer moves nothing";
    this->type("+");
    EXPECT_EQ(this->edited(), typed) << "half an expression keeps the last value";
    EXPECT_TRUE(this->gizmo->getReadout().endsWith(QLatin1Char('?')));
    this->type("\b\r");
    EXPECT_EQ(this->phases.back(), Phase::Commit);
    EXPECT_EQ(this->edited(), typed);
    EXPECT_FALSE(this->gizmo->typeKey(QLatin1Char('1'))) << "no drag";
}

TYPED_TEST(BeyondDragging, FineMotionCountsATenthWithoutAJump)
{
    this->listen();
    ASSERT_TRUE(this->move());
    const double coarse = this->last.parameters.values[freeNumbers(this->last.action)[0]];
    this->gizmo->setFineMotion(true);
    this->say("process");
    EXPECT_NEAR(this->last.parameters.values[freeNumbers(this->last.action)[0]], coarse, 1e-6);
    this->point(this->pointer + Vec2f(70, -50));
    this->say("process");
    const DragParameters fine = this->last.parameters;
    this->gizmo->setFineMotion(false);
    this->say("process");
    EXPECT_EQ(this->last.parameters.values, fine.values) << "no jump";
    EXPECT_TRUE(this->say("stop"));
}

TYPED_TEST(BeyondDragging, LimitsHoldForThePointerAndForKeys)
{
    this->listen();
    ASSERT_TRUE(this->move());
    const int handle = this->last.handle;
    const std::size_t place = freeNumbers(this->last.action)[0];
    this->say("stop");
    this->gizmo->setDragLimits(handle, { 0.25, 0.5 });
    ASSERT_TRUE(this->move());
    EXPECT_GE(this->last.parameters.values[place], 0.25);
    EXPECT_LE(this->last.parameters.values[place], 0.5);
    this->type("17");
    EXPECT_EQ(this->last.parameters.values[place], 0.5);
    this->gizmo->clearDragLimits(handle);
    this->type("\b7");
    EXPECT_EQ(this->last.parameters.values[place], 17.0);
    this->say("stop");
}

template <class Gizmo>
class HandlesOfHosts : public AnyManipulator<Gizmo>
{
protected:
    /// How large the gizmo's unit is on screen, logical pixels.
    double unitPx(float pixelRatio)
    {
        this->gizmo->update(false);
        const osg::Matrix place = this->node(this->kTraits.handle)->getParent()->getToWorld();
        const Pnt3f center(place[3][0], place[3][1], place[3][2]);
        const View view;
        const Pnt3f tip = center + Vec3f(0, this->size(), 0);
        return (view.project(tip) - view.project(center)).length() / pixelRatio;
    }
};

using KindsInTheWorld = testing::Types<Transform, Planar, Triplanar, Tire>;
TYPED_TEST_SUITE(HandlesOfHosts, KindsInTheWorld, );

TYPED_TEST(HandlesOfHosts, SizeInPixelsIsTheSameInEveryView)
{
    const auto camera = this->stage.view->getUberCamera();
    camera->setFromAtUp(Pnt3f(0, 0, 20), Pnt3f(), Vec3f(0, 1, 0));
    for (const bool isOrthographic : { false, true }) {
        nbtest::edited(camera)->setOrthographic(isOrthographic);
        for (const float ratio : { 1.0F, 1.5F, 3.0F }) {
            for (const int height : { 200, 500, 1200 }) {
                this->stage.view->resize(height * 2, height);
                // Told by the host, and by the view.
                EXPECT_TRUE(setSizePolicy({ 96.0F, isOrthographic ? 7.0F : ratio }));
                this->stage.view->setPixelRatio(isOrthographic ? ratio : 0.0F);
                EXPECT_NEAR(this->unitPx(ratio), 48.0, 1.0)
                    << isOrthographic << ' ' << ratio << ' ' << height;
            }
        }
    }
    EXPECT_FALSE(setSizePolicy({ -1.0F, 1.0F }));
    EXPECT_FALSE(setSizePolicy({ 96.0F, 0.0F }));
    EXPECT_TRUE(setSizePolicy({}));
    nbtest::edited(camera)->setOrthographic(false);
}

TYPED_TEST(HandlesOfHosts, TheHostHidesSingleOnes)
{
    const char* const name = this->kTraits.handle;
    ASSERT_TRUE(this->hover(name));
    EXPECT_TRUE(this->gizmo->setHandleVisible(name, false));
    EXPECT_FALSE(this->hover(name));
    EXPECT_TRUE(this->hover(this->kTraits.other));
    EXPECT_FALSE(this->gizmo->setHandleVisible("nobody", false));
    EXPECT_TRUE(this->gizmo->setHandleVisible(name, true));
    EXPECT_TRUE(this->drag());
}

}  // namespace nbec::manipulator::test
