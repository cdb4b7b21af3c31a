// SPDX-License-Identifier: MIT
#include "viewer/gui/WindowActions.h"

#include "viewer/core/Stage.h"
#include "viewer/gui/MainWindow.h"
#include "viewer/gui/PanelDocks.h"
#include "viewer/gui/StepsPanel.h"
#include "viewer/gui/ToolIcons.h"

#include <nbKernelServices/nbUndoService.h>

#include <QAction>
#include <QActionGroup>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <QUndoStack>
#include <QWidgetAction>

namespace viewer {
namespace {

using View = nbCameraNavigation::StandardView;

struct ViewRow
{
    const char* name;
    const char* text;
    const char* keys;
    View view;
};

constexpr ViewRow kViews[] = {
    { "viewFront", "&Front", "1", View::Front },
    { "viewBack", "&Back", "Ctrl+1", View::Back },
    { "viewRight", "&Right", "3", View::Right },
    { "viewLeft", "&Left", "Ctrl+3", View::Left },
    { "viewTop", "&Top", "7", View::Top },
    { "viewBottom", "B&ottom", "Ctrl+7", View::Bottom },
    { "viewThreeQuarter", "Three-&quarter", "0", View::ThreeQuarter },
};

struct GizmoRow
{
    const char* name;
    const char* text;
    const char* keys;
    Gizmo gizmo;
};

constexpr GizmoRow kGizmos[] = {
    { "gizmoNone", "&None", "Q", Gizmo::None },
    { "gizmoTranslate", "&Translate", "W", Gizmo::Translate },
    { "gizmoRotate", "&Rotate", "E", Gizmo::Rotate },
    { "gizmoScale", "&Scale", "R", Gizmo::Scale },
    { "gizmoUniversal", "&Universal", "T", Gizmo::Universal },
    { "gizmoTranslateRotate", "Translate, r&otate", "", Gizmo::TranslateRotate },
    { "gizmoTranslateRotateScale", "Translate, rotate, s&cale", "", Gizmo::TranslateRotateScale },
    { "gizmoTranslateRotateYZ", "Translate, rotate about &y and z", "", Gizmo::TranslateRotateYZ },
    { "gizmoRotatePivot", "Rotate &pivot", "Shift+E", Gizmo::RotatePivot },
    { "gizmoScalePivot", "Sca&le pivot", "Shift+R", Gizmo::ScalePivot },
    { "gizmoClipping", "Clip plan&e", "", Gizmo::Clipping },
    { "gizmoCamera", "Ca&mera pivot", "C", Gizmo::CameraPivot },
};

}  // namespace

WindowActions::WindowActions(MainWindow& targetWindow, Stage& targetStage)
    : QObject(&targetWindow)
    , window(targetWindow)
    , stage(targetStage)
{
    addFileMenu();
    addEditMenu();
    addViewMenu();
    addManipulatorMenu();
    addSessionMenu();
    addToolBar();
    update();
}

QAction* WindowActions::add(QMenu* menu, const char* name, const QString& text, const QString& keys,
                            std::function<void()> run)
{
    QAction* action = menu->addAction(text);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(QKeySequence(keys, QKeySequence::PortableText));
    connect(action, &QAction::triggered, this, [this, keys, run = std::move(run)] {
        emit shortcutUsed(keys);
        run();
        update();
    });
    return action;
}

QAction* WindowActions::addSwitch(QMenu* menu, const char* name, const QString& text,
                                  const QString& keys, std::function<void(bool)> run)
{
    QAction* action = menu->addAction(text);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(QKeySequence(keys, QKeySequence::PortableText));
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, keys, run = std::move(run)](bool on) {
        emit shortcutUsed(keys);
        run(on);
        update();
    });
    return action;
}

QAction* WindowActions::addCommand(QMenu* menu, const char* command, const QString& text,
                                   const QString& keys)
{
    QAction* action = menu->addAction(text);
    action->setObjectName(QLatin1String(command));
    action->setShortcut(QKeySequence(keys, QKeySequence::PortableText));
    // A recording gets the command itself, so the shortcut is not told.
    connect(action, &QAction::triggered, this, [this, command] {
        QString error;
        if (!stage.commands().run(QLatin1String(command), {}, error)) {
            emit window.problem(error);
        }
        update();
    });
    return action;
}

void WindowActions::addFileMenu()
{
    QMenu* menu = window.menuBar()->addMenu(tr("&File"));
    open = add(menu, "fileOpen", tr("&Open…"), "Ctrl+O",
               [this] { window.askForFiles(MainWindow::Opening::Replace); });
    add(menu, "fileAdd", tr("&Add…"), "Ctrl+Shift+O",
        [this] { window.askForFiles(MainWindow::Opening::Add); });
    recentMenu = menu->addMenu(tr("Open &recent"));
    add(menu, "fileStartScene", tr("S&tart scene"), "Ctrl+N", [this] { window.showStartScene(); });
    menu->addSeparator();
    picture = add(menu, "filePicture", tr("Save &picture…"), "Ctrl+S",
                  [this] { window.askForPicture(); });
    menu->addSeparator();
    add(menu, "fileQuit", tr("&Quit"), "Ctrl+Q", [this] { window.close(); });
}

