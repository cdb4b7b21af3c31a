// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/core/GizmoController.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <map>

class QAction;
class QActionGroup;
class QMainWindow;
class QMenu;
class QToolBar;

namespace viewer {

class MainWindow;
class Stage;
class StepsPanel;

/// Menus, toolbar and shortcuts of the window.
class WindowActions : public QObject
{
    Q_OBJECT

public:
    /// @param targetWindow  gets the menus and does what the actions ask; outlives this
    WindowActions(MainWindow& targetWindow, Stage& targetStage);

    /// Ticks what is on.
    void update();
    /// Fills the menu of recent files.
    void setRecentFiles(const QStringList& files);

signals:
    /// An action with a shortcut was triggered. @param keys  portable name
    void shortcutUsed(const QString& keys);

private:
    QAction* add(QMenu* menu, const char* name, const QString& text, const QString& keys,
                 std::function<void()> run);
    QAction* addSwitch(QMenu* menu, const char* name, const QString& text, const QString& keys,
                       std::function<void(bool)> run);
    /// An action that runs a command of the stage. @param command  literal
    QAction* addCommand(QMenu* menu, const char* command, const QString& text, const QString& keys);
    void addFileMenu();
    void addEditMenu();
    void addViewMenu();
    void addManipulatorMenu();
    void addSessionMenu();
    void addTransformSettings(QMenu* menu);
    void addToolBar();
    void updateGizmos();
    void updateEditing();

    MainWindow& window;
    Stage& stage;
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
    QAction* editPlates = nullptr;
    QAction* removePlates = nullptr;
    QAction* editPictures = nullptr;
    QMenu* stepsMenu = nullptr;
    StepsPanel* stepsPanel = nullptr;
    QAction* orthographic = nullptr;
    QAction* zUp = nullptr;
    QAction* record = nullptr;
    QAction* checkpoint = nullptr;
    QAction* stopReplay = nullptr;
    QAction* open = nullptr;
    QAction* picture = nullptr;
    QAction* frameAll = nullptr;
    QAction* frameSelection = nullptr;
};

}  // namespace viewer
