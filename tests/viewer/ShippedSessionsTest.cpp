// SPDX-License-Identifier: MIT
#include "viewer/gui/MainWindow.h"
#include "viewer/gui/SessionPlayer.h"
#include "viewer/gui/ViewWidget.h"
#include "viewer/replay/Session.h"

#include <nbOpenSGRenderAction/nbOffscreenView.h>

#include <QDir>
#include <QTemporaryDir>

#include "support/Files.h"
#include "support/GuiTest.h"

namespace viewer {
namespace {

const QDir kSessions(QStringLiteral(NB_VIEWER_FOLDER "/sessions"));

std::vector<std::string> sessionNames()
{
    std::vector<std::string> names;
    for (const QString& file : kSessions.entryList({ QStringLiteral("*.json") }, QDir::Files)) {
        names.push_back(QFileInfo(file).completeBaseName().toStdString());
    }
    return names;
}

/// Draws what a view shows twice, once with the kept image of the scene, and counts the pictures
/// that differ; small ones of every fourth frame, so that a replay takes little longer.
class KeptImageCheck
{
public:
    explicit KeptImageCheck(ViewWidget& checkedView)
        : view(checkedView)
    {
        full.getAction().setSceneKept(false);
    }

    void compare()
    {
        constexpr std::size_t kEvery = 4;
        const std::size_t frame = view.frameStatistics().frames;
        const nbOSGWidget* const widget = nbOSGWidget::getMGLW(-1);
        if (frame < lastFrame + kEvery || widget == nullptr) {
            return;
        }
        lastFrame = frame;
        constexpr int kWidth = 150;
        constexpr int kHeight = 100;
        const QImage picture = kept.render(widget->getViewport(), kWidth, kHeight);
        differences += picture == full.render(widget->getViewport(), kWidth, kHeight) ? 0 : 1;
        ++frames;
    }

    int frames = 0;
    int differences = 0;

private:
    ViewWidget& view;
    nbOffscreenView kept;
    nbOffscreenView full;
    std::size_t lastFrame = 0;
};

/// What a session made looks the same, and is the same, after saving and opening.
void checkThatTheSceneSurvivesSaving(MainWindow& window)
{
    QString error;
    Stage& stage = window.view().stage();
    nbOffscreenView offscreen;
    const auto plainPicture = [&] {
        stage.setActiveTool(nullptr);
        stage.showGizmo(Gizmo::None);
        stage.select(osg::NullFC);
        stage.update();
        return offscreen.render(stage.view().getViewport(), 450, 300);
    };
    const QTemporaryDir folder;
    const QString first = folder.filePath("first.nbscene");
    const QString second = folder.filePath("second.nbscene");
    const QImage before = plainPicture();
    EXPECT_FALSE(before.isNull());

    stage.commands().setOutputFolder(QDir(folder.path()));
    ASSERT_TRUE(stage.commands().run("scene.save", first, error)) << error.toStdString();
    ASSERT_TRUE(stage.commands().run("scene.open", first, error)) << error.toStdString();

    EXPECT_EQ(plainPicture(), before);
    ASSERT_TRUE(stage.commands().run("scene.save", second, error)) << error.toStdString();
    EXPECT_EQ(readFile(second), readFile(first));
}

class ShippedSessions : public GuiTest, public testing::WithParamInterface<std::string>
{ };

TEST_P(ShippedSessions, MeetTheirCheckpoints)
{
    QString error;
    const std::optional<Session> session = readSessionFile(
        kSessions.filePath(QString::fromStdString(GetParam()) + QStringLiteral(".json")), error);
    ASSERT_TRUE(session) << error.toStdString();
    MainWindow window(MainWindow::Attendance::Unattended);
    QStringList problems;
    bool done = false;
    QObject::connect(&window, &MainWindow::replayFinished, [&done] { done = true; });
    QObject::connect(&window, &MainWindow::problem, [&](const QString& text) {
        problems.append(text);
        done = true;
    });
    KeptImageCheck check(window.view());
    QObject::connect(&window.view(), &ViewWidget::stateChanged, [&check] { check.compare(); });
    window.show();

    window.replay(*session, std::nullopt);
    waitUntil([&done] { return done; });

    EXPECT_EQ(problems, QStringList());
    EXPECT_EQ(window.player().getFailures(), QStringList());
    EXPECT_EQ(check.differences, 0) << "of " << check.frames << " frames";
    EXPECT_GT(check.frames, 0);
    window.view().disconnect();
    checkThatTheSceneSurvivesSaving(window);
}

std::string testName(const testing::TestParamInfo<std::string>& info)
{
    QString name = QString::fromStdString(info.param);
    return name.replace(QLatin1Char('-'), QLatin1Char('_')).toStdString();
}

INSTANTIATE_TEST_SUITE_P(Viewer, ShippedSessions, testing::ValuesIn(sessionNames()), testName);

}  // namespace
}  // namespace viewer