void WindowActions::addEditMenu()
{
    QMenu* menu = window.menuBar()->addMenu(tr("&Edit"));
    undo = add(menu, "undo", tr("&Undo"), "Ctrl+Z", [this] { stage.undo(); });
    redo = add(menu, "redo", tr("&Redo"), "Ctrl+Shift+Z", [this] { stage.redo(); });
    undo->setIcon(undoIcon());
    redo->setIcon(redoIcon());
    menu->addSeparator();
    add(menu, "selectAll", tr("Select &all"), "Ctrl+A", [this] { stage.selectAll(); });
    add(menu, "selectNone", tr("Select &nothing"), "D", [this] { stage.select(osg::NullFC); });
}

void WindowActions::addViewMenu()
{
    QMenu* menu = window.menuBar()->addMenu(tr("&View"));
    frameAll = add(menu, "frameAll", tr("Frame &all"), "A", [this] { stage.frameAll(); });
    frameSelection = add(menu, "frameSelection", tr("Frame &selection"), "F",
                         [this] { stage.frameSelection(); });
    menu->addSeparator();
    for (const ViewRow& row : kViews) {
        add(menu, row.name, tr(row.text), row.keys,
            [this, view = row.view] { stage.setStandardView(view); });
    }
    menu->addSeparator();
    orthographic = addSwitch(menu, "orthographic", tr("Ort&hographic"), "5",
                             [this](bool on) { stage.setOrthographic(on); });
    zUp = addSwitch(menu, "zUp", tr("&Z is up"), "Z", [this](bool on) { stage.setZUp(on); });
    menu->addSeparator();
    QMenu* panels = menu->addMenu(tr("&Panels"));
    panels->addActions(window.panels().actions());
    addSwitch(menu, "effectBuffer", tr("Show &effect buffer"), "B",
              [this](bool on) { window.showEffectBuffer(on); });
    addCommand(menu, "view.setFrameStatistics", tr("Frame s&tatistics"), "")->setCheckable(true);
}

void WindowActions::addManipulatorMenu()
{
    QMenu* menu = window.menuBar()->addMenu(tr("&Manipulator"));
    gizmoGroup = new QActionGroup(this);
    for (const GizmoRow& row : kGizmos) {
        QAction* action = addSwitch(menu, row.name, tr(row.text), row.keys,
                                    [this, gizmo = row.gizmo](bool) { stage.showGizmo(gizmo); });
        action->setIcon(gizmoIcon(row.gizmo));
        gizmoGroup->addAction(action);
        gizmoActions[row.gizmo] = action;
    }
    menu->addSeparator();
    addCommand(menu, "scene.addClipPlane", tr("Add cl&ip plane"), "Shift+X");
    removeClipPlane = addCommand(menu, "scene.removeClipPlane", tr("Remo&ve clip plane"), "");
    menu->addSeparator();
    matchCamera = addCommand(menu, "match.setActive", tr("&Match a photograph"), "Shift+M");
    matchCamera->setCheckable(true);
    editPlates = addCommand(menu, "plates.edit", tr("&Edit scene plates"), "Shift+P");
    editPlates->setCheckable(true);
    removePlates = addCommand(menu, "plates.remove", tr("&Delete scene plates"), "Del");
    editPictures = addCommand(menu, "texture.edit", tr("Edit pict&ures on objects"), "Shift+T");
    editPictures->setCheckable(true);
    menu->addSeparator();
    addTransformSettings(menu);
}

void WindowActions::addTransformSettings(QMenu* menu)
{
    localSpace = addSwitch(menu, "localSpace", tr("&Axes of the object"), "L", [this](bool on) {
        stage.gizmo().setLocalSpace(on);
        stage.edited();
    });
    snapping = addSwitch(menu, "snapping", tr("Snapp&ing"), "X",
                         [this](bool on) { stage.gizmo().setSnapping(on); });
    centerPivots = add(menu, "centerPivots", tr("Centre p&ivot"), "Shift+C", [this] {
        stage.gizmo().centerPivots();
        stage.edited();
    });
    localSpace->setIconText(tr("Local"));
    localSpace->setToolTip(tr("Axes of the object instead of the world's (L)"));
    snapping->setIconText(tr("Snap"));
    snapping->setToolTip(tr("Advance in steps (X); hold Ctrl for a while"));
    stepsMenu = menu->addMenu(tr("Steps an&d size"));
    stepsPanel = new StepsPanel(stage.gizmo());
    auto* panelAction = new QWidgetAction(stepsMenu);
    panelAction->setDefaultWidget(stepsPanel);
    stepsMenu->addAction(panelAction);
    connect(stepsMenu, &QMenu::aboutToShow, stepsPanel, &StepsPanel::refresh);
    connect(stepsPanel, &StepsPanel::edited, this, [this] { stage.edited(); });
}

