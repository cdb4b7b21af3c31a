// SPDX-License-Identifier: MIT
#pragma once

#include "tests/fuzz/Equipment.h"
#include "tests/manipulator/support/DragTest.h"
#include "tests/manipulator/support/MatchScene.h"
#include "tests/manipulator/support/MessageLog.h"
#include "tests/platform/support/Edited.h"

#include <nbKernel/nbController.h>
#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbNotification/NotificationManager.h>
#include <nbOpenSGUtils/nbNodeUtils.h>

namespace nbec::manipulator::test {

using Fault = Stage::Fault;

/// When a drag pauses the material's preview.
enum class Pause
{
    Never,
    AtStart,
    AtFirstStep
};

/// What manipulators differ in; all else is the same for all.
struct Traits
{
    Fault edited;  ///< the loss of what a drag cannot go on without
    const char* message;  ///< of a step; empty if there is none
    std::size_t material;  ///< that is edited
    const char* handle;  ///< that tests drag; of a match the number of a line
    const char* other;  ///< one of another group
    Pause pause;
    bool movesAtFirstStep;
    bool goesOnAfterHover;  ///< a step with a merely hovered handle answers true
    bool stopsAfterHover;  ///< so does a stop
    bool isHoverKept;  ///< a step still does when hovering was reset
    bool hasGrabbedLit;
    bool endsWhenDeactivated;
    bool marksModified;  ///< by itself; others leave that to who edits
    bool hasText;
    bool followsCamera;  ///< in an update that is not forced
    bool goesOnWithoutTarget = false;  ///< until the stop, which answers false
};

// clang-format off
template <class Gizmo> inline constexpr Traits kTraits {};
//                                                                                                                                            first  after  after  hover  lit    ends   marks  text   camera
//                                                                                                                                            step   hover  hover  kept
template <> inline constexpr Traits kTraits<Transform> { Fault::DropNode, "nbTransform::changedTransformation", 0, "xaShape", "yaShape", Pause::Never, false, true, true, false, true, true, true, true, false };
template <> inline constexpr Traits kTraits<Planar> { Fault::DropNode, "editor::changedPlanarManipulator", 0, "yaShape", "xsShape", Pause::AtStart, true, true, false, false, true, true, false, true, true };
template <> inline constexpr Traits kTraits<Triplanar> { Fault::DropMaterial, "editor::changedTriplanarManipulator", 1, "xaShape", "yaShape", Pause::AtFirstStep, false, true, true, true, false, false, true, false, true };
template <> inline constexpr Traits kTraits<UV> { Fault::DropMaterial, "editor::changedUVManipulator", 1, "xaShape", "yaShape", Pause::AtFirstStep, false, true, true, true, false, false, false, false, true, true };
template <> inline constexpr Traits kTraits<Tire> { Fault::DropMaterial, "editor::changedTireManipulator", 2, "yaShape", "scaleUShape", Pause::AtFirstStep, false, true, true, true, false, false, true, true, true };
template <> inline constexpr Traits kTraits<Plate> { Fault::DropPlate, "sceneplateChanged", 0, "scaleXYURShape", "rotateShape", Pause::AtStart, true, false, false, false, true, true, false, true, true };
// Edits its camera's match without a message.
template <> inline constexpr Traits kTraits<Match> { Fault::DropView, "", 0, "1", "2", Pause::Never, false, true, true, true, true, true, false, false, false };

// clang-format on

/// A manipulator of any kind on a stage that has all that it needs.
template <class Gizmo>
class AnyManipulator : public testing::Test
{
protected:
    static constexpr const Traits& kTraits = test::kTraits<Gizmo>;
    static constexpr bool kIsMatch = std::is_same_v<Gizmo, Match>;

    AnyManipulator()
    {
        formerSink = nbLog::setSink([](nbLog::Level, const std::string&) {});
        context.setPicker(&stage.picker);
        equipNew();
        nbUndoService::the()->clear();
    }

