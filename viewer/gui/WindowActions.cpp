// SPDX-License-Identifier: MIT
#include "viewer/gui/WindowActions.h"

#include "viewer/gui/HelpPages.h"
#include "viewer/gui/MainWindow.h"
#include "viewer/gui/PanelDocks.h"
#include "viewer/gui/SceneFileActions.h"
#include "viewer/gui/SessionPlayer.h"
#include "viewer/gui/ThemeIcon.h"
#include "viewer/gui/ViewWidget.h"
#include "viewer/loading/ModelExport.h"
#include "viewer/stage/Stage.h"

#include <nbKernelServices/nbUndoService.h>

#include <QAction>
#include <QActionGroup>
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
    static const QRegularExpression kBehind("\\(&.\\)");
    QString plain = text;
    return plain.remove(kBehind).remove('&');
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

QAction* WindowActions::add(QMenu* menu, const char* name, const QString& text, const QString& keys,
                            std::function<void()> run)
{
    QAction* action = make(menu, name, text, keys);
    connect(action, &QAction::triggered, this, [this, run = std::move(run)] {
        run();
        update();
    });
    return action;
}

QAction* WindowActions::addUnplayed(QMenu* menu, const char* name, const QString& text,
                                    const QString& keys, std::function<void()> run)
{
    QAction* action = add(menu, name, text, keys, std::move(run));
    action->setProperty(SessionPlayer::kUnplayedProperty, true);
    return action;
}

QAction* WindowActions::addSwitch(QMenu* menu, const char* name, const QString& text,
                                  const QString& keys, const Condition& isOn,
                                  std::function<void(bool)> set)
{
    QAction* action = make(menu, name, text, keys);
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, set = std::move(set)](bool on) {
        set(on);
        update();
    });
    if (isOn) {
        ticks.emplace_back(action, isOn);
    }
    return action;
}

QAction* WindowActions::addCommand(QMenu* menu, const char* command, const QString& text,
                                   const QString& keys)
{
    return add(menu, command, text, keys, [this, command] {
        run(command);
        window.showPanelOfTool();
    });
}

QAction* WindowActions::addCommandSwitch(QMenu* menu, const char* command, const char* value,
                                         const QString& text, const QString& keys)
{
    return addSwitch(
        menu, command, text, keys, [this, value] { return isOn(value); },
        [this, command](bool on) {
            run(command, on);
            window.showPanelOfTool();
        });
}

bool WindowActions::isOn(const char* value) const
{
    return stage.commands().value(value).value_or(false).toBool();
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
    add(menu, "sceneSave", tr("&Save scene"), "Ctrl+S", [this] { window.scenes().save(); });
    addUnplayed(menu, "sceneSaveAs", tr("Save sc&ene as…"), "Ctrl+Shift+S",
                [this] { window.scenes().saveAs(); });
    addUnplayed(menu, "fileExport", tr("E&xport models…"), {}, [this] {
        const QString kinds = "*." + exportEndings().join(" *.");
        window.askAndWrite(tr("Export models"), "models.glb", tr("Models (%1)").arg(kinds),
                           &exportModels);
    });
    addUnplayed(menu, "filePicture", tr("Sa&ve picture…"), "Ctrl+E",
                [this] { window.askForPicture(); });
    menu->addSeparator();
    addUnplayed(menu, "fileQuit", tr("&Quit"), "Ctrl+Q", [this] { window.close(); });
}

void WindowActions::addEditMenu()
{
    QMenu* menu = window.menuBar()->addMenu(tr("&Edit"));
    undo = add(menu, "undo", tr("&Undo"), "Ctrl+Z", [this] { stage.undo(); });
    redo = add(menu, "redo", tr("&Redo"), "Ctrl+Shift+Z", [this] { stage.redo(); });
    redo->setShortcuts({ redo->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Y) });
    conditions.emplace_back(undo, [this] { return stage.canUndo(); });
    conditions.emplace_back(redo, [this] { return stage.canRedo(); });
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
    const auto toggle = [this](const char* command) { run(command, !isOn(command)); };
    // What is selected, be it objects or scene plates.
    const auto runOn = [this](const char* ofObjects, const char* ofPlates) {
        run(isOn("plates.edit") ? ofPlates : ofObjects);
    };
    forObjects = {
        add(menu, "duplicate", tr("Dup&licate"), "Ctrl+D",
            [runOn] { runOn("scene.duplicate", "plates.duplicate"); }),
        add(menu, "delete", tr("&Delete"), "Del",
            [runOn] { runOn("scene.delete", "plates.remove"); }),
        add(menu, "rename", tr("Rena&me"), "F2", [this] { window.panels().renameSelected(); }),
        add(menu, "hide", tr("&Hide or show"), "H", [toggle] { toggle("object.visible"); }),
        add(menu, "lock", tr("Loc&k or unlock"), {}, [toggle] { toggle("object.locked"); }),
    };
    for (QAction* action : forObjects) {
        conditions.emplace_back(action, [this] {
            return (stage.selectedObject() != osg::NullFC || isOn("plates.edit")) &&
                !stage.isDragging();
        });
    }
}

