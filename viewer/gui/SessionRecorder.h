// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/core/Session.h"

#include <QElapsedTimer>
#include <QObject>

class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace viewer {

class ViewWidget;

/// Writes down the pointer and key events that reach the view, with what was shown at the start.
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
