// SPDX-License-Identifier: MIT
#include "viewer/gui/WindowActions.h"

#include "viewer/gui/AboutBox.h"
#include "viewer/gui/MainWindow.h"
#include "viewer/gui/PanelDocks.h"
#include "viewer/gui/SceneFileActions.h"
#include "viewer/gui/SessionPlayer.h"
#include "viewer/gui/ShortcutPage.h"
#include "viewer/gui/ThemeIcon.h"
#include "viewer/gui/ViewWidget.h"
#include "viewer/loading/ModelExport.h"
#include "viewer/stage/Stage.h"

#include <nbKernelServices/nbUndoService.h>

#include <QAction>
#include <QActionGroup>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QUndoStack>

#include <cctype>

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
    { "viewFront", QT_TRANSLATE_NOOP("viewer::WindowActions", "&Front"), "1", View::Front },
    { "viewBack", QT_TRANSLATE_NOOP("viewer::WindowActions", "&Back"), "Ctrl+1", View::Back },
    { "viewRight", QT_TRANSLATE_NOOP("viewer::WindowActions", "&Right"), "3", View::Right },
    { "viewLeft", QT_TRANSLATE_NOOP("viewer::WindowActions", "&Left"), "Ctrl+3", View::Left },
    { "viewTop", QT_TRANSLATE_NOOP("viewer::WindowActions", "&Top"), "7", View::Top },
    { "viewBottom", QT_TRANSLATE_NOOP("viewer::WindowActions", "B&ottom"), "Ctrl+7", View::Bottom },
    { "viewThreeQuarter", QT_TRANSLATE_NOOP("viewer::WindowActions", "Three-&quarter"), "0",
      View::ThreeQuarter },
};

struct GizmoRow
{
    Gizmo gizmo;
    const char* text;
    const char* keys;
};

constexpr GizmoRow kGizmos[] = {
    { Gizmo::None, QT_TRANSLATE_NOOP("viewer::WindowActions", "&None"), "Q" },
    { Gizmo::Translate, QT_TRANSLATE_NOOP("viewer::WindowActions", "&Translate"), "W" },
    { Gizmo::Rotate, QT_TRANSLATE_NOOP("viewer::WindowActions", "&Rotate"), "E" },
    { Gizmo::Scale, QT_TRANSLATE_NOOP("viewer::WindowActions", "&Scale"), "R" },
    { Gizmo::Universal, QT_TRANSLATE_NOOP("viewer::WindowActions", "&Universal"), "T" },
    { Gizmo::TranslateRotate, QT_TRANSLATE_NOOP("viewer::WindowActions", "Translate, r&otate"),
      "Shift+W" },
    { Gizmo::TranslateRotateScale,
      QT_TRANSLATE_NOOP("viewer::WindowActions", "Translate, rotate, s&cale"), "Shift+Q" },
    { Gizmo::TranslateRotateYZ,
      QT_TRANSLATE_NOOP("viewer::WindowActions", "Translate, rotate about &y and z"), "Shift+Y" },
    { Gizmo::RotatePivot, QT_TRANSLATE_NOOP("viewer::WindowActions", "Rotate &pivot"), "Shift+E" },
    { Gizmo::ScalePivot, QT_TRANSLATE_NOOP("viewer::WindowActions", "Sca&le pivot"), "Shift+R" },
    { Gizmo::Clipping, QT_TRANSLATE_NOOP("viewer::WindowActions", "Clip plan&e"), "V" },
    { Gizmo::CameraPivot, QT_TRANSLATE_NOOP("viewer::WindowActions", "Ca&mera pivot"), "C" },
};

/// Chinese has the letter behind the text, as in "(&F)".
QString withoutMnemonic(const QString& text)
{
    static const QRegularExpression kBehind(QStringLiteral("\\(&.\\)"));
    QString plain = text;
    return plain.remove(kBehind).remove(QLatin1Char('&'));
}

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
    addHelpMenu();
    update();
}

QAction* WindowActions::make(QMenu* menu, const char* name, const QString& text,
                             const QString& keys)
{
    QAction* action = menu->addAction(themeIcon(QLatin1String(name)), text);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(QKeySequence(keys, QKeySequence::PortableText));
    // So that shortcuts work while the menu bar is hidden.
    window.addAction(action);
    describe(action, withoutMnemonic(text));
    return action;
}

void WindowActions::describe(QAction* action, const QString& tip)
{
    const QString keys = QKeySequence::listToString(action->shortcuts(), QKeySequence::NativeText);
    action->setToolTip(keys.isEmpty() ? tip : tr("%1 (%2)", "tip, shortcut").arg(tip, keys));
}

