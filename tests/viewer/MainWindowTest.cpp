// SPDX-License-Identifier: MIT
// The window as a person uses it, on whatever display the tests have.
#include "viewer/gui/MainWindow.h"

#include "tests/viewer/support/GuiTest.h"
#include "viewer/core/StartScene.h"
#include "viewer/gui/SceneFileActions.h"
#include "viewer/gui/SessionPlayer.h"
#include "viewer/gui/SessionRecorder.h"
#include "viewer/gui/ViewWidget.h"

#include <QAction>
#include <QFile>
#include <QLabel>
#include <QMouseEvent>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace viewer {
namespace {

using Target = SessionTarget;

SessionTarget named(Target::Kind kind, const char* name, QPointF offset = {})
{
    SessionTarget target;
    target.kind = kind;
    target.name = QLatin1String(name);
    target.offsetPx = offset;
    return target;
}

SessionStep pointerStep(SessionStep::Type type, const SessionTarget& at)
{
    SessionStep step;
    step.type = type;
    step.at = at;
    return step;
}

SessionStep checkpoint(const char* hover, const char* selection)
{
    SessionStep step;
    step.type = SessionStep::Type::Checkpoint;
    step.name = QStringLiteral("check");
    step.expectation.hover = QLatin1String(hover);
    step.expectation.selection = QLatin1String(selection);
    return step;
}

/// A shown window on the start scene, nobody at it.
class MainWindowTest : public GuiTest
{
protected:
    MainWindowTest()
        : window(MainWindow::Attendance::Unattended)
    {
        QObject::connect(&window, &MainWindow::problem,
                         [this](const QString& text) { problems.append(text); });
        window.show();
        window.showStartScene();
    }

    void play(const Session& session)
    {
        bool done = false;
        const auto connection =
            QObject::connect(&window, &MainWindow::replayFinished, [&done] { done = true; });
        window.replay(session, std::nullopt);
        waitUntil([&] { return done || !problems.isEmpty(); });
        QObject::disconnect(connection);
    }

    Stage& stage() { return window.view().stage(); }

    QStringList problems;
    MainWindow window;
};

TEST_F(MainWindowTest, ReplayedEventsTakeAPersonsWay)
{
    Session session;
    session.sizePx = { 900, 601 };
    session.selection = "";
    SessionStep orthographic;
    orthographic.type = SessionStep::Type::Key;
    orthographic.key = "5";
    session.steps = {
        pointerStep(SessionStep::Type::Click, named(Target::Kind::Node, "Vase")),
        pointerStep(SessionStep::Type::Move, named(Target::Kind::Handle, "yaShape")),
        checkpoint("yaShape", "Vase"),
        orthographic,
        pointerStep(SessionStep::Type::Move, named(Target::Kind::Handle, "rzShape")),
        checkpoint("rzShape", "Vase"),
    };

    play(session);

    EXPECT_EQ(problems, QStringList());
    EXPECT_EQ(window.player().getFailures(), QStringList());
    EXPECT_EQ(window.view().sizePx(), QSize(900, 601));
    EXPECT_TRUE(stage().pose().orthographic) << "the shortcut was not found";
}

TEST_F(MainWindowTest, ACheckpointThatIsNotMetIsReported)
{
    Session session;
    session.sizePx = { 800, 600 };
    session.steps = { pointerStep(SessionStep::Type::Move, named(Target::Kind::Handle, "xaShape")),
                      checkpoint("yaShape", kStartSceneMainObject) };

    play(session);

    ASSERT_EQ(window.player().getFailures().size(), 1);
    EXPECT_TRUE(
        window.player().getFailures()[0].contains("hover is \"xaShape\" instead of \"yaShape\""));
}

TEST_F(MainWindowTest, AKeyThatWouldAskOrEndTheReplayIsAFailure)
{
    for (const char* key : { "Ctrl+O", "Ctrl+Shift+O", "Ctrl+Alt+O", "Ctrl+Shift+S", "Ctrl+E",
                             "Ctrl+P", "Ctrl+Q", "Ctrl+." }) {
        Session session;
        SessionStep step;
        step.type = SessionStep::Type::Key;
        step.key = QLatin1String(key);
        session.steps = { step };

        play(session);

        EXPECT_EQ(
            window.player().getFailures(),
            QStringList { QStringLiteral("steps[0]: the key \"%1\" cannot be played").arg(key) });
    }
    EXPECT_EQ(problems, QStringList());
    EXPECT_FALSE(window.scenes().save());
    EXPECT_EQ(problems, QStringList { "the scene has no file to be saved to" });
}

TEST_F(MainWindowTest, AWrongSessionLeavesEverythingAsItIs)
{
    Session session;
    session.selection = "Nobody";

    play(session);

    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].contains("\"Nobody\""));
    EXPECT_EQ(stage().selectedName(), kStartSceneMainObject);
    EXPECT_FALSE(window.isReplaying());
}

