// SPDX-License-Identifier: MIT
#include "viewer/core/Session.h"
#include "viewer/gui/MainWindow.h"
#include "viewer/gui/SessionPlayer.h"

#include <QDir>

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
    window.show();

    window.replay(*session, std::nullopt);
    waitUntil([&done] { return done; });

    EXPECT_EQ(problems, QStringList());
    EXPECT_EQ(window.player().getFailures(), QStringList());
}

std::string testName(const testing::TestParamInfo<std::string>& info)
{
    QString name = QString::fromStdString(info.param);
    return name.replace(QLatin1Char('-'), QLatin1Char('_')).toStdString();
}

INSTANTIATE_TEST_SUITE_P(Viewer, ShippedSessions, testing::ValuesIn(sessionNames()), testName);

}  // namespace
}  // namespace viewer