void WindowActions::addViewMenu()
{
    QMenu* menu = window.menuBar()->addMenu(tr("&View"));
    add(menu, "frameAll", tr("Frame &all"), "A", [this] { stage.frameAll(); });
    add(menu, "frameSelection", tr("Frame &selection"), "F", [this] { stage.frameSelection(); });
    menu->addSeparator();
    QMenu* views = menu->addMenu(themeIcon("views"), tr("Look &from"));
    views->menuAction()->setObjectName("views");
    views->menuAction()->setToolTip(tr("Look from a side"));
    for (const ViewRow& row : kViews) {
        add(views, row.name, tr(row.text), row.keys,
            [this, view = row.view] { stage.setStandardView(view); });
    }
    menu->addSeparator();
    addSwitch(
        menu, "orthographic", tr("Ort&hographic"), "5",
        [this] { return stage.pose().orthographic; },
        [this](bool on) { stage.setOrthographic(on); });
    addSwitch(
        menu, "zUp", tr("&Z is up"), "Z", [this] { return stage.pose().zUp; },
        [this](bool on) { stage.setZUp(on); });
    menu->addSeparator();
    QMenu* panels = menu->addMenu(tr("&Panels"));
    panels->addActions(window.panels().actions());
    addSwitch(menu, "effectBuffer", tr("Show &effect buffer"), "B", {},
              [this](bool on) { window.view().showEffectBuffer(on); });
    addSwitch(
        menu, "view.setFrameStatistics", tr("Frame stat&istics"), "",
        [this] { return !window.view().frameText().isEmpty(); },
        [this](bool on) { run("view.setFrameStatistics", on); });
    menu->addSeparator();
    addCommandSwitch(menu, "settings.grid", "settings.grid", tr("&Grid on the ground"), "G");
    add(menu, "nextPanel", tr("Ne&xt panel"), "F6",
        [this] { window.panels().focusNext(&window.view()); });
    addSwitch(
        menu, "fullScreen", tr("F&ull screen"), "F11", [this] { return window.isWhole(); },
        [this](bool on) { window.showWhole(on); });
}

void WindowActions::addManipulatorMenu()
{
    QMenu* menu = window.menuBar()->addMenu(tr("&Manipulator"));
    auto* group = new QActionGroup(this);
    for (const GizmoRow& row : kGizmos) {
        QByteArray name = gizmoName(row.gizmo);
        name[0] = static_cast<char>(std::toupper(name[0]));
        const Gizmo gizmo = row.gizmo;
        QAction* action = addSwitch(
            menu, "gizmo" + name, tr(row.text), row.keys,
            [this, gizmo] {
                return stage.activeTool() == nullptr && stage.gizmo().shown() == gizmo;
            },
            [this, gizmo](bool) { stage.showGizmo(gizmo); });
        group->addAction(action);
        if (gizmo == Gizmo::Clipping) {
            conditions.emplace_back(action, [this] { return stage.isClipPlaneSelected(); });
        }
    }
    menu->addSeparator();
    addCommand(menu, "scene.addClipPlane", tr("Add cl&ip plane"), "Shift+X");
    conditions.emplace_back(addCommand(menu, "scene.removeClipPlane", tr("Remo&ve clip plane"), ""),
                            [this] { return stage.isClipPlaneSelected() && !stage.isDragging(); });
    menu->addSeparator();
    addCommandSwitch(menu, "match.setActive", "match.active", tr("Match a p&hotograph"), "Shift+M");
    QAction* hold =
        addCommandSwitch(menu, "view.setHeld", "view.held", tr("Hold the vie&w"), "Shift+H");
    describe(hold, tr("Hold the view: nothing moves the camera until this is lifted"));
    addCommandSwitch(menu, "plates.edit", "plates.edit", tr("Edit scene pl&ates"), "Shift+P");
    addCommandSwitch(menu, "texture.edit", "texture.edit", tr("Edit pictures on o&bjects"),
                     "Shift+T");
    menu->addSeparator();
    addTransformSettings(menu);
}

