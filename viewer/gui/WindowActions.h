// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/stage/GizmoController.h"

#include <nbOpenSGUberCamera/nbCameraNavigation.h>

#include <QJsonValue>
#include <QList>
#include <QObject>
#include <QStringList>

#include <functional>
#include <map>

class QAction;
class QActionGroup;
class QMainWindow;
class QMenu;

namespace viewer {

class MainWindow;
class Stage;

/// Menus and shortcuts of the window. An action is found by its object name, which is that of its
/// icon.
class WindowActions : public QObject
{
    Q_OBJECT

public:
    /// @param targetWindow  gets the menus and does what the actions ask; outlives this
    WindowActions(MainWindow& targetWindow, Stage& targetStage);

    /// Ticks what is on.
    void update();

    /// What can be done with the selected objects, for menus of the view and the tree.
    const QList<QAction*>& objectActions() const { return forObjects; }

    /// Does what the menu entry of a standard view does.
    void lookFrom(nbCameraNavigation::StandardView view);

    /// Fills the menu of recent files.
    void setRecentFiles(const QStringList& files);

signals:

private:
    QAction* make(QMenu* menu, const char* name, const QString& text, const QString& keys);
    /// Sets the tip, with the shortcut if there is one.
    void describe(QAction* action, const QString& tip);
    /// An action that is no step of a session.
    QAction* addPlain(QMenu* menu, const char* name, const QString& text, const QString& keys,
                      std::function<void(bool)> run);
    /// One whose shortcut cannot be played either: it opens a dialog or ends the replay.
    QAction* addUnplayed(QMenu* menu, const char* name, const QString& text, const QString& keys,
                         std::function<void()> run);
    /// An action whose shortcut is a step of a session.
    QAction* add(QMenu* menu, const char* name, const QString& text, const QString& keys,
                 std::function<void()> run);
    QAction* addSwitch(QMenu* menu, const char* name, const QString& text, const QString& keys,
                       std::function<void(bool)> run);
    /// An action that runs a command of the stage. @param command  literal
    /// @param isSwitch  it takes true or false
    QAction* addCommand(QMenu* menu, const char* command, const QString& text, const QString& keys,
                        bool isSwitch = false);
    /// Runs a command of the stage; a refusal becomes a problem of the window.
    void run(const QString& command, const QJsonValue& value = {});
    void addFileMenu();
    void exportAsked();
    void addEditMenu();
    void addObjectActions(QMenu* menu);
    void addViewMenu();
    void addManipulatorMenu();
    void addSessionMenu();
    void addTransformSettings(QMenu* menu);
    void addHelpMenu();
    void updateGizmos();
    void updateEditing();

    MainWindow& window;
    Stage& stage;
    QList<QAction*> forObjects;
    QMenu* recentMenu = nullptr;
    QActionGroup* gizmoGroup = nullptr;
    std::map<Gizmo, QAction*> gizmoActions;
    QAction* undo = nullptr;
    QAction* redo = nullptr;
    QAction* localSpace = nullptr;
    QAction* snapping = nullptr;
    QAction* centerPivots = nullptr;
    QAction* removeClipPlane = nullptr;
    QAction* matchCamera = nullptr;
    QAction* holdView = nullptr;
    QAction* editPlates = nullptr;
    QAction* editPictures = nullptr;
    QAction* grid = nullptr;
    QAction* orthographic = nullptr;
    QAction* zUp = nullptr;
    QAction* stopReplay = nullptr;
    QAction* fullScreen = nullptr;
};

}  // namespace viewer
