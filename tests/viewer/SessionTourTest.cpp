// SPDX-License-Identifier: MIT
#include "viewer/gui/SessionTour.h"

#include "tests/viewer/support/ShownWindow.h"

#include <QImage>
#include <QTemporaryDir>

namespace viewer {
namespace {

const QDir kSessions(QStringLiteral(NB_VIEWER_FOLDER "/sessions"));

class SessionTourTest : public ShownWindow
{
protected:
    QString write(const char* name, const char* steps)
    {
        return writeFile(folder.filePath(QLatin1String(name)),
                         QByteArray(R"({"session": 1, "size": [400, 300], "steps": [)") + steps +
                             "]}");
    }

    QStringList take(const QStringList& sessions, const std::optional<QDir>& pictures)
    {
        SessionTour tour(window, sessions, pictures);
        bool done = false;
        QObject::connect(&tour, &SessionTour::finished, [&done] { done = true; });
        tour.start();
        waitUntil([&done] { return done; });
        return tour.getFailures();
    }

    QTemporaryDir folder;
};

TEST_F(SessionTourTest, EverySessionThatIsShippedIsInTheListOnce)
{
    QStringList listed = SessionTour::readList(kSessions, error);
    QStringList there;
    for (const QString& name : kSessions.entryList({ "*.json" }, QDir::Files)) {
        there.append(kSessions.absoluteFilePath(name));
    }

    listed.sort();
    there.sort();

    EXPECT_EQ(listed, there) << error.toStdString();
    EXPECT_EQ(SessionTour::shippedSessions().canonicalPath(), kSessions.canonicalPath());
    EXPECT_TRUE(SessionTour::readList(QDir(folder.path()), error).isEmpty());
    EXPECT_TRUE(error.contains("tour.txt: "));
}

TEST_F(SessionTourTest, PicturesCarryTheCaptionOfTheirTime)
{
    const QDir out(folder.path());
    const QString plain =
        write("plain.json", R"({"type": "checkpoint", "name": "a", "screenshot": true})");
    const QString captioned = write("told.json", R"(
        {"type": "caption", "title": "Title", "text": "What is being shown"},
        {"type": "checkpoint", "name": "a", "screenshot": true},
        {"type": "caption", "title": ""}, {"type": "checkpoint", "name": "b", "screenshot": true})");

    const QStringList failures = take({ plain, captioned }, out);

    EXPECT_EQ(failures, QStringList());
    const QImage without(out.filePath("01-plain/a.png"));
    const QImage with = QImage(out.filePath("02-told/a.png")).convertToFormat(without.format());
    const QImage after(out.filePath("02-told/b.png"));
    ASSERT_EQ(without.size(), QSize(400, 300));
    EXPECT_EQ(after, without);
    EXPECT_EQ(with.copy(0, 0, 400, 200), without.copy(0, 0, 400, 200));
    EXPECT_NE(with.copy(0, 200, 400, 100), without.copy(0, 200, 400, 100));
}

TEST_F(SessionTourTest, GoesOnAfterASessionThatFails)
{
    const QString sound = write("sound.json", R"({"type": "leave"})");
    const QString unmet = write(
        "unmet.json", R"({"type": "checkpoint", "name": "a", "expect": {"selection": "Nobody"}})");
    const QString broken = write("broken.json", R"({"type": "jump"})");
    const QString lost =
        writeFile(folder.filePath("lost.json"),
                  R"({"session": 1, "size": [400, 300], "files": ["gone.obj"], "steps": []})");

    const QStringList failures = take({ unmet, broken, lost, sound }, std::nullopt);

    ASSERT_EQ(failures.size(), 3) << failures.join('\n').toStdString();
    EXPECT_TRUE(failures[0].startsWith(unmet + ": checkpoint \"a\""));
    EXPECT_TRUE(failures[1].startsWith(broken + ": steps[0].type"));
    EXPECT_TRUE(failures[2].contains("gone.obj"));
}

TEST_F(SessionTourTest, CanBePausedSkippedAndEnded)
{
    // Alone, a session is over before anything can be done; so the steps wait for the pause.
    const QString first =
        write("first.json", R"({"type": "key", "key": "W"}, {"type": "key", "key": "E"})");
    SessionTour tour(window, { first, first, first }, std::nullopt);
    int finished = 0;
    QObject::connect(&tour, &SessionTour::finished, [&finished] { ++finished; });
    tour.start();
    waitUntil([this] { return window.isReplaying(); });
    tour.pause(true);
    waitForQuiet();
    EXPECT_TRUE(window.player().isPaused());
    EXPECT_EQ(replays, 0);

    tour.skip();
    waitUntil([&] { return replays == 1 && window.isReplaying(); });
    EXPECT_FALSE(window.player().isPaused());
    tour.pause(true);
    waitForQuiet();
    tour.pause(false);
    waitUntil([&] { return replays == 2 && window.isReplaying(); });
    tour.end();

    EXPECT_EQ(finished, 1);
    EXPECT_FALSE(window.isReplaying());
    EXPECT_EQ(tour.getFailures(), QStringList());
}

}  // namespace
}  // namespace viewer
