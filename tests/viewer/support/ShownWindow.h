// SPDX-License-Identifier: MIT
#pragma once

#include "tests/viewer/support/Files.h"
#include "tests/viewer/support/GuiTest.h"
#include "tests/viewer/support/StageTest.h"
#include "viewer/gui/MainWindow.h"
#include "viewer/gui/SessionPlayer.h"
#include "viewer/gui/ViewWidget.h"

#include <QAction>
#include <QDockWidget>
#include <QKeyEvent>
#include <QMouseEvent>

namespace viewer {

/// A step of a session at what is named.
inline SessionStep stepAt(SessionStep::Type type, SessionTarget::Kind kind, const char* name,
                          QPointF offset = {})
{
    SessionStep step;
    step.type = type;
    step.at.kind = kind;
    step.at.name = QLatin1String(name);
    step.at.offsetPx = offset;
    return step;
}

/// A shown window on the start scene, nobody at it, and what a person does in it.
class ShownWindow : public GuiTest
{
protected:
    ShownWindow()
        : window(MainWindow::Attendance::Unattended)
    {
        QObject::connect(&window, &MainWindow::problem,
                         [this](const QString& text) { problems.append(text); });
        QObject::connect(&window, &MainWindow::replayFinished, [this] { ++replays; });
        // Software draws it: every pixel counts.
        window.resize(760, 600);
        window.show();
        window.showStartScene();
    }

    Stage& stage() { return window.view().stage(); }

    /// A part of the window by its name; fails the test where there is none.
    template <class Part>
    Part* find(const char* name)
    {
        auto* found = window.findChild<Part*>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    QAction* action(const char* name) { return find<QAction>(name); }

    void showPanel(const char* name)
    {
        find<QDockWidget>(name)->show();
        waitForQuiet();
    }

    // == Commands

    bool run(const char* name, const QJsonValue& value = {})
    {
        error.clear();
        const bool isDone = stage().commands().run(QLatin1String(name), value, error);
        EXPECT_EQ(isDone, error.isEmpty()) << name << ": " << error.toStdString();
        return isDone;
    }

    QJsonValue value(const char* name)
    {
        return stage().commands().value(QLatin1String(name)).value_or(QJsonValue());
    }

    /// Steps that can be taken back.
    static int steps() { return nbUndoService::the()->getStack()->index(); }

    // == Events, at logical pixels of the view

    QPointF placeOf(SessionTarget::Kind kind, const char* name)
    {
        return window.view().toLogical(placeIn(stage(), kind, name));
    }

    void send(QEvent::Type type, const QPointF& place, Qt::MouseButton button,
              Qt::MouseButtons held)
    {
        const QPointF onScreen = place + window.view().mapToGlobal(QPoint());
        QMouseEvent event(type, place, onScreen, button, held, modifiers);
        QCoreApplication::sendEvent(&window.view(), &event);
    }

    void hover(const QPointF& place) { send(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton); }

    void press(const QPointF& place)
    {
        hover(place);
        send(QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton);
    }

    void move(const QPointF& place)
    {
        send(QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton);
    }

    void release(const QPointF& place)
    {
        send(QEvent::MouseButtonRelease, place, Qt::LeftButton, Qt::NoButton);
    }

    void click(const QPointF& place)
    {
        press(place);
        release(place);
    }

    static void pressKey(QWidget& receiver, int key)
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&receiver, &press);
    }

    /// Replays a session from its beginning to its end, or to a problem.
    void replay(const Session& session, const std::optional<QDir>& pictures = std::nullopt)
    {
        const int before = replays;
        window.replay(session, pictures);
        waitUntil([&] { return replays > before || !problems.isEmpty(); });
    }

    QImage picture()
    {
        const QImage image = window.view().takePicture(error);
        EXPECT_FALSE(image.isNull()) << error.toStdString();
        return image;
    }

    QStringList problems;
    int replays = 0;  ///< that have ended
    MainWindow window;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    QString error;
};

}  // namespace viewer
