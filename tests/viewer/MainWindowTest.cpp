// SPDX-License-Identifier: MIT
// The window as a person uses it, on whatever display the tests have.
#include "tests/viewer/support/ShownWindow.h"
#include "viewer/gui/SceneFileActions.h"
#include "viewer/loading/StartScene.h"

#include <QFile>
#include <QTemporaryDir>

namespace viewer {
namespace {

using Kind = SessionTarget::Kind;
using Type = SessionStep::Type;

SessionStep checkpoint(const char* hover, const char* selection)
{
    SessionStep step;
    step.type = SessionStep::Type::Checkpoint;
    step.name = QStringLiteral("check");
    step.expectation.hover = QLatin1String(hover);
    step.expectation.selection = QLatin1String(selection);
    return step;
}

class MainWindowTest : public ShownWindow
{ };

TEST_F(MainWindowTest, ReplayedEventsTakeAPersonsWay)
{
    Session session;
    session.sizePx = { 900, 601 };
    session.selection = "";
    SessionStep orthographic;
    orthographic.type = SessionStep::Type::Key;
    orthographic.key = "5";
    session.steps = {
        stepAt(Type::Click, Kind::Node, "Vase"),
        stepAt(Type::Move, Kind::Handle, "yaShape"),
        checkpoint("yaShape", "Vase"),
        orthographic,
        stepAt(Type::Move, Kind::Handle, "rzShape"),
        checkpoint("rzShape", "Vase"),
    };

    replay(session);

    EXPECT_EQ(problems, QStringList());
    EXPECT_EQ(window.player().getFailures(), QStringList());
    EXPECT_EQ(window.view().sizePx(), QSize(900, 601));
    EXPECT_TRUE(stage().pose().orthographic) << "the shortcut was not found";
}

TEST_F(MainWindowTest, AKeyThatWouldAskOrEndTheReplayIsAFailure)
{
    for (const char* key :
         { "Ctrl+O", "Ctrl+Shift+O", "Ctrl+Shift+S", "Ctrl+E", "Ctrl+P", "Ctrl+Q", "Ctrl+." }) {
        Session session;
        session.sizePx = { 320, 240 };
        session.steps = { SessionStep() };
        session.steps[0].type = Type::Key;
        session.steps[0].key = QLatin1String(key);

        replay(session);

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

    replay(session);

    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].contains("\"Nobody\""));
    EXPECT_EQ(stage().selectedName(), kStartSceneMainObject);
    EXPECT_FALSE(window.isReplaying());
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
    ASSERT_TRUE(nbCameraNavigation::project(stage().pose(), osg::Pnt3f(1025.0F, 1025.0F, 1025.0F),
                                            stage().view().getWidth(), stage().view().getHeight(),
                                            px));
    EXPECT_TRUE(QRect({ 0, 0 }, window.view().sizePx()).contains(int(px[0]), int(px[1])));
}

}  // namespace
}  // namespace viewer