QAction* WindowActions::addPlain(QMenu* menu, const char* name, const QString& text,
                                 const QString& keys, std::function<void(bool)> run)
{
    QAction* action = make(menu, name, text, keys);
    connect(action, &QAction::triggered, this, [this, run = std::move(run)](bool on) {
        run(on);
        update();
    });
    return action;
}

QAction* WindowActions::add(QMenu* menu, const char* name, const QString& text, const QString& keys,
                            std::function<void()> run)
{
    return addPlain(menu, name, text, keys, [run = std::move(run)](bool) { run(); });
}

QAction* WindowActions::addUnplayed(QMenu* menu, const char* name, const QString& text,
                                    const QString& keys, std::function<void()> run)
{
    QAction* action = addPlain(menu, name, text, keys, [run = std::move(run)](bool) { run(); });
    action->setProperty(SessionPlayer::kUnplayedProperty, true);
    return action;
}

QAction* WindowActions::addSwitch(QMenu* menu, const char* name, const QString& text,
                                  const QString& keys, std::function<void(bool)> run)
{
    QAction* action = addPlain(menu, name, text, keys, std::move(run));
    action->setCheckable(true);
    return action;
}

QAction* WindowActions::addCommand(QMenu* menu, const char* command, const QString& text,
                                   const QString& keys, bool isSwitch)
{
    QAction* action = addPlain(menu, command, text, keys, [this, command, isSwitch](bool on) {
        run(QLatin1String(command), isSwitch ? QJsonValue(on) : QJsonValue());
        window.showPanelOfTool();
    });
    action->setCheckable(isSwitch);
    return action;
}

void WindowActions::run(const QString& command, const QJsonValue& value)
{
    QString error;
    if (!stage.commands().run(command, value, error)) {
        emit window.problem(error);
    }
}

void WindowActions::addFileMenu()
{
    QMenu* menu = window.menuBar()->addMenu(tr("&File"));
    addUnplayed(menu, "fileOpen", tr("&Open…"), "Ctrl+O",
                [this] { window.askForFiles(MainWindow::Opening::Replace); });
    addUnplayed(menu, "fileAdd", tr("&Add…"), "Ctrl+Shift+O",
                [this] { window.askForFiles(MainWindow::Opening::Add); });
    recentMenu = menu->addMenu(tr("Open &recent"));
    recentMenu->setToolTipsVisible(true);
    setRecentFiles({});
    add(menu, "fileStartScene", tr("S&tart scene"), "Ctrl+N", [this] { window.showStartScene(); });
    menu->addSeparator();
    addPlain(menu, "sceneSave", tr("&Save scene"), "Ctrl+S",
             [this](bool) { window.scenes().save(); });
    addUnplayed(menu, "sceneSaveAs", tr("Save sc&ene as…"), "Ctrl+Shift+S",
                [this] { window.scenes().saveAs(); });
    addUnplayed(menu, "fileExport", tr("E&xport models…"), {}, [this] { exportAsked(); });
    addUnplayed(menu, "filePicture", tr("Sa&ve picture…"), "Ctrl+E",
                [this] { window.askForPicture(); });
    menu->addSeparator();
    addUnplayed(menu, "fileQuit", tr("&Quit"), "Ctrl+Q", [this] { window.close(); });
}

void WindowActions::exportAsked()
{
    const QString kinds = QStringLiteral("*.") + exportEndings().join(QStringLiteral(" *."));
    const QString path = QFileDialog::getSaveFileName(
        &window, tr("Export models"), QStringLiteral("models.glb"), tr("Models (%1)").arg(kinds));
    QString error;
    if (!path.isEmpty() && !exportModels(path, error)) {
        emit window.problem(error);
    }
}

void WindowActions::addEditMenu()
{
    QMenu* menu = window.menuBar()->addMenu(tr("&Edit"));
    undo = add(menu, "undo", tr("&Undo"), "Ctrl+Z", [this] { stage.undo(); });
    redo = add(menu, "redo", tr("&Redo"), "Ctrl+Shift+Z", [this] { stage.redo(); });
    redo->setShortcuts({ redo->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Y) });
    menu->addSeparator();
    add(menu, "selectAll", tr("Select &all"), "Ctrl+A", [this] { stage.selectAll(); });
    add(menu, "selectNone", tr("Select &nothing"), "D", [this] { stage.select(osg::NullFC); });
    menu->addSeparator();
    addObjectActions(menu);
    menu->addSeparator();
    addUnplayed(menu, "settings", tr("Se&ttings…"), "Ctrl+,", [this] { window.showSettings(); });
}

