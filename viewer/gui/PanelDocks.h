// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>

class QAction;
class QDockWidget;
class QMainWindow;
class QUndoView;
class QWidget;

namespace viewer {

class LogPanel;
class Panel;
class ScenePanel;
class Stage;
struct StageTools;

/// The docks of the window: panels and the list of steps at its side, messages below the view.
class PanelDocks : public QObject
{
    Q_OBJECT

public:
    /// @param targetWindow  gets the docks; outlives this
    /// @param stageTools    outlive this
    PanelDocks(QMainWindow& targetWindow, Stage& targetStage, StageTools& stageTools);
    PanelDocks(const PanelDocks&) = delete;
    PanelDocks& operator=(const PanelDocks&) = delete;
    ~PanelDocks() override;

    /// Shows objects, properties and steps below each other, further panels as tabs when asked for.
    void arrange();

    /// Switches of the docks for a menu.
    QList<QAction*> actions() const;

    /// Brings the panels that are seen up to date.
    void refresh();

    /// Shows the panel that belongs to a tool of the stage, in front of others.
    /// @param tool  name of the tool; one without panel does nothing
    void showPanelOf(const QString& tool);

    /// Gives the keys to the next panel that is seen, after the last one to the view.
    void focusNext(QWidget* view);

    /// Lets a person type another name for the selected object, in the tree.
    void renameSelected();

    ScenePanel& objects() { return *scenePanel; }

    LogPanel& log() { return *logPanel; }

signals:
    /// What a panel could not do, one line.
    void problem(const QString& text);

private:
    void addSteps();
    void addPanels();
    QDockWidget* addDock(QWidget* content, const QString& title, const QString& name);
    QDockWidget* addPanel(Panel* panel, const QString& title, const QString& name);

    QMainWindow& window;
    Stage& stage;
    StageTools& tools;
    QUndoView* undoView = nullptr;
    QDockWidget* stepsDock = nullptr;
    QDockWidget* sceneDock = nullptr;
    QDockWidget* objectDock = nullptr;
    QDockWidget* logDock = nullptr;
    LogPanel* logPanel = nullptr;
    ScenePanel* scenePanel = nullptr;
    QMap<QString, QDockWidget*> toolDocks;  ///< by the names of the tools
    QList<QDockWidget*> docks;
    QList<Panel*> panels;
};

}  // namespace viewer
