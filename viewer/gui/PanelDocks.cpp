// SPDX-License-Identifier: MIT
#include "viewer/gui/PanelDocks.h"

#include "viewer/core/Stage.h"
#include "viewer/gui/MaterialPanel.h"
#include "viewer/gui/ObjectPanel.h"
#include "viewer/gui/PerspectiveMatchPanel.h"
#include "viewer/gui/PlatesPanel.h"
#include "viewer/gui/ScenePanel.h"

#include <nbKernelServices/nbUndoService.h>

#include <QAction>
#include <QDockWidget>
#include <QMainWindow>
#include <QUndoStack>
#include <QUndoView>

namespace viewer {
namespace {

/// How the side of the window is shared out at first.
constexpr int kShareOfObjects = 3;
constexpr int kShareOfProperties = 4;
constexpr int kShareOfSteps = 2;

}  // namespace

PanelDocks::PanelDocks(QMainWindow& targetWindow, Stage& targetStage)
    : QObject(&targetWindow)
    , window(targetWindow)
    , stage(targetStage)
{
    addSteps();
    addPanels();
}

PanelDocks::~PanelDocks()
{
    qDeleteAll(docks);
}

void PanelDocks::addSteps()
{
    QUndoStack* stack = nbUndoService::the()->getStack();
    undoView = new QUndoView(stack);
    undoView->setObjectName(QStringLiteral("undoList"));
    undoView->setEmptyLabel(tr("As opened"));
    // Keys are for the view, whatever was clicked last.
    undoView->setFocusPolicy(Qt::NoFocus);
    stepsDock = addDock(undoView, tr("Steps"), QStringLiteral("undoDock"));
    connect(stack, &QUndoStack::indexChanged, this, [this] { stage.edited(); });
}

void PanelDocks::addPanels()
{
    sceneDock = addPanel(new ScenePanel(stage), tr("Objects"), QStringLiteral("sceneDock"));
    objectDock = addPanel(new ObjectPanel(stage), tr("Properties"), QStringLiteral("objectDock"));
    addPanel(new MaterialPanel(stage), tr("Material"), QStringLiteral("materialDock"));
    addPanel(new PerspectiveMatchPanel(stage), tr("Perspective match"),
             QStringLiteral("matchDock"));
    addPanel(new PlatesPanel(stage), tr("Scene plates"), QStringLiteral("platesDock"));
}

QDockWidget* PanelDocks::addDock(QWidget* content, const QString& title, const QString& name)
{
    auto* dock = new QDockWidget(title, &window);
    dock->setObjectName(name);
    dock->setWidget(content);
    window.addDockWidget(Qt::RightDockWidgetArea, dock);
    dock->hide();
    docks.append(dock);
    return dock;
}

QDockWidget* PanelDocks::addPanel(Panel* panel, const QString& title, const QString& name)
{
    QDockWidget* dock = addDock(panel, title, name);
    panels.append(panel);
    connect(panel, &Panel::problem, this, &PanelDocks::problem);
    connect(dock, &QDockWidget::visibilityChanged, panel, [panel] { panel->refresh(); });
    return dock;
}

void PanelDocks::arrange()
{
    window.splitDockWidget(sceneDock, objectDock, Qt::Vertical);
    window.splitDockWidget(objectDock, stepsDock, Qt::Vertical);
    const QList<QDockWidget*> shown { sceneDock, objectDock, stepsDock };
    for (QDockWidget* dock : docks) {
        dock->setVisible(shown.contains(dock));
        if (!shown.contains(dock)) {
            window.tabifyDockWidget(objectDock, dock);
        }
    }
    window.resizeDocks(shown, { kShareOfObjects, kShareOfProperties, kShareOfSteps }, Qt::Vertical);
}

QList<QAction*> PanelDocks::actions() const
{
    QList<QAction*> all;
    for (QDockWidget* dock : docks) {
        all.append(dock->toggleViewAction());
    }
    return all;
}

void PanelDocks::refresh()
{
    // The list takes steps back by itself when it is clicked.
    undoView->setEnabled(!stage.isDragging());
    for (Panel* panel : panels) {
        if (panel->isVisible()) {
            panel->refresh();
        }
    }
}

}  // namespace viewer
