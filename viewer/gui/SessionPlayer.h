// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/replay/Session.h"

#include <QDir>
#include <QEvent>
#include <QObject>
#include <QStringList>

#include <optional>

class QAction;
class QWidget;

namespace viewer {

class ViewWidget;

/// Replays a session: sends its events to the view as Qt events, the way a person's come, and
/// writes the pictures of its checkpoints. The scene and the view's size are in place when it
/// starts.
class SessionPlayer : public QObject
{
    Q_OBJECT

public:
    /// Property of an action that is true where its shortcut cannot be played, as it would ask a
    /// person or end the replay.
    static constexpr const char* kUnplayedProperty = "unplayed";

    /// How fast the steps follow each other.
    enum class Pace
    {
        AsFastAsPossible,
        AsRecorded
    };

    /// @param targetView  gets the events; outlives this
    /// @param targetWindow  has the actions whose shortcuts key steps may be; outlives this
    SessionPlayer(ViewWidget& targetView, QWidget& targetWindow, QObject* parent = nullptr);

    /// Begins to play. @param folder  where pictures go; nothing: none are written
    void start(const Session& newSession, Pace newPace, const std::optional<QDir>& folder);
    /// Ends the replay where it is; releases what it holds down.
    void stop();

    bool isPlaying() const { return playing; }

    /// Holds the replay before its next step, or lets it go on.
    void setPaused(bool on);

    bool isPaused() const { return paused; }

    /// Shows captions over the view, and in its pictures; not at the start.
    void setCaptionsShown(bool on) { captionsShown = on; }

    /// Checkpoints that were not met, one line each.
    const QStringList& getFailures() const { return failures; }

signals:
    void pictureWritten(const QString& path);
    /// The last step was played, or a step could not be.
    void finished();

private:
    void scheduleNext();
    void playNext();
    bool play(const SessionStep& step, QString& error);
    bool playPointer(const SessionStep& step, QString& error);
    void sendMouse(QEvent::Type type, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    bool playKey(const SessionStep& step, QString& error);
    void sendKey(QEvent::Type type, int key);
    QAction* findShortcut(int key, Qt::KeyboardModifiers modifiers);
    void setCaption(const QString& title, const QString& text);
    bool playCheckpoint(const SessionStep& step, QString& error);

    Qt::KeyboardModifiers modifiersOf(const SessionStep& step) const
    {
        return heldModifiers | step.modifiers;
    }

    ViewWidget& view;
    QWidget& window;
    Session session;
    Pace pace = Pace::AsFastAsPossible;
    std::optional<QDir> pictureFolder;
    std::size_t nextStep = 0;
    bool playing = false;
    bool paused = false;
    bool isStepHeld = false;  ///< a step came due while paused
    bool captionsShown = false;
    QString captionTitle;
    QString captionText;
    unsigned generation = 0;  ///< of starts and stops; a step scheduled before is dropped
    QPointF position;  ///< of the pointer, logical pixels in the view
    Qt::MouseButtons heldButtons = Qt::NoButton;
    Qt::KeyboardModifiers heldModifiers = Qt::NoModifier;
    QStringList failures;
};

}  // namespace viewer