void WindowActions::addObjectActions(QMenu* menu)
{
    const auto toggle = [this](const char* name) {
        const QString command = QLatin1String(name);
        run(command, !stage.commands().value(command).value_or(QJsonValue()).toBool());
    };
    const auto isEditingPlates = [this] {
        return stage.commands().value(QStringLiteral("plates.edit")).value_or(false).toBool();
    };
    forObjects = {
        addPlain(menu, "duplicate", tr("Dup&licate"), "Ctrl+D",
                 [this, isEditingPlates](bool) {
                     run(isEditingPlates() ? QStringLiteral("plates.duplicate")
                                           : QStringLiteral("scene.duplicate"));
                 }),
        addPlain(menu, "delete", tr("&Delete"), "Del",
                 [this, isEditingPlates](bool) {
                     run(isEditingPlates() ? QStringLiteral("plates.remove")
                                           : QStringLiteral("scene.delete"));
                 }),
        addPlain(menu, "rename", tr("Rena&me"), "F2",
                 [this](bool) { window.panels().renameSelected(); }),
        addPlain(menu, "hide", tr("&Hide or show"), "H",
                 [toggle](bool) { toggle("object.visible"); }),
        addPlain(menu, "lock", tr("Loc&k or unlock"), {},
                 [toggle](bool) { toggle("object.locked"); }),
    };
}