void WindowActions::addTransformSettings(QMenu* menu)
{
    localSpace = addSwitch(
        menu, "localSpace", tr("Axes o&f the object"), "L",
        [this] { return stage.gizmo().isLocalSpace(); },
        [this](bool on) {
            stage.gizmo().setLocalSpace(on);
            stage.edited();
        });
    QAction* snapping = addSwitch(
        menu, "snapping", tr("Snappin&g"), "X", [this] { return stage.gizmo().isSnapping(); },
        [this](bool on) { stage.gizmo().setSnapping(on); });
    QAction* centre = add(menu, "centerPivots", tr("Pivot bac&k to the centre"), "Shift+C", [this] {
        stage.gizmo().centerPivots();
        stage.edited();
    });
    conditions.emplace_back(
        centre, [this] { return stage.selectedObject() != osg::NullFC && !stage.isDragging(); });
    describe(localSpace, tr("Axes of the object instead of the world's"));
    describe(snapping, tr("Advance in steps; hold Ctrl for a while"));
}

void WindowActions::addSessionMenu()
{
    QMenu* menu = window.menuBar()->addMenu(tr("&Session"));
    // Replaying is no step of a session.
    addUnplayed(menu, "replay", tr("Re&play…"), "Ctrl+P", [this] { window.askForSession(); });
    conditions.emplace_back(addUnplayed(menu, "stopReplay", tr("&Stop replay"), "Ctrl+.",
                                        [this] { window.stopReplay(); }),
                            [this] { return window.isReplaying(); });
}

void WindowActions::addHelpMenu()
{
    QMenu* menu = window.menuBar()->addMenu(tr("&Help"));
    add(menu, "shortcuts", tr("&Shortcuts…"), "F1", [this] { showShortcuts(window); });
    addUnplayed(menu, "manual", tr("&Manual"), "Shift+F1", [this] { window.showManual(); });
    addUnplayed(menu, "tour", tr("&Tour"), {}, [this] { window.goOnTour(); });
    add(menu, "about", tr("&About nbviewer…"), {},
        [this] { AboutBox::open(window.view().graphics(), &window); });
}

void WindowActions::update()
{
    for (const auto& [action, isOn] : ticks) {
        action->setChecked(isOn());
    }
    for (const auto& [action, isPossible] : conditions) {
        action->setEnabled(isPossible());
    }
    const QUndoStack* stack = nbUndoService::the()->getStack();
    const QString undoText = stack->undoText();
    const QString redoText = stack->redoText();
    undo->setText(undoText.isEmpty() ? tr("&Undo") : tr("&Undo %1").arg(undoText));
    redo->setText(redoText.isEmpty() ? tr("&Redo") : tr("&Redo %1").arg(redoText));
    describe(undo, withoutMnemonic(undo->text()));
    describe(redo, withoutMnemonic(redo->text()));
    const GizmoController::Axes axes = stage.gizmo().axes();
    localSpace->setIconText(axes == GizmoController::Axes::Own          ? tr("Object")
                                : axes == GizmoController::Axes::Parent ? tr("Object above")
                                : axes == GizmoController::Axes::View   ? tr("Screen")
                                                                        : tr("World"));
}

void WindowActions::setRecentFiles(const QStringList& files)
{
    recentMenu->clear();
    recentMenu->setEnabled(!files.isEmpty());
    for (const QString& file : files) {
        // In a name an ampersand is one.
        const QString name = QFileInfo(file).fileName().replace('&', "&&");
        QAction* action = recentMenu->addAction(name);
        action->setToolTip(file);
        connect(action, &QAction::triggered, this,
                [this, file] { window.openFiles({ file }, MainWindow::Opening::Replace); });
    }
}

}  // namespace viewer
