// SPDX-License-Identifier: MIT
#include "viewer/gui/WindowActions.h"

#include "viewer/core/Stage.h"
#include "viewer/gui/MainWindow.h"

#include <QAction>
#include <QActionGroup>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

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
    { "gizmoNone", "&None", "N", Gizmo::None },
    { "gizmoUniversal", "&Universal", "U", Gizmo::Universal },
    { "gizmoTranslate", "&Translate", "T", Gizmo::Translate },
    { "gizmoCamera", "&Camera pivot", "C", Gizmo::CameraPivot },
};

}  // namespace

WindowActions::WindowActions(MainWindow& targetWindow, Stage& targetStage)
    : QObject(&targetWindow)
    , window(targetWindow)
    , stage(targetStage)
{
    addFileMenu();
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
    addSwitch(menu, "effectBuffer", tr("Show &effect buffer"), "E",
              [this](bool on) { window.showEffectBuffer(on); });
}

void WindowActions::addManipulatorMenu()
{
    QMenu* menu = window.menuBar()->addMenu(tr("&Manipulator"));
    gizmoGroup = new QActionGroup(this);
    for (const GizmoRow& row : kGizmos) {
        QAction* action = addSwitch(menu, row.name, tr(row.text), row.keys,
                                    [this, gizmo = row.gizmo](bool) { stage.showGizmo(gizmo); });
        gizmoGroup->addAction(action);
        gizmoActions[row.gizmo] = action;
    }
    menu->addSeparator();
    add(menu, "selectNone", tr("Select n&othing"), "D", [this] { stage.select(osg::NullFC); });
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
    for (const GizmoRow& row : kGizmos) {
        bar->addAction(gizmoActions[row.gizmo]);
    }
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
    gizmoActions[stage.gizmo().shown()]->setChecked(true);
    record->setChecked(window.isRecording());
    record->setEnabled(!window.isReplaying());
    checkpoint->setEnabled(window.isRecording());
    stopReplay->setEnabled(window.isReplaying());
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