    ~AnyManipulator() override
    {
        drop();
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

    void equipNew()
    {
        gizmo = std::make_unique<Gizmo>();
        gizmo->setVisualisationRoot(nbScenegraph::getInternalRoot());
        context.setManipulator(gizmo.get());
        stage.manager.addContext(&context);
        equip(*gizmo, stage);
        gizmo->update(true);
    }

    void drop()
    {
        stage.manager.removeContext(&context);
        context.setManipulator(nullptr);
        gizmo.reset();
    }

    bool say(const char* event)
    {
        return stage.manager.triggerEvent(interaction::InteractionEvent(event, "tool", "select"));
    }

    void point(const Pnt2f& px)
    {
        pointer = px;
        stage.point(px);
    }

    osg::NodePtr node(const char* name) { return findNode(gizmo->getVisualisation(), name); }

    /// Hovers a handle wherever it can be hit.
    bool hover(const char* name)
    {
        if constexpr (kIsMatch) {
            const std::uint8_t input[] = { 128, static_cast<std::uint8_t>(name[0] - '1') };
            Bytes bytes(input, 2);
            point(aimAt(*gizmo, stage, bytes));
            return say("hover");
        } else {
            gizmo->update(true);
            for (const Pnt2f& px : placesOf(node(name))) {
                point(px);
                if (say("hover") && nbNodeUtils::getName(stage.picker.getHitNode()) == name) {
                    return true;
                }
            }
            return false;
        }
    }

    void hoverNothing()
    {
        point(Pnt2f(3, 3));
        EXPECT_FALSE(say("hover"));
    }

    bool press(const char* name = kTraits.handle) { return hover(name) && say("start"); }

    bool step()
    {
        point(pointer + Vec2f(7, -5));
        return say("process");
    }

    /// A whole drag that changes something.
    bool drag() { return press() && step() && step() && step() && say("stop"); }

    bool isLit(const char* name)
    {
        if constexpr (kIsMatch) {
            return isHighlighted(*gizmo, name[0] - '0', 1);
        } else {
            return partColor(node(name), 0) == kHighlight;
        }
    }

    /// What the manipulator edits, as values.
    std::vector<float> edited()
    {
        std::vector<float> values = stage.values();
        for (int i = 0; stage.view != nullptr && i < nbdPerspectiveMatch::kLineCount; ++i) {
            const nbdCameraNode camera(
                stage.view->getUberCamera()->getInternalParentNode().getFieldContainerId());
            const QLineF line =
                camera.getPerspectiveMatch().getLine(static_cast<nbdPerspectiveMatch::Line>(i));
            values.push_back(static_cast<float>(line.x1() + line.y1() + line.x2() + line.y2()));
        }
        return values;
    }

    /// Loses what is edited, all plates where they are.
    void destroy(Fault fault)
    {
        for (std::size_t i = 0; i < (fault == Fault::DropPlate ? 3 : 1); ++i) {
            stage.commit(fault, fault == Fault::DropMaterial ? kTraits.material : i);
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
        stage.addMaterial(kTraits.material);
        for (std::size_t i = 0; i < 3; ++i) {
            stage.addPlate(i);
        }
        equip(*gizmo, stage);
    }

    /// That a drag works as if nothing had happened.
    void expectUsable()
    {
        restore();
        // The planar gizmo pauses when it gets its object.
        EXPECT_EQ(stage.preview.isPaused(), (std::is_same_v<Gizmo, Planar>));
        const std::vector<float> before = edited();
        EXPECT_TRUE(drag());
        EXPECT_NE(edited(), before);
        EXPECT_FALSE(stage.preview.isPaused());
        EXPECT_EQ(stage.check(), "");
    }

    /// Writes down what is said of the preview, and what is sent of steps in the editor's place.
    void listen(bool toSteps)
    {
        messages.listen("setMatRenderEnabled");
        messages.listen("updateMatRender");
        if (toSteps) {
            messages.listen(kTraits.message);
        }
    }

    /// Scale by which the handles' places are those of their unit frame.
    float size() { return node(kTraits.handle)->getParent()->getToWorld()[0].length(); }

    Pnt3f place()
    {
        const osg::Matrix place = node(kTraits.handle)->getToWorld();
        return Pnt3f(place[3][0], place[3][1], place[3][2]);
    }

    void look(const Pnt3f& eye, bool isOrthographic = false)
    {
        const osg::UberCameraPtr camera = stage.view->getUberCamera();
        camera->setFromAtUp(eye, Pnt3f(), Vec3f(0, 1, 0));
        nbtest::edited(camera)->setOrthographic(isOrthographic);
    }

    static std::size_t textCount()
    {
        return notification::NotificationManager::getInstance()->getTextCount();
    }

    nbUndoService* const undo = nbUndoService::the();
    MessageLog messages;
    Stage stage;
    std::unique_ptr<Gizmo> gizmo;
    ManipulatorInteractionContext context;
    Pnt2f pointer;
    nbLog::Sink formerSink;

private:
    /// Pixels of points within a handle's shapes, then of their corners.
    std::vector<Pnt2f> placesOf(const osg::NodePtr& top)
    {
        std::vector<Pnt2f> places;
        for (const float part : { 0.5F, 0.0F }) {
            for (const osg::NodePtr& shape : partsOf(top)) {
                const auto positions = osg::GeometryPtr::dcast(shape->getCore())->getPositions();
                const osg::UInt32 count = positions->getSize();
                for (osg::UInt32 i = 0; i < count; ++i) {
                    const Pnt3f first = positions->getValue(i);
                    Pnt3f place =
                        first + (positions->getValue((i + count / 2) % count) - first) * part;
                    shape->getToWorld().multMatrixPnt(place);
                    places.push_back(stage.pixelOf(place));
                }
            }
        }
        return places;
    }
};

using AllKinds = testing::Types<Transform, Planar, Triplanar, UV, Tire, Plate, Match>;
using KindsWithHandles = testing::Types<Transform, Planar, Triplanar, UV, Tire, Plate>;

template <class Gizmo>
using Manipulators = AnyManipulator<Gizmo>;

TYPED_TEST_SUITE(Manipulators, AllKinds, );

template <class Gizmo>
using Gizmos = AnyManipulator<Gizmo>;

TYPED_TEST_SUITE(Gizmos, KindsWithHandles, );

using KindsThatPause = testing::Types<Planar, Triplanar, UV, Tire, Plate>;
using KindsToCopy = testing::Types<Planar, Triplanar, UV, Tire>;

}  // namespace nbec::manipulator::test
