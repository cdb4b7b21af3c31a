// SPDX-License-Identifier: MIT
#include "manipulator/PerspectiveMatchManipulator.h"

#include "tests/manipulator/support/MatchScene.h"
#include "tests/platform/nbKernelServices/PhotographStudio.h"
#include "tests/platform/support/Edited.h"

#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbKernelServiceFactory.h>
#include <nbKernelServices/nbObjectService.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbMagnifier/nbMagnifierRenderer.h>

#include <QUndoStack>
#include <QtCore/QSignalBlocker>

#include <gtest/gtest.h>

namespace nbec::manipulator::test {

namespace {

constexpr double kTolerance = 1e-6;

void expectLine(const QLineF& actual, const QLineF& expected, const char* what = "")
{
    EXPECT_NEAR(actual.x1(), expected.x1(), kTolerance) << what;
    EXPECT_NEAR(actual.y1(), expected.y1(), kTolerance) << what;
    EXPECT_NEAR(actual.x2(), expected.x2(), kTolerance) << what;
    EXPECT_NEAR(actual.y2(), expected.y2(), kTolerance) << what;
}

nbObjectService* objectService()
{
    return nbKernelServiceFactory::the().find<nbObjectService>();
}

int stepCount()
{
    return nbUndoService::the()->getStack()->count();
}

class PerspectiveMatchManipulatorTest : public testing::Test
{
protected:
    void SetUp() override { scene.installFor(gizmo); }

    nbdPerspectiveMatch match() const { return scene.match(); }

    /// Changes X line 1 without a word to the manipulator.
    QLineF changeSilently()
    {
        const QSignalBlocker blocker(objectService());
        const QLineF changed = match().getXLine1().translated(0.02, 0.03);
        match().setXLine1(changed);
        return changed;
    }

    /// Leads an end of a line to a place, in two steps.
    void dragEnd(int line, osg::UInt32 part, const QPointF& place)
    {
        const QLineF now = match().getLine(nbdPerspectiveMatch::Line(line));
        const osg::Pnt2f from = scene.pixelOf(part == 2 ? now.p1() : now.p2());
        const osg::Vec2f way = scene.pixelOf(place) - from;
        osg::Pnt2f at = from;
        // Another ring may lie over it.
        for (int i = 0; i < 16; ++i) {
            scene.send("hover", at);
            if (static_cast<int>(gizmo.getHoveredLine()) == line + 1 &&
                gizmo.getHoveredPart() == part) {
                break;
            }
            at = from + osg::Vec2f(8 * std::cos(0.4F * i), 8 * std::sin(0.4F * i));
        }
        ASSERT_TRUE(scene.send("start", at));
        for (const float done : { 0.0F, 0.5F, 1.0F }) {
            scene.send("process", at + way * done);
        }
        scene.send("stop", at + way);
    }

