// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/replay/Session.h"

#include <QElapsedTimer>
#include <QObject>

class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace viewer {

class ViewWidget;

/// Writes down the pointer and key events that reach the view, with what was shown at the start.
///
/// A recording stays small and readable: pixels have at most two places behind the point, moves
/// that follow each other within 40 ms are one (all but the first, on which a drag builds), pauses
/// are at most two seconds, and what panels and menus do is the command itself. Opening and saving
/// with a dialog leaves no step but the scene that was opened.
class SessionRecorder : public QObject
{
    Q_OBJECT

public:
    /// @param targetView  outlives this
    explicit SessionRecorder(ViewWidget& targetView, QObject* parent = nullptr);

    /// Begins anew. @param files  absolute paths of the models shown; empty: the start scene
    void start(const QStringList& files);
    /// Ends the recording and hands it over.
    Session stop();

    bool isRecording() const { return recording; }

    /// Adds a checkpoint with a picture.
    void addCheckpoint();
    /// Adds a key that reached the window as a shortcut. @param keys  portable name
    void addShortcut(const QString& keys);
    /// Adds a command that was done. @param value  as it was given
    void addCommand(const QString& name, const QJsonValue& value);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void add(SessionStep step);
    bool isMergedMove(const SessionStep& step) const;
    void addMouse(SessionStep::Type type, const QMouseEvent& event);
    void addWheel(const QWheelEvent& event);
    void addKey(SessionStep::Type type, const QKeyEvent& event);
    SessionTarget pixelAt(const QPointF& logical) const;

    ViewWidget& view;
    Session session;
    bool recording = false;
    QElapsedTimer clock;
    int checkpoints = 0;
};

}  // namespace viewer
