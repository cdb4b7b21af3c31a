// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QObject>
#include <QStringList>

#include <optional>

namespace viewer {

class MainWindow;

/// Replays sessions one after the other with their captions.
///
/// With a person there they run at the pace of a hand, and keys steer: Space pauses and goes on,
/// Right goes on to the next session, Esc ends the tour. Otherwise each writes the pictures of its
/// checkpoints, with captions, into a folder of its own, such as "02-transform".
class SessionTour : public QObject
{
    Q_OBJECT

public:
    /// Names of the sessions in a folder, absolute, in the order of the list "tour.txt" there: one
    /// name in a line; lines that begin with # say nothing.
    /// @return empty with one line in `error`
    static QStringList readList(const QDir& folder, QString& error);

    /// Folder of the sessions that come with the program, beside it or in its sources; the current
    /// one if it is in neither place.
    static QDir shippedSessions();

    /// @param targetWindow  outlives this
    /// @param sessions      absolute files
    /// @param pictures      folder for pictures, which is there; nothing: none are written
    SessionTour(MainWindow& targetWindow, const QStringList& sessions,
                const std::optional<QDir>& pictures);

    void start();
    void pause(bool on);
    /// Goes on to the next session.
    void skip();
    /// Ends the tour where it is.
    void end();

    /// What went wrong so far, one line each, with the file.
    const QStringList& getFailures() const { return failures; }

signals:
    void finished();

protected:
    /// Takes the keys that steer from the window, not those that a session plays.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void playNext();
    void note(const QString& failure);
    void conclude(const QStringList& sessionFailures);

    MainWindow& window;
    QStringList files;
    std::optional<QDir> pictureFolder;
    int next = 0;
    bool running = false;
    bool isSessionOpen = false;  ///< the session before `next` has not ended
    QStringList failures;
};

}  // namespace viewer