void WindowActions::addViewMenu()
{
    QMenu* menu = window.menuBar()->addMenu(tr("&View"));
    add(menu, "frameAll", tr("Frame &all"), "A", [this] { stage.frameAll(); });
    add(menu, "frameSelection", tr("Frame &selection"), "F", [this] { stage.frameSelection(); });
    menu->addSeparator();
    QMenu* views = menu->addMenu(themeIcon(QStringLiteral("views")), tr("Look &from"));
    views->menuAction()->setObjectName(QStringLiteral("views"));
    views->menuAction()->setToolTip(tr("Look from a side"));
    for (const ViewRow& row : kViews) {
        add(views, row.name, tr(row.text), row.keys,
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
    addCommand(menu, "view.setFrameStatistics", tr("Frame stat&istics"), "", true);
    menu->addSeparator();
    grid = addCommand(menu, "settings.grid", tr("&Grid on the ground"), "G", true);
    addPlain(menu, "nextPanel", tr("Ne&xt panel"), "F6",
             [this](bool) { window.panels().focusNext(&window.view()); });
    fullScreen = addPlain(menu, "fullScreen", tr("F&ull screen"), "F11",
                          [this](bool on) { window.showWhole(on); });
    fullScreen->setCheckable(true);
}

void WindowActions::addManipulatorMenu()
{
    QMenu* menu = window.menuBar()->addMenu(tr("&Manipulator"));
    gizmoGroup = new QActionGroup(this);
    for (const GizmoRow& row : kGizmos) {
        QByteArray name = gizmoName(row.gizmo);
        name[0] = static_cast<char>(std::toupper(name[0]));
        QAction* action = addSwitch(menu, "gizmo" + name, tr(row.text), row.keys,
                                    [this, gizmo = row.gizmo](bool) { stage.showGizmo(gizmo); });
        gizmoGroup->addAction(action);
        gizmoActions[row.gizmo] = action;
    }
    menu->addSeparator();
    addCommand(menu, "scene.addClipPlane", tr("Add cl&ip plane"), "Shift+X");
    removeClipPlane = addCommand(menu, "scene.removeClipPlane", tr("Remo&ve clip plane"), "");
    menu->addSeparator();
    matchCamera = addCommand(menu, "match.setActive", tr("Match a p&hotograph"), "Shift+M", true);
    holdView = addCommand(menu, "view.setHeld", tr("Hold the vie&w"), "Shift+H", true);
    describe(holdView, tr("Hold the view: nothing moves the camera until this is lifted"));
    editPlates = addCommand(menu, "plates.edit", tr("Edit scene pl&ates"), "Shift+P", true);
    editPictures =
        addCommand(menu, "texture.edit", tr("Edit pictures on o&bjects"), "Shift+T", true);
    menu->addSeparator();
    addTransformSettings(menu);
}

void WindowActions::addTransformSettings(QMenu* menu)
{
    localSpace = addSwitch(menu, "localSpace", tr("Axes o&f the object"), "L", [this](bool on) {
        stage.gizmo().setLocalSpace(on);
        stage.edited();
    });
    snapping = addSwitch(menu, "snapping", tr("Snappin&g"), "X",
                         [this](bool on) { stage.gizmo().setSnapping(on); });
    centerPivots = add(menu, "centerPivots", tr("Pivot bac&k to the centre"), "Shift+C", [this] {
        stage.gizmo().centerPivots();
        stage.edited();
    });
    describe(localSpace, tr("Axes of the object instead of the world's"));
    describe(snapping, tr("Advance in steps; hold Ctrl for a while"));
}

void WindowActions::addSessionMenu()
{
    QMenu* menu = window.menuBar()->addMenu(tr("&Session"));
    // Replaying is no step of a session.
    addUnplayed(menu, "replay", tr("Re&play…"), "Ctrl+P", [this] { window.askForSession(); });
    stopReplay = addUnplayed(menu, "stopReplay", tr("&Stop replay"), "Ctrl+.",
                             [this] { window.stopReplay(); });
}

void WindowActions::addHelpMenu()
{
    QMenu* menu = window.menuBar()->addMenu(tr("&Help"));
    addPlain(menu, "shortcuts", tr("&Shortcuts…"), "F1", [this](bool) { showShortcuts(window); });
    addUnplayed(menu, "manual", tr("&Manual"), "Shift+F1", [this] { window.showManual(); });
    addUnplayed(menu, "tour", tr("&Tour"), {}, [this] { window.goOnTour(); });
    addPlain(menu, "about", tr("&About nbviewer…"), {},
             [this](bool) { AboutBox::open(window.view().graphics(), &window); });
}

void WindowActions::update()
{
    const CameraPose pose = stage.pose();
    orthographic->setChecked(pose.orthographic);
    zUp->setChecked(pose.zUp);
    updateGizmos();
    updateEditing();
    stopReplay->setEnabled(window.isReplaying());
    fullScreen->setChecked(window.isWhole());
    grid->setChecked(stage.isGridShown());
}

void WindowActions::updateGizmos()
{
    const auto isOn = [this](const char* value) {
        return stage.commands().value(QLatin1String(value)).value_or(false).toBool();
    };
    matchCamera->setChecked(isOn("match.active"));
    holdView->setChecked(stage.isViewHeld());
    editPlates->setChecked(isOn("plates.edit"));
    editPictures->setChecked(isOn("texture.edit"));
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
    const QUndoStack* stack = nbUndoService::the()->getStack();
    undo->setEnabled(stage.canUndo());
    redo->setEnabled(stage.canRedo());
    const QString undoText = stack->undoText();
    const QString redoText = stack->redoText();
    undo->setText(undoText.isEmpty() ? tr("&Undo") : tr("&Undo %1").arg(undoText));
    redo->setText(redoText.isEmpty() ? tr("&Redo") : tr("&Redo %1").arg(redoText));
    describe(undo, withoutMnemonic(undo->text()));
    describe(redo, withoutMnemonic(redo->text()));
    const bool isSelected = stage.selectedObject() != osg::NullFC;
    centerPivots->setEnabled(isSelected && !stage.isDragging());
    for (QAction* action : forObjects) {
        action->setEnabled((isSelected || editPlates->isChecked()) && !stage.isDragging());
    }
    gizmoActions[Gizmo::Clipping]->setEnabled(stage.isClipPlaneSelected());
    removeClipPlane->setEnabled(stage.isClipPlaneSelected() && !stage.isDragging());
    localSpace->setChecked(stage.gizmo().isLocalSpace());
    localSpace->setIconText(localSpace->isChecked() ? tr("Object") : tr("World"));
    snapping->setChecked(stage.gizmo().isSnapping());
}

void WindowActions::lookFrom(View view)
{
    for (const ViewRow& row : kViews) {
        if (row.view == view) {
            window.findChild<QAction*>(QLatin1String(row.name))->trigger();
        }
    }
}

void WindowActions::setRecentFiles(const QStringList& files)
{
    recentMenu->clear();
    recentMenu->setEnabled(!files.isEmpty());
    for (const QString& file : files) {
        // In a name an ampersand is one.
        const QString name =
            QFileInfo(file).fileName().replace(QLatin1Char('&'), QLatin1String("&&"));
        QAction* action = recentMenu->addAction(name);
        action->setToolTip(file);
        connect(action, &QAction::triggered, this,
                [this, file] { window.openFiles({ file }, MainWindow::Opening::Replace); });
    }
}

}  // namespace viewer
