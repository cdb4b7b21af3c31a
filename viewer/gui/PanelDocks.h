// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>

class QAction;
class QDockWidget;
class QMainWindow;
class QUndoView;

namespace viewer {

class Panel;
class Stage;

/// The docks at the side of the window: the list of steps and the panels.
class PanelDocks : public QObject
{
    Q_OBJECT

public:
    /// @param targetWindow  gets the docks; outlives this
    PanelDocks(QMainWindow& targetWindow, Stage& targetStage);
    PanelDocks(const PanelDocks&) = delete;
    PanelDocks& operator=(const PanelDocks&) = delete;
    /// Ends the panels and with them the tools of the stage that they own.
    ~PanelDocks() override;

    /// Shows objects, properties and steps below each other, further panels as tabs when asked for.
    void arrange();

    /// Switches of the docks for a menu.
    QList<QAction*> actions() const;

    /// Brings the panels that are seen up to date.
    void refresh();

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
    QUndoView* undoView = nullptr;
    QDockWidget* stepsDock = nullptr;
    QDockWidget* sceneDock = nullptr;
    QDockWidget* objectDock = nullptr;
    QList<QDockWidget*> docks;
    QList<Panel*> panels;
};

}  // namespace viewer
