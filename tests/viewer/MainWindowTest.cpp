// SPDX-License-Identifier: MIT
// The window as a person uses it, on whatever display the tests have.
#include "tests/viewer/support/ShownWindow.h"
#include "viewer/gui/SceneFileActions.h"
#include "viewer/loading/StartScene.h"

#include <QTemporaryDir>

namespace viewer {
namespace {

using Type = SessionStep::Type;

using MainWindowTest = ShownWindow;

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

TEST_F(MainWindowTest, AModelReplacesTheSceneAndIsSelectedAndInView)
{
    const QTemporaryDir folder;
    const QString file = writeFile(
        folder.filePath("far away.obj"),
        "v 1000 1000 1000\nv 1100 1000 1000\nv 1000 1100 1000\nv 1000 1000 1100\nf 1 3 2\nf "
        "1 2 4\nf 1 4 3\nf 2 3 4\n");
    bool shown = false;
    QObject::connect(&window, &MainWindow::filesShown, [&shown] { shown = true; });

    window.openFiles({ file }, MainWindow::Opening::Replace);
    waitUntil([&shown] { return shown; });

    EXPECT_EQ(stage().triangleCount(), 4U);
    EXPECT_EQ(stage().selectedName(), "far away");
    osg::Pnt2f px;
    ASSERT_TRUE(stage().project(osg::Pnt3f(1025.0F, 1025.0F, 1025.0F), px));
    EXPECT_TRUE(QRect({ 0, 0 }, window.view().sizePx()).contains(int(px[0]), int(px[1])));
}

}  // namespace
}  // namespace viewer