    PerspectiveMatchManipulator gizmo;  // outlives the scene, which deactivates it
    MatchScene scene;
};

}  // namespace

// == Dragging

TEST_F(PerspectiveMatchManipulatorTest, EveryLineIsReadAndWrittenUnderItsOwnNumber)
{
    using Match = nbdPerspectiveMatch;
    for (int i = 0; i < Match::kLineCount; ++i) {
        scene.layLines();
        std::array<QLineF, Match::kLineCount> expected;
        for (int j = 0; j < Match::kLineCount; ++j) {
            expected[j] = match().getLine(Match::Line(j));
            expectLine(drawnLine(gizmo, j + 1), expected[j]);
        }

        scene.drag(expected[i].center(), osg::Vec2f(7, 5));

        expected[i].translate(0.007, 0.005);
        for (int j = 0; j < Match::kLineCount; ++j) {
            expectLine(match().getLine(Match::Line(j)), expected[j]);
        }
    }
}

TEST_F(PerspectiveMatchManipulatorTest, EveryStepButTheFirstIsAnUndoStepWithATitle)
{
    const QLineF before = match().getYLine2();
    const osg::Pnt2f from = scene.pixelOf(before.p2());
    ASSERT_TRUE(scene.grab(before.p2()));
    nbUndoService::the()->endGroup();  // as in a host without groups
    scene.send("process", from);
    for (int i = 1; i <= 3; ++i) {
        scene.send("process", from + osg::Vec2f(0, 4.0F * static_cast<float>(i)));
        EXPECT_EQ(stepCount(), i);
    }
    scene.send("process", from);
    EXPECT_EQ(stepCount(), 4) << "back at its start: one more step";
    expectLine(match().getYLine2(), before);
    scene.send("process", from);
    EXPECT_EQ(stepCount(), 5) << "even if no value changes";
    nbUndoService::the()->undo();
    scene.send("stop", from);
    EXPECT_EQ(stepCount(), 5) << "the one that was undone can be redone";

    EXPECT_EQ(nbUndoService::the()->getStack()->undoText(),
              "Change Perspective Match lines of camera " + scene.cameraNode().getName());
    nbUndoService::the()->undo();
    expectLine(match().getYLine2(), QLineF(before.p1(), before.p2() - QPointF(0, 0.012)));
    expectLine(drawnLine(gizmo, 4), match().getYLine2(), "an undo is drawn");
    ASSERT_TRUE(scene.grab(match().getYLine2().p2()));
    scene.send("process", from);
    scene.send("process", from + osg::Vec2f(0, 90));
    gizmo.cancelDrag();
    EXPECT_FALSE(isHighlighted(gizmo, 4, 3)) << "it has gone back from under the pointer";
}

TEST_F(PerspectiveMatchManipulatorTest, ARuleOfLinesThatFailsOrEndsTheDragDoesNoHarm)
{
    const QLineF before = match().getXLine1();
    for (int fault = 0; fault < 3; ++fault) {
        gizmo.setLineRule([&](const osg::Line2D& line, osg::UInt32) {
            fault == 0 ? throw fault : fault == 1 && gizmo.stopManipulator(nullptr, "");
            return fault == 2 ? osg::Line2D(osg::Pnt2f(NAN, 0), line.getSecond()) : line;
        });
        scene.layLines();
        scene.drag(before.p1(), osg::Vec2f(7, 5));
        const QPointF way = fault == 1 ? QPointF() : QPointF(0.007, 0.005);
        expectLine(match().getXLine1(), QLineF(before.p1() + way, before.p2()));
    }
}

TEST_F(PerspectiveMatchManipulatorTest, ThePointerIsCountedFromTheLowestRowInLogicalPixels)
{
    // In a view of odd height the line lies exactly in its lowest row.
    scene.widget.resize(801, 601);
    match().setZLine2(QLineF(100.5 / 601, 0.5 / 601, 300.5 / 601, 0.5 / 601));
    EXPECT_TRUE(scene.send("hover", osg::Pnt2f(100, 600)));
    EXPECT_TRUE(isHighlighted(gizmo, 6, 2));
    EXPECT_TRUE(scene.send("hover", osg::Pnt2f(100, 590))) << "9.5 px above the end";
    EXPECT_FALSE(scene.send("hover", osg::Pnt2f(100, 589))) << "11 px above the end";
    scene.picker.setPixelRatio(2.0F);
    EXPECT_TRUE(scene.send("hover", osg::Pnt2f(100, 589))) << "5.5 logical ones";
    scene.picker.setPixelRatio(1.0F);
    EXPECT_FALSE(scene.send("hover", osg::Pnt2f(100, 0))) << "the top row is the other edge";

    ASSERT_TRUE(scene.send("hover", osg::Pnt2f(100, 600)));
    ASSERT_TRUE(scene.send("start", osg::Pnt2f(100, 600)));
    scene.send("process", osg::Pnt2f(100, 600));
    scene.send("process", osg::Pnt2f(100, 0));
    EXPECT_NEAR(match().getZLine2().y1(), 600.5 / 601, kTolerance) << "up in the picture is more";
    EXPECT_EQ(nbMagnifierRenderer::getCursorX(), 100);
    EXPECT_EQ(nbMagnifierRenderer::getCursorY(), 0);
    scene.send("stop", osg::Pnt2f(100, 0));
}

TEST_F(PerspectiveMatchManipulatorTest, AViewResizedDuringADragMeasuresInItsNewSize)
{
    const QLineF before = match().getXLine2();
    const osg::Pnt2f from = scene.pixelOf(before.center());
    ASSERT_TRUE(scene.grab(before.center()));
    scene.send("process", from);
    scene.widget.resize(1600, 500);
    expectLine(drawnLine(gizmo, 2), before, "the unit is the view's size");

    // The pointer is counted from the new lowest row, 500 px nearer to the top.
    scene.send("process", osg::Pnt2f(from.x() + 5, from.y() - 500));
    expectLine(match().getXLine2(), before.translated(0.01, 0));
    scene.send("stop", from);
}

TEST_F(PerspectiveMatchManipulatorTest, SessionsOfDragsEndWithTheCameraOfTheLines)
{
    const osg::UberCameraPtr camera = scene.widget.getUberCamera();
    for (const matchtest::TypeRow& row : matchtest::kTypeRows) {
        nbtest::edited(camera)->setHorizontalSizing(!row.verticalSizing);
        match().setVanishingLinesType(row.type);
        const auto play = [&](const PerspectiveProblem& problem, const PerspectiveAim& aim, auto&) {
            scene.widget.resize(qRound(1000 * problem.width), qRound(1000 * problem.height));
            camera->setPose(
                nbPerspectiveSolver::turned(CameraPose(), problem.start, problem.height));
            scene.cameraNode().layLinesAsSeen();
            for (int line = 0; line < nbdPerspectiveMatch::kLineCount; ++line) {
                dragEnd(line, 2, problem.lines[line].p1());
                dragEnd(line, 3, problem.lines[line].p2());
            }
            EXPECT_TRUE(nbCameraTypes::isSolved(scene.cameraNode().checkPerspectiveMatch()));
            const auto found = nbPerspectiveSolver::aimOf(camera->getPose(), problem.height);
            // Ends lie in whole pixels, which some cameras hardly bear.
            EXPECT_LT(matchtest::angleDeg(found, aim), 45) << row.name;
        };
        matchtest::forRandomCameras(row, 200, play);
    }
}

TEST_F(PerspectiveMatchManipulatorTest, TheFirstActivationLaysLinesAsSeenAndNoLaterOne)
{
    const osg::RefPtr<osg::UberCameraPtr> fresh(osg::UberCamera::create());
    const nbdCameraNode node(fresh->getInternalParentNode().getFieldContainerId());
    const auto look = [&](const osg::Pnt3f& from) {
        fresh->setFromAtUp(from, osg::Pnt3f(), osg::Vec3f(0, 1, 0));
    };
    look(osg::Pnt3f(9, 9, 9));
    EXPECT_FALSE(node.getPerspectiveMatch().getXLine1().isNull()) << "asking lays nothing";
    look(osg::Pnt3f(4, 3, 6));
    gizmo.setCamera(fresh.get());
    const QLineF laid = node.getPerspectiveMatch().getXLine1();
    expectLine(drawnLine(gizmo, 1), laid);
    EXPECT_EQ(stepCount(), 0);
    node.updateFromPerspectiveMatch();
    EXPECT_LT(fresh->getFrom().dist(osg::Pnt3f(4, 3, 6)), 1e-3F) << "the camera stays";

    look(osg::Pnt3f(-4, 3, 6));
    gizmo.setCamera(osg::NullFC);
    gizmo.setCamera(fresh.get());
    expectLine(node.getPerspectiveMatch().getXLine1(), laid);
}

// == Hovering, grabbing and the magnifier

TEST_F(PerspectiveMatchManipulatorTest, HoverHighlightsALineWithItsEndsOrAnEndAndStartNeedsIt)
{
    const QLineF x1 = match().getXLine1();
    EXPECT_FALSE(scene.send("start", scene.pixelOf(x1.center()))) << "not hovered yet";
    EXPECT_TRUE(scene.send("hover", scene.pixelOf(x1.center())));
    for (int part = 1; part <= 3; ++part) {
        EXPECT_TRUE(isHighlighted(gizmo, 1, part));
        EXPECT_FALSE(isHighlighted(gizmo, 2, part));
    }
    EXPECT_TRUE(scene.send("hover", scene.pixelOf(x1.p2())));
    EXPECT_FALSE(isHighlighted(gizmo, 1, 1) || isHighlighted(gizmo, 1, 2));
    EXPECT_TRUE(isHighlighted(gizmo, 1, 3));
    EXPECT_TRUE(gizmo.resetManipulator(&scene.context, "select"));
    EXPECT_FALSE(scene.send("start", scene.pixelOf(x1.p2()))) << "reset ends hovering";

    const auto guides = [this] {
        std::array<bool, kGuideCount> shown {};
        for (osg::UInt32 i = 0; i < kGuideCount; ++i) {
            shown[i] = isShown(gizmo.getVisualisation()->getChild(i));
        }
        return shown;
    };
    EXPECT_EQ(guides(), (std::array<bool, kGuideCount> {}));
    ASSERT_TRUE(scene.grab(x1.p1()));
    EXPECT_EQ(guides(), (std::array<bool, kGuideCount> { true, true, true, true }));
    EXPECT_FALSE(scene.send("hover", scene.pixelOf(match().getZLine1().center())));
    EXPECT_FALSE(isHighlighted(gizmo, 5, 1));
    EXPECT_TRUE(isHighlighted(gizmo, 1, 2)) << "what is held stays highlighted";
    scene.send("stop", scene.pixelOf(x1.p1()));
    EXPECT_EQ(guides(), (std::array<bool, kGuideCount> {}));
}

TEST_F(PerspectiveMatchManipulatorTest, TheMagnifierShowsExactlyWhileAnEndIsHeld)
{
    match().setMagnifyFactor(6.0F);
    match().setXLine2(QLineF(0.2005, 0.2505, 0.7005, 0.3205));
    const QLineF x2 = match().getXLine2();
    const osg::Pnt2f from = scene.pixelOf(x2.p2());

    scene.send("hover", from);
    EXPECT_FALSE(nbMagnifierRenderer::isVisible());
    scene.send("start", from);
    EXPECT_TRUE(nbMagnifierRenderer::isVisible());
    EXPECT_FLOAT_EQ(nbMagnifierRenderer::getMagnificationScale(), 6.0F);
    EXPECT_EQ(nbMagnifierRenderer::getCursorX(), static_cast<int>(from.x()));
    EXPECT_EQ(nbMagnifierRenderer::getCursorY(), static_cast<int>(from.y()));
    // Grabbed a few pixels beside the end: the magnifier is at the end all the same.
    scene.send("process", from + osg::Vec2f(5, 3));
    scene.send("process", from + osg::Vec2f(45, 23));
    EXPECT_EQ(nbMagnifierRenderer::getCursorX(), static_cast<int>(from.x()) + 40);
    EXPECT_EQ(nbMagnifierRenderer::getCursorY(), static_cast<int>(from.y()) + 20);
    scene.send("stop", from);
    EXPECT_FALSE(nbMagnifierRenderer::isVisible());

    ASSERT_TRUE(scene.grab(match().getZLine1().center()));
    scene.send("process", from);
    scene.send("process", from);
    EXPECT_FALSE(nbMagnifierRenderer::isVisible()) << "a line is held";
    scene.send("stop", from);

    for (const bool isDeleted : { true, false }) {
        auto other = std::make_unique<PerspectiveMatchManipulator>();
        scene.manager.removeContext(&scene.context);
        scene.installFor(*other);
        const QPointF end = match().getZLine1().p1();
        ASSERT_TRUE(isDeleted ? scene.send("hover", scene.pixelOf(end)) : scene.grab(end));
        scene.send("process", from);
        scene.send("process", from);
        EXPECT_TRUE(nbMagnifierRenderer::isVisible());
        // Past the manager, which would stop the drag.
        if (isDeleted) {
            other.reset();
        } else {
            other->deactivate(nullptr);
            EXPECT_EQ(other->getHoveredPart(), 0U);
        }
        EXPECT_FALSE(nbMagnifierRenderer::isVisible()) << isDeleted;
        scene.context.setManipulator(nullptr);
    }
}

// == What is drawn

TEST_F(PerspectiveMatchManipulatorTest, ForgetsTheCameraWhenDeactivatedAndOnlyAForcedUpdateReads)
{
    const QLineF before = drawnLine(gizmo, 1);
    const QLineF changed = changeSilently();
    gizmo.update(false);
    expectLine(drawnLine(gizmo, 1), before);
    gizmo.update(true);
    expectLine(drawnLine(gizmo, 1), changed);

    scene.manager.removeContext(&scene.context);
    gizmo.update(true);
    EXPECT_FALSE(isShown(gizmo.getVisualisation()));
    scene.install(gizmo);
    EXPECT_TRUE(drawnLine(gizmo, 1).isNull()) << "no camera";
    EXPECT_FALSE(scene.grab(match().getXLine1().center()));
    gizmo.setCamera(scene.widget.getUberCamera());
    expectLine(drawnLine(gizmo, 1), match().getXLine1());
    gizmo.setCamera(osg::NullFC);
    EXPECT_TRUE(drawnLine(gizmo, 1).isNull());
}

TEST_F(PerspectiveMatchManipulatorTest, WhichPropertiesAreDrawnAnew)
{
    const osg::RefPtr<osg::UberCameraPtr> other(osg::UberCamera::create());
    const nbdCameraNode otherNode(other->getInternalParentNode().getFieldContainerId());

    const std::tuple<const char*, nbdObject, const char*, bool> rows[] = {
        { "fov mode of the camera", scene.cameraNode(), "fovMode", true },
        { "another property of it", scene.cameraNode(), "fov", false },
        { "compared exactly", scene.cameraNode(), "FovMode", false },
        { "fov mode of another camera", otherNode, "fovMode", false },
        { "another camera's match", otherNode.getPerspectiveMatch(), "magnifyFactor", true },
        { "the camera's match, whatever the property", match(), "", true },
        { "an object that is null", nbdObject(), "fovMode", false },
        { "a node that is no camera", nbdNode(nbScenegraph::getRootNode().getFieldContainerId()),
          "fovMode", false },
    };
    for (const auto& [name, object, property, redraws] : rows) {
        const QLineF before = drawnLine(gizmo, 1);
        const QLineF changed = changeSilently();
        nbObjectService::notify(object, property);
        expectLine(drawnLine(gizmo, 1), redraws ? changed : before, name);
        gizmo.update(true);
    }
}

TEST_F(PerspectiveMatchManipulatorTest, AllInstancesFollowTheView)
{
    PerspectiveMatchManipulator other;
    {
        PerspectiveMatchManipulator gone;
        for (PerspectiveMatchManipulator* each : { &other, &gone }) {
            each->activate(nullptr);
            each->setCamera(scene.widget.getUberCamera());
        }
    }
    const QLineF changed = changeSilently();
    scene.widget.resize(1200, 800);
    expectLine(drawnLine(gizmo, 1), changed);
    expectLine(drawnLine(other, 1), changed);
    other.deactivate(nullptr);
    other.deactivate(nullptr);
    const QLineF later = changeSilently();
    scene.widget.resize(1600, 1000);
    expectLine(drawnLine(gizmo, 1), later, "the others' leaving takes nothing from it");
}

// == Construction

TEST(PerspectiveMatchManipulator, MissingServicesAreReportedOnceAndDoNoHarm)
{
    nbObjectService* const service = objectService();
    nbKernelServiceFactory::the().registerService<nbObjectService>(nullptr);
    testing::internal::CaptureStderr();
    const PerspectiveMatchManipulator withNull;
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "nbKernelServiceFactory: service 'nbObjectService' is NULL!\n");

    nbKernelServiceFactory::the().unregister<nbObjectService>();
    testing::internal::CaptureStderr();
    PerspectiveMatchManipulator without;
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "nbKernelServiceFactory: couldn't find class 'nbObjectService'!\n");
    {
        MatchScene scene;
        scene.installFor(without);
        const QLineF before = scene.match().getXLine1();
        scene.drag(before.center(), osg::Vec2f(10, 0));
        expectLine(scene.match().getXLine1(), before.translated(0.01, 0));
    }
    nbKernelServiceFactory::the().registerService(service);
}

}  // namespace nbec::manipulator::test
