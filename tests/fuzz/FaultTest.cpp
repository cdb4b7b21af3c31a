// SPDX-License-Identifier: MIT
// What becomes of a drag when the host fails in the middle of it, for every manipulator that drags.
#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/TireProjectionManipulator.h"
#include "manipulator/TriplanarTextureManipulator.h"
#include "manipulator/UVTextureManipulator.h"
#include "manipulator/UniversalTransformManipulator2.h"
#include "tests/fuzz/Equipment.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbKernelServices/nbdPerspectiveMatch.h>
#include <nbNotification/NotificationManager.h>
#include <nbUtils/nbLog.h>

#include <gtest/gtest.h>

namespace nbec::manipulator::test {

namespace {

using Fault = Stage::Fault;
using Transform = UniversalTransformManipulator2;
using Planar = PlanarTextureManipulator;
using Triplanar = TriplanarTextureManipulator;
using UV = UVTextureManipulator;
using Tire = TireProjectionManipulator;

/// What the manipulators differ in here.
struct Traits
{
    Fault edited;  ///< the loss of what a drag cannot go on without
    const char* message;  ///< of a step; empty if there is none
    std::size_t material = 0;
};

// clang-format off
template <class Gizmo> constexpr Traits kTraits {};
template <> constexpr Traits kTraits<Transform> { Fault::DropNode, "nbTransform::changedTransformation" };
template <> constexpr Traits kTraits<Planar> { Fault::DropNode, "editor::changedPlanarManipulator" };
template <> constexpr Traits kTraits<Triplanar> { Fault::DropMaterial, "editor::changedTriplanarManipulator", 1 };
template <> constexpr Traits kTraits<UV> { Fault::DropMaterial, "editor::changedUVManipulator", 1 };
template <> constexpr Traits kTraits<Tire> { Fault::DropMaterial, "editor::changedTireManipulator", 2 };
template <> constexpr Traits kTraits<nbSceneplateManipulator> { Fault::DropPlate, "sceneplateChanged" };
// Edits its camera's match without a message.
template <> constexpr Traits kTraits<PerspectiveMatchManipulator> { Fault::DropView, "" };

// clang-format on

template <class Gizmo>
class Drags : public testing::Test
{
protected:
    Drags()
    {
        formerSink = nbLog::setSink([](nbLog::Level, const std::string&) {});
        context.setPicker(&stage.picker);
        gizmo.setVisualisationRoot(nbScenegraph::getInternalRoot());
        context.setManipulator(&gizmo);
        stage.manager.addContext(&context);
        equip(gizmo, stage);
        nbUndoService::the()->clear();
    }

    ~Drags() override
    {
        stage.manager.removeContext(&context);
        gizmo.setVisualisationRoot(osg::NodePtr());
        nbLog::setSink(formerSink);
        nbUndoService::the()->clear();
        EXPECT_TRUE(nbScenegraph::isPreselectionEnabled());
    }

    static void TearDownTestSuite()
    {
        notification::NotificationManager::getInstance()->clear();
        nbController::clear();
        nbScenegraph::clear();
    }

    bool say(const char* event)
    {
        return stage.manager.triggerEvent(interaction::InteractionEvent(event, "tool", "select"));
    }

    /// Looks for a handle and presses on it.
    /// @param nth  which of those found
    bool press(int nth)
    {
        for (unsigned place = 0; place < 256 * 256; ++place) {
            const std::uint8_t input[] = { static_cast<std::uint8_t>(place / 256 * 37 + 1),
                                           static_cast<std::uint8_t>(place) };
            Bytes bytes(input, 2);
            pointer = aimAt(gizmo, stage, bytes);
            stage.point(pointer);
            if (say("hover") && nth-- == 0) {
                return say("start");
            }
        }
        return false;
    }

    bool step()
    {
        pointer += osg::Vec2f(7, -5);
        stage.point(pointer);
        return say("process");
    }

    /// A whole drag that changes something.
    bool drag() { return press(0) && step() && step() && step() && say("stop"); }

    /// What the manipulator edits, as values.
    std::vector<float> edited()
    {
        std::vector<float> values = stage.values();
        if (stage.view != nullptr) {
            const nbdCameraNode camera(
                stage.view->getUberCamera()->getInternalParentNode().getFieldContainerId());
            for (int i = 0; i < nbdPerspectiveMatch::kLineCount; ++i) {
                const QLineF line =
                    camera.getPerspectiveMatch().getLine(static_cast<nbdPerspectiveMatch::Line>(i));
                values.push_back(static_cast<float>(line.x1() + line.y1() + line.x2() + line.y2()));
            }
        }
        return values;
    }