TEST_F(MainWindowTest, ARecordingReplaysToTheSameState)
{
    Session wanted;
    wanted.sizePx = { 800, 600 };
    wanted.selection = "";
    SessionStep orbit = pointerStep(SessionStep::Type::Press, {});
    orbit.at.offsetPx = { 100, 500 };
    orbit.button = Qt::RightButton;
    SessionStep away = pointerStep(SessionStep::Type::Move, {});
    away.at.offsetPx = { 260, 470 };
    SessionStep end = orbit;
    end.type = SessionStep::Type::Release;
    end.at = away.at;
    wanted.steps = { pointerStep(SessionStep::Type::Click, named(Target::Kind::Node, "Vase")),
                     orbit, away, end };
    SessionRecorder recorder(window.view());
    window.view().fixSize(wanted.sizePx);
    window.adjustSize();
    waitUntil([&] { return window.view().stage().view().getWidth() == 800; });
    stage().select(osg::NullFC);
    recorder.start({});
    play(wanted);
    const Session recorded = recorder.stop();
    const CameraPose pose = stage().pose();
    ASSERT_GT(recorded.steps.size(), wanted.steps.size());

    window.showStartScene();
    play(recorded);

    EXPECT_EQ(window.player().getFailures(), QStringList());
    EXPECT_EQ(stage().selectedName(), "Vase");
    EXPECT_LT(stage().pose().from.dist(pose.from), 1e-4F);
    EXPECT_GT(
        pose.from.dist(osg::Pnt3f(kStartSceneFrom[0], kStartSceneFrom[1], kStartSceneFrom[2])),
        0.5F)
        << "the drag has not turned the view";
}

TEST_F(MainWindowTest, ABrokenModelGivesAMessageAndLosesNothing)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("broken.obj");
    QFile(path).open(QIODevice::WriteOnly);
    const std::size_t before = stage().triangleCount();

    window.openFiles({ path }, MainWindow::Opening::Replace);
    waitUntil([this] { return !problems.isEmpty(); });

    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].startsWith(path + ": "));
    EXPECT_EQ(stage().triangleCount(), before);
    EXPECT_EQ(stage().selectedName(), kStartSceneMainObject);
}

TEST_F(MainWindowTest, AModelReplacesTheSceneAndIsSelectedAndInView)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("far away.obj"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("v 1000 1000 1000\nv 1100 1000 1000\nv 1000 1100 1000\nv 1000 1000 1100\nf 1 3 2\nf "
               "1 2 4\nf 1 4 3\nf 2 3 4\n");
    file.close();
    bool shown = false;
    QObject::connect(&window, &MainWindow::filesShown, [&shown] { shown = true; });

    window.openFiles({ file.fileName() }, MainWindow::Opening::Replace);
    waitUntil([&shown] { return shown; });

    EXPECT_EQ(stage().triangleCount(), 4U);
    EXPECT_EQ(stage().selectedName(), "far away");
    osg::Pnt2f px;
    ASSERT_TRUE(nbCameraNavigation::project(stage().pose(), osg::Pnt3f(1025.F, 1025.F, 1025.F),
                                            stage().view().getWidth(), stage().view().getHeight(),
                                            px));
    EXPECT_TRUE(QRect({ 0, 0 }, window.view().sizePx()).contains(int(px[0]), int(px[1])));
}

TEST_F(MainWindowTest, NothingIsDrawnWhileNothingChanges)
{
    waitForQuiet();
    int pictures = 0;
    QObject::connect(&window.view(), &QOpenGLWidget::frameSwapped, [&pictures] { ++pictures; });

    waitForQuiet();
    EXPECT_EQ(pictures, 0);

    stage().setOrthographic(true);
    waitUntil([&pictures] { return pictures > 0; });
    waitForQuiet();
    EXPECT_EQ(pictures, 1);
}

TEST_F(MainWindowTest, CommandsOfTheWindowReachTheStage)
{
    const auto trigger = [this](const char* name) {
        auto* action = window.findChild<QAction*>(QLatin1String(name));
        ASSERT_NE(action, nullptr) << name;
        action->trigger();
    };

    trigger("gizmoCamera");
    EXPECT_EQ(stage().gizmo().shown(), Gizmo::CameraPivot);
    trigger("gizmoUniversal");
    EXPECT_EQ(stage().gizmo().shown(), Gizmo::Universal);
    trigger("zUp");
    EXPECT_TRUE(stage().pose().zUp);
    trigger("selectNone");
    EXPECT_EQ(stage().selectedName(), "");
    trigger("fileStartScene");
    EXPECT_EQ(stage().selectedName(), kStartSceneMainObject);
}

}  // namespace
}  // namespace viewer
