// SPDX-License-Identifier: MIT
// A window that is killed at any moment while its scene is edited.
#include "tests/viewer/support/GuiTest.h"
#include "viewer/gui/MainWindow.h"
#include "viewer/gui/SceneFileActions.h"
#include "viewer/gui/ViewWidget.h"
#include "viewer/scenes/Recovery.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdio>
#include <random>

namespace viewer {
namespace {

const char* const kFolder = "NB_KILLED_FOLDER";
constexpr int kMsOfASecond = 1000;
constexpr int kPatienceMs = 300 * kMsOfASecond;  // a start on a busy machine takes a minute

class KilledSession : public GuiTest
{
protected:
    /// Where the vase was moved to; 0 for where it was at first, or without a file.
    static int editIn(const QString& file)
    {
        QString error;
        const std::optional<SceneDocument> scene =
            QFile::exists(file) ? readSceneFile(file, error) : std::nullopt;
        EXPECT_EQ(error, "");
        int edit = 0;
        for (const SceneModel& model : scene ? scene->models : std::vector<SceneModel>()) {
            for (const SceneNode& node : model.nodes) {
                edit = node.transform ? qRound(node.transform->translation.x()) : 0;
            }
        }
        return edit;
    }
};

/// What the other test starts and kills: edits the start scene and counts on standard output.
TEST_F(KilledSession, DISABLED_EditsForEver)
{
    if (!qEnvironmentVariableIsSet(kFolder)) {
        GTEST_SKIP() << "for the other test";
    }
    const QDir folder(qEnvironmentVariable(kFolder));
    QCoreApplication::setOrganizationName(QStringLiteral("killed"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
    QSettings().setValue(QStringLiteral("keepSeconds"), 1);
    MainWindow window(MainWindow::Attendance::Attended);
    window.resize(700, 500);
    window.show();
    window.showStartScene();
    Stage& stage = window.view().stage();
    QString error;
    ASSERT_TRUE(stage.selectByName("Vase"));
    for (int edit = 1;; ++edit) {
        ASSERT_TRUE(stage.commands().run("object.translation", QJsonArray { edit, 0, 0 }, error));
        if (edit % 5 == 0) {
            stage.undo();
            stage.redo();
        }
        if (edit % 90 == 0) {
            ASSERT_TRUE(window.scenes().saveTo(folder.filePath("saved.nbscene"), error));
        }
        QCoreApplication::processEvents();
        std::printf("edit %d\n", edit);
        std::fflush(stdout);
    }
}

TEST_F(KilledSession, LosesNoMoreThanTheTimeBetweenTwoWritingsAndLeavesNothingBroken)
{
    constexpr int kUsualKills = 4;
    constexpr int kLongestMs = 4 * kMsOfASecond;
    constexpr int kLostMs = 2 * kMsOfASecond;  // the setting, and a second for writing
    constexpr std::size_t kAlive = 4;
    const int kills = qMax(kUsualKills, qEnvironmentVariableIntValue("NB_KILLS"));
    std::mt19937 random(20);
    for (int kill = 0; kill < kills; ++kill) {
        SCOPED_TRACE(kill);
        const QTemporaryDir folder;
        qputenv(kFolder, folder.path().toUtf8());
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove("GTEST_TOTAL_SHARDS");  // it would belong to another part
        environment.remove("GTEST_SHARD_INDEX");
        program.setProcessEnvironment(environment);
        program.start(QCoreApplication::applicationFilePath(),
                      { "--gtest_also_run_disabled_tests", "--gtest_filter=*EditsForEver" });
        std::vector<std::pair<qint64, int>> edits;
        QElapsedTimer clock;
        const int endMs = static_cast<int>(random() % kLongestMs);
        while (!clock.isValid() || clock.elapsed() < endMs) {
            ASSERT_TRUE(program.waitForReadyRead(kPatienceMs)) << program.readAll().toStdString();
            while (program.canReadLine()) {
                const QByteArray line = program.readLine();
                if (line.startsWith("edit ")) {
                    clock.isValid() ? void() : clock.start();
                    edits.emplace_back(clock.elapsed(), line.mid(5).toInt());
                }
            }
        }
        program.kill();
        ASSERT_TRUE(program.waitForFinished(kPatienceMs));

        Recovery recovery(QDir(folder.filePath("killed")));
        const std::optional<Recovery::Kept> kept = recovery.find();
        const int found =
            qMax(editIn(kept ? kept->file : QString()), editIn(folder.filePath("saved.nbscene")));
        // On a busy machine the window may stand still; only what it did counts as time.
        for (std::size_t i = 0; i + kAlive < edits.size(); ++i) {
            const auto& [timeMs, edit] = edits[i];
            EXPECT_TRUE(timeMs > endMs - kLostMs || edit <= found)
                << edit << " of " << edits.size() << " at " << timeMs << " ms, killed at " << endMs
                << ", found " << found;
        }
        EXPECT_TRUE(!kept || !kept->picture.isNull());
        std::printf("%zu edits in %d ms, %d lost\n", edits.size(), endMs,
                    edits.back().second - found);
    }
}

}  // namespace
}  // namespace viewer