void WindowActions::addSessionMenu()
{
    QMenu* menu = window.menuBar()->addMenu(tr("&Session"));
    // Recording and replaying are no steps of a session, so their shortcuts are not told.
    const auto command = [&](const char* name, const QString& text, const QString& keys, auto run) {
        QAction* action = menu->addAction(text);
        action->setObjectName(QLatin1String(name));
        action->setShortcut(QKeySequence(keys, QKeySequence::PortableText));
        connect(action, &QAction::triggered, this, [this, run](bool on) {
            run(on);
            update();
        });
        return action;
    };
    record = command("record", tr("&Record"), "Ctrl+R", [this](bool on) { window.record(on); });
    record->setCheckable(true);
    checkpoint = command("checkpoint", tr("Add &checkpoint"), "Ctrl+K",
                         [this](bool) { window.addCheckpoint(); });
    menu->addSeparator();
    command("replay", tr("Re&play…"), "Ctrl+P", [this](bool) { window.askForSession(); });
    stopReplay =
        command("stopReplay", tr("&Stop replay"), "Ctrl+.", [this](bool) { window.stopReplay(); });
}

void WindowActions::addToolBar()
{
    QToolBar* bar = window.addToolBar(tr("Tools"));
    bar->setObjectName(QStringLiteral("tools"));
    bar->setMovable(false);
    bar->addAction(open);
    bar->addAction(picture);
    bar->addSeparator();
    bar->addAction(undo);
    bar->addAction(redo);
    bar->addSeparator();
    for (const GizmoRow& row : kGizmos) {
        if (!gizmoActions[row.gizmo]->icon().isNull()) {
            bar->addAction(gizmoActions[row.gizmo]);
        }
    }
    bar->addSeparator();
    bar->addAction(localSpace);
    bar->addAction(snapping);
    auto* steps = new QToolButton(bar);
    steps->setText(tr("Steps"));
    steps->setToolTip(tr("Steps of snapping, size of the gizmo"));
    steps->setMenu(stepsMenu);
    steps->setPopupMode(QToolButton::InstantPopup);
    bar->addWidget(steps);
    bar->addSeparator();
    bar->addAction(frameAll);
    bar->addAction(frameSelection);
    bar->addAction(orthographic);
    bar->addAction(zUp);
    bar->addSeparator();
    bar->addAction(record);
}

void WindowActions::update()
{
    const CameraPose pose = stage.pose();
    orthographic->setChecked(pose.orthographic);
    zUp->setChecked(pose.zUp);
    updateGizmos();
    updateEditing();
    record->setChecked(window.isRecording());
    record->setEnabled(!window.isReplaying());
    checkpoint->setEnabled(window.isRecording());
    stopReplay->setEnabled(window.isReplaying());
}

void WindowActions::updateGizmos()
{
    const auto isOn = [this](const char* value) {
        return stage.commands().value(QLatin1String(value)).value_or(false).toBool();
    };
    matchCamera->setChecked(isOn("match.active"));
    editPlates->setChecked(isOn("plates.edit"));
    removePlates->setEnabled(editPlates->isChecked());
    if (stage.activeTool() == nullptr) {
        gizmoActions[stage.gizmo().shown()]->setChecked(true);
        return;
    }
    // An exclusive group lets go of its last choice only when it is not exclusive.
    gizmoGroup->setExclusive(false);
    for (const auto& [gizmo, action] : gizmoActions) {
        action->setChecked(false);
    }
    gizmoGroup->setExclusive(true);
}

void WindowActions::updateEditing()
{
    const auto titled = [](const QString& verb, const QString& step) {
        return step.isEmpty() ? verb : verb + QLatin1Char(' ') + step;
    };
    const QUndoStack* stack = nbUndoService::the()->getStack();
    undo->setEnabled(stage.canUndo());
    redo->setEnabled(stage.canRedo());
    undo->setText(titled(tr("&Undo"), stack->undoText()));
    redo->setText(titled(tr("&Redo"), stack->redoText()));
    const auto arePicturesEdited = stage.commands().value(QStringLiteral("texture.edit"));
    editPictures->setChecked(arePicturesEdited && arePicturesEdited->toBool());
    const bool isSelected = stage.selectedObject() != osg::NullFC;
    centerPivots->setEnabled(isSelected && !stage.isDragging());
    gizmoActions[Gizmo::Clipping]->setEnabled(stage.isClipPlaneSelected());
    removeClipPlane->setEnabled(stage.isClipPlaneSelected() && !stage.isDragging());
    localSpace->setChecked(stage.gizmo().isLocalSpace());
    snapping->setChecked(stage.gizmo().isSnapping());
}

void WindowActions::setRecentFiles(const QStringList& files)
{
    recentMenu->clear();
    recentMenu->setEnabled(!files.isEmpty());
    for (const QString& file : files) {
        QAction* action = recentMenu->addAction(QFileInfo(file).fileName());
        action->setToolTip(file);
        connect(action, &QAction::triggered, this,
                [this, file] { window.openFiles({ file }, MainWindow::Opening::Replace); });
    }
}

}  // namespace viewer
