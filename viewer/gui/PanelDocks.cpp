// SPDX-License-Identifier: MIT
#include "viewer/gui/PanelDocks.h"

#include "viewer/gui/LogPanel.h"
#include "viewer/gui/MaterialPanel.h"
#include "viewer/gui/ObjectPanel.h"
#include "viewer/gui/PerspectiveMatchPanel.h"
#include "viewer/gui/PlatesPanel.h"
#include "viewer/gui/ScenePanel.h"
#include "viewer/gui/StageTools.h"
#include "viewer/stage/Stage.h"

#include <nbKernelServices/nbUndoService.h>

#include <QAction>
#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>
#include <QScrollArea>
#include <QScrollBar>
#include <QUndoStack>
#include <QUndoView>

namespace viewer {
namespace {

/// How the side of the window is shared out at first.
constexpr int kShareOfObjects = 3;
constexpr int kShareOfProperties = 4;
constexpr int kShareOfSteps = 2;

constexpr int kMessagesHeight = 150;  ///< logical pixels, at first

/// Lines of text that are seen at least.
constexpr int kLeastLines = 4;

/// Frame around the content of a dock: scrolls it up and down where there is no room, so that a
/// window can be small. It is as wide as the content has ever needed, so that rows which come and
/// go do not make the view beside it change its size.
class PanelScrollArea : public QScrollArea
{
public:
    /// @param content  becomes a child
    explicit PanelScrollArea(QWidget* content)
    {
        setWidgetResizable(true);
        setFrameShape(QFrame::NoFrame);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        // Keys are for what is in it.
        setFocusPolicy(Qt::NoFocus);
        setWidget(content);
        content->installEventFilter(this);
        measure();
    }

    QSize minimumSizeHint() const override
    {
        const int bar = verticalScrollBar()->sizeHint().width();
        return { widest + bar, kLeastLines * fontMetrics().lineSpacing() };
    }

    QSize sizeHint() const override
    {
        return { minimumSizeHint().width(), widget()->sizeHint().height() };
    }

protected:
    /// Follows the content when its rows change.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == widget() && event->type() == QEvent::LayoutRequest) {
            measure();
        }
        return QScrollArea::eventFilter(watched, event);
    }

private:
    /// Takes note of the width that the content needs now.
    void measure()
    {
        const int needed = widget()->minimumSizeHint().width();
        if (needed > widest) {
            widest = needed;
            updateGeometry();
        }
    }

    int widest = 0;
};

}  // namespace

PanelDocks::PanelDocks(QMainWindow& targetWindow, Stage& targetStage, StageTools& stageTools)
    : QObject(&targetWindow)
    , window(targetWindow)
    , stage(targetStage)
    , tools(stageTools)
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
    undoView->setObjectName("undoList");
    undoView->setEmptyLabel(tr("As opened"));
    // Keys are for the view, whatever was clicked last.
    undoView->setFocusPolicy(Qt::TabFocus);
    undoView->setAccessibleName(tr("Steps"));
    stepsDock = addDock(undoView, tr("Steps"), "undoDock");
    connect(stack, &QUndoStack::indexChanged, this, [this] { stage.edited(); });
}

void PanelDocks::addPanels()
{
    scenePanel = new ScenePanel(stage);
    sceneDock = addPanel(scenePanel, tr("Objects"), "sceneDock");
    objectDock = addPanel(new ObjectPanel(stage), tr("Properties"), "objectDock");
    toolDocks["texture"] =
        addPanel(new MaterialPanel(stage, tools.texture), tr("Material"), "materialDock");
    toolDocks["match"] = addPanel(new PerspectiveMatchPanel(stage, tools.match),
                                  tr("Perspective match"), "matchDock");
    toolDocks["plates"] =
        addPanel(new PlatesPanel(stage, tools.plates), tr("Scene plates"), "platesDock");
    // As wide from the start as any of them needs, so that the view keeps its size.
    int widest = 0;
    for (const QDockWidget* dock : docks) {
        widest = qMax(widest, dock->widget()->minimumSizeHint().width());
    }
    sceneDock->widget()->setMinimumWidth(widest);
    objectDock->widget()->setMinimumWidth(widest);
    logPanel = new LogPanel;
    logDock = addDock(logPanel, tr("Messages"), "logDock");
    window.addDockWidget(Qt::BottomDockWidgetArea, logDock);
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
    QWidget* content = panel;
    if (panel->needsScrolling()) {
        content = new PanelScrollArea(panel);
    }
    QDockWidget* dock = addDock(content, title, name);
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
        if (!shown.contains(dock) && dock != logDock) {
            window.tabifyDockWidget(objectDock, dock);
        }
    }
    // The panels have the whole height, messages only the width of the view.
    window.setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    window.resizeDocks({ logDock }, { kMessagesHeight }, Qt::Vertical);
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

void PanelDocks::renameSelected()
{
    sceneDock->show();
    sceneDock->raise();
    scenePanel->renameSelected();
}

void PanelDocks::showPanelOf(const QString& tool)
{
    if (QDockWidget* dock = toolDocks.value(tool)) {
        dock->show();
        dock->raise();
    }
}

void PanelDocks::focusNext(QWidget* view)
{
    QList<QWidget*> places { view };
    int present = 0;
    for (QDockWidget* dock : docks) {
        // Of docks that lie on each other one is seen.
        if (dock->isVisible() && !dock->visibleRegion().isEmpty()) {
            if (dock->isAncestorOf(window.focusWidget())) {
                present = places.size();
            }
            places.append(dock->widget());
        }
    }
    QWidget* place = places.at((present + 1) % places.size());
    // A panel itself takes no keys, but the first thing in it.
    for (QWidget* next = place; next != nullptr;) {
        if (next->isVisible() && next->isEnabled() && (next->focusPolicy() & Qt::TabFocus) != 0) {
            next->setFocus(Qt::TabFocusReason);
            return;
        }
        next = next->nextInFocusChain();
        if (next == place) {
            return;
        }
    }
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