    /// Loses what is edited, all plates where they are.
    void destroy(Fault fault)
    {
        stage.commit(fault, fault == Fault::DropMaterial ? kTraits<Gizmo>.material : 0);
        if (fault == Fault::DropPlate) {
            stage.commit(fault, 1);
            stage.commit(fault, 2);
        }
    }

    /// Makes good whatever was lost, as a host would, with a scene as at first.
    void restore()
    {
        if (stage.view == nullptr) {
            stage.addView();
        }
        // Where it was at first, in case a drag has carried it far away.
        stage.commit(Fault::DropNode, 0);
        stage.addNode(0);
        stage.addMaterial(kTraits<Gizmo>.material);
        for (std::size_t i = 0; i < 3; ++i) {
            stage.addPlate(i);
        }
        equip(gizmo, stage);
    }

    /// That a drag works as if nothing had happened.
    void expectUsable()
    {
        restore();
        // The planar gizmo pauses when it gets its object.
        constexpr bool kPausesAtOnce = std::is_same_v<Gizmo, Planar>;
        EXPECT_EQ(stage.preview.isPaused(), kPausesAtOnce);
        const std::vector<float> before = edited();
        EXPECT_TRUE(drag());
        EXPECT_NE(edited(), before);
        EXPECT_FALSE(stage.preview.isPaused());
        EXPECT_EQ(stage.check(), "");
    }

    Stage stage;
    Gizmo gizmo;
    ManipulatorInteractionContext context;
    osg::Pnt2f pointer;
    nbLog::Sink formerSink;
};

using AllGizmos = testing::Types<Transform, Planar, Triplanar, UV, Tire, nbSceneplateManipulator,
                                 PerspectiveMatchManipulator>;
TYPED_TEST_SUITE(Drags, AllGizmos, );

template <class Gizmo>
class Senders : public Drags<Gizmo>
{ };

using AllSenders = testing::Types<Transform, Planar, Triplanar, UV, Tire, nbSceneplateManipulator>;
TYPED_TEST_SUITE(Senders, AllSenders, );

}  // namespace

TYPED_TEST(Senders, AHandlerThatFailsInEachStepStopsNoDrag)
{
    for (const Fault fault : { Fault::Throw, Fault::ThrowNumber }) {
        int received = 0;
        nbController::addReceiver(kTraits<TypeParam>.message, [&](nbMessage&) {
            ++received;
            this->stage.commit(fault, 0);
        });
        ASSERT_TRUE(this->press(0));
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

TYPED_TEST(Senders, AHandlerMayDestroyWhatIsEditedWithinTheMessage)
{
    for (const Fault fault : { Fault::DropNode, Fault::DropMaterial, Fault::DropSettings,
                               Fault::DropPlate, Fault::DropView, Fault::ClearTexts }) {
        SCOPED_TRACE(static_cast<int>(fault));
        int received = 0;
        nbController::addReceiver(kTraits<TypeParam>.message, [&](nbMessage&) {
            this->destroy(fault);
            ++received;
        });
        ASSERT_TRUE(this->press(0));
        this->step();
        this->step();
        ASSERT_GE(received, 1);
        this->step();
        // The answer tells whether there is still what the manipulator edits.
        EXPECT_EQ(this->say("stop"), fault != kTraits<TypeParam>.edited);
        EXPECT_EQ(this->stage.check(), "");
        nbController::removeReceiver(kTraits<TypeParam>.message);
        this->stage.renewReceivers();
        this->expectUsable();
    }
}

TYPED_TEST(Drags, AViewThatVanishesWithItsCameraInADragLosesNothing)
{
    for (const bool isReplaced : { false, true }) {
        ASSERT_TRUE(this->press(0));
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

using MatchDrags = Drags<PerspectiveMatchManipulator>;

TEST_F(MatchDrags, WhoHearsOfALineMayDestroyItsCamera)
{
    // The view's own camera, and one that nobody looks through.
    for (const Fault fault : { Fault::DropView, Fault::DropCamera }) {
        if (fault == Fault::DropCamera) {
            gizmo.setCamera(stage.firstCamera());
        }
        ASSERT_TRUE(press(0));
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

TYPED_TEST(Drags, AGroupOfUndoThatIsNeverClosedLosesNoStep)
{
    nbUndoService* const undo = nbUndoService::the();
    std::vector<std::vector<float>> states { this->edited() };
    for (int i = 0; i < 2; ++i) {
        undo->beginGroup();  // ends the one before
        ASSERT_TRUE(this->drag());
        states.push_back(this->edited());
        ASSERT_NE(states[i], states[i + 1]);
    }
    undo->endGroup();
    EXPECT_TRUE(undo->undo());
    EXPECT_EQ(this->edited(), states[1]);
    EXPECT_TRUE(undo->undo());
    EXPECT_EQ(this->edited(), states[0]);
}

}  // namespace nbec::manipulator::test
