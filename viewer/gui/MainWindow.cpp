// SPDX-License-Identifier: MIT
#include "viewer/gui/MainWindow.h"

#include "viewer/gui/AxesCorner.h"
#include "viewer/gui/LogPanel.h"
#include "viewer/gui/MessageBar.h"
#include "viewer/gui/PanelDocks.h"
#include "viewer/gui/SceneFileActions.h"
#include "viewer/gui/ScenePanel.h"
#include "viewer/gui/SessionPlayer.h"
#include "viewer/gui/SettingsPanel.h"
#include "viewer/gui/StageTools.h"
#include "viewer/gui/StatusLine.h"
#include "viewer/gui/ToolBars.h"
#include "viewer/gui/ViewWidget.h"
#include "viewer/gui/WindowActions.h"
#include "viewer/gui/WindowMemory.h"
#include "viewer/stage/ObjectCommands.h"
#include "viewer/stage/StageTool.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDialog>
#include <QDockWidget>
#include <QFileInfo>
#include <QGridLayout>
#include <QJsonArray>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QTextBrowser>
#include <QTimer>
#include <QToolBar>

#include <algorithm>

namespace viewer {
namespace {

/// Size at the first start, logical pixels, and the part of the screen that it takes at most.
constexpr QSize kFirstSize(1440, 900);
constexpr double kMostOfScreen = 0.94;
constexpr QSize kManualSize(900, 900);
/// Until the window manager has given the window its size.
constexpr int kSettlingMs = 60;

}  // namespace

MainWindow::MainWindow(Attendance attendance)
    : mode(attendance)
    , viewWidget(new ViewWidget)
    , loader(new ModelLoader(this))
    , sessionPlayer(new SessionPlayer(*viewWidget, *this, this))
    , fieldRules(*viewWidget)
    , tools(std::make_unique<StageTools>(viewWidget->stage()))
{
    setShownTitle({});
    auto* centre = new QWidget(this);
    auto* layout = new QGridLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(viewWidget, 0, 0);
    setCentralWidget(centre);
    messageBar = new MessageBar(viewWidget);
    viewWidget->setCoarseWhileMoving(mode == Attendance::Attended);
    sceneFiles = new SceneFileActions(*this, viewWidget->stage(), *loader);
    settings = std::make_unique<Settings>(*this, mode == Attendance::Attended);
    addSurroundings();
    if (mode == Attendance::Attended) {
        connect(this, &MainWindow::problem, messageBar, &MessageBar::showMessage);
        sceneFiles->setQuestion(sceneFiles->dialog());
        sceneFiles->keepEdits(QFileInfo(QSettings().fileName()).dir(),
                              [this] { return viewWidget->lastFrame(); });
        sessionPlayer->setCaptionsShown(true);
        if (!memory::restoreLayout(*this)) {
            resize(kFirstSize.boundedTo(screen()->availableSize() * kMostOfScreen));
        }
    }
    connectParts();
    if (mode == Attendance::Attended) {
        auto* corner = new AxesCorner(viewWidget, viewWidget->stage());
        connect(corner, &AxesCorner::viewAsked, this,
                [this](auto side) { viewWidget->stage().setStandardView(side); });
        connect(viewWidget, &ViewWidget::stateChanged, corner, &AxesCorner::refresh);
        settings->restore();
    }
    viewWidget->setFocus();
}

void MainWindow::connectParts()
{
    connect(this, &MainWindow::problem, this,
            [this](const QString& text) { docks->log().append(nbLog::Level::Warning, text); });
    connect(viewWidget, &ViewWidget::stateChanged, this, &MainWindow::updateStatus);
    connect(&fieldRules, &FieldRules::refused, this, &MainWindow::problem);
    connect(viewWidget, &ViewWidget::drawingFailed, this, &MainWindow::problem);
    connect(viewWidget, &ViewWidget::menuAsked, this, &MainWindow::showObjectMenu);
    connect(viewWidget, &ViewWidget::filesDropped, this, &MainWindow::handleDroppedFiles);
    connect(loader, &ModelLoader::finished, this, &MainWindow::showLoadedModels);
    connect(loader, &ModelLoader::failed, this, [this](const QString& reason) {
        updateStatus();
        pendingSession.reset();
        sceneFiles->forget();
        emit problem(reason);
    });
    connect(sceneFiles, &SceneFileActions::modifiedChanged, this, &QWidget::setWindowModified);
    connect(sceneFiles, &SceneFileActions::problem, this, [this](const QString& text) {
        pendingSession.reset();
        updateStatus();
        emit problem(text);
    });
    connect(sceneFiles, &SceneFileActions::opened, this, [this](const QString& path) {
        addRecentFiles({ path });
        concludeOpening(path);
    });
    connect(sceneFiles, &SceneFileActions::saved, this, [this](const QString& path) {
        setShownTitle(path);
        addRecentFiles({ path });
    });
    connect(sessionPlayer, &SessionPlayer::finished, this, &MainWindow::concludeReplay);
    viewWidget->stage().commands().setListener([this](const QString& name) {
        sceneFiles->noteCommand(name);
        viewWidget->stage().edited();
    });
    viewWidget->stage().setRefusalCallback([this](const QString& text) { emit problem(text); });
    viewWidget->stage().setChangedCallback([this] {
        actions->update();
        updateStatus();
    });
}

MainWindow::~MainWindow()
{
    viewWidget->stage().setChangedCallback(nullptr);
    viewWidget->stage().commands().setListener(nullptr);
    delete sceneFiles;
    // Panels show tools, which end before the stage.
    delete docks;
    // The view is needed by what the window owns besides it.
    delete sessionPlayer;
}

// == Around the view

void MainWindow::addSurroundings()
{
    viewWidget->setAccessibleName(tr("View of the scene"));
    statusLine = new StatusLine(*statusBar());
    docks = new PanelDocks(*this, viewWidget->stage(), *tools);
    if (mode == Attendance::Attended) {
        docks->arrange();
    }
    actions = new WindowActions(*this, viewWidget->stage());
    docks->objects().addObjectActions(actions->objectActions());
    addToolBars(*this);
    if (mode == Attendance::Attended) {
        actions->setRecentFiles(memory::recentFiles());
    }
    connect(loader, &ModelLoader::progressed, statusLine, &StatusLine::setProgress);
    connect(statusLine, &StatusLine::stopLoadingAsked, this, &MainWindow::stopLoading);
    connect(docks, &PanelDocks::problem, this, &MainWindow::problem);
}

void MainWindow::renewSurroundings()
{
    const QByteArray layout = memory::stateOf(*this);
    const QString messages = docks->log().toPlainText();
    delete docks;
    delete actions;
    for (QToolBar* bar : findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly)) {
        delete bar;
    }
    delete menuBar();
    delete statusBar();
    addSurroundings();
    docks->log().setPlainText(messages);
    memory::restoreState(*this, layout);
    menuBar()->setVisible(!isWhole());
    statusBar()->setVisible(!isWhole());
    updateStatus();
    viewWidget->setFocus();
    if (auto* dialog = findChild<QDialog*>("settings")) {
        dialog->deleteLater();
        showSettings();
    }
}

void MainWindow::changeEvent(QEvent* event)
{
    // Not before the window is complete.
    if (event->type() == QEvent::LanguageChange && actions != nullptr) {
        renewSurroundings();
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::setShownTitle(const QString& file)
{
    const QString name = QFileInfo(file).fileName();
    setWindowTitle(name.isEmpty() ? "nbviewer[*]" : name + QStringLiteral("[*] - nbviewer"));
}

void MainWindow::updateStatus()
{
    statusLine->update(viewWidget->stage(), loader->isRunning(), viewWidget->frameText());
    docks->refresh();
}

// == View

void MainWindow::showObjectMenu(const osg::Pnt2f& px, const QPoint& screenPlace)
{
    Stage& stage = viewWidget->stage();
    const osg::NodePtr object = stage.objectAt(px);
    const std::vector<osg::NodePtr> selected = stage.selectedObjects();
    if (mode == Attendance::Unattended || isReplaying() || object == osg::NullFC ||
        stage.activeTool() != nullptr) {
        return;
    }
    QString error;
    if (std::find(selected.begin(), selected.end(), object) == selected.end()) {
        stage.commands().run("scene.select", QJsonArray { pathOf(object) }, error);
    }
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(actions->objectActions());
    menu->popup(screenPlace);
}

void MainWindow::suggestViewSize(const QSize& sizePx)
{
    viewWidget->fixSize(sizePx);
    adjustSize();
    QTimer::singleShot(0, this, [this] {
        const QSize wanted = size();
        viewWidget->fixSize({});
        resize(wanted);
    });
}

void MainWindow::showSettings()
{
    SettingsPanel::open(viewWidget->stage(), *settings, *this);
}

void MainWindow::showManual()
{
    const QDir program(QCoreApplication::applicationDirPath());
    for (const char* place :
         { "../share/doc/nbviewer/html/README.html", "../viewer/manual/README.html" }) {
        const QString file = program.absoluteFilePath(QLatin1String(place));
        if (QFileInfo::exists(file)) {
            auto* manual = new QTextBrowser;
            manual->setAttribute(Qt::WA_DeleteOnClose);
            manual->setWindowTitle(tr("Manual"));
            manual->setOpenExternalLinks(true);
            manual->resize(kManualSize);
            manual->setSource(QUrl::fromLocalFile(QDir::cleanPath(file)));
            manual->show();
            connect(this, &QObject::destroyed, manual, &QObject::deleteLater);
            return;
        }
    }
    emit problem(tr("The manual is not installed"));
}

void MainWindow::showPanelOfTool()
{
    const StageTool* tool = viewWidget->stage().activeTool();
    if (tool != nullptr && mode == Attendance::Attended && !isReplaying()) {
        docks->showPanelOf(QLatin1String(tool->name()));
    }
}

void MainWindow::showWhole(bool on)
{
    if (on == isWhole()) {
        return;
    }
    // Nothing of the steps in between is drawn.
    setUpdatesEnabled(false);
    QTimer::singleShot(kSettlingMs, this, [this] { setUpdatesEnabled(true); });
    if (on) {
        stateBeforeWhole = memory::stateOf(*this);
        for (QToolBar* bar : findChildren<QToolBar*>()) {
            bar->hide();
        }
        for (QDockWidget* dock : findChildren<QDockWidget*>()) {
            dock->hide();
        }
        setWindowState(windowState() | Qt::WindowFullScreen);
    } else {
        setWindowState(windowState() & ~Qt::WindowFullScreen);
        memory::restoreState(*this, stateBeforeWhole);
        stateBeforeWhole.clear();
    }
    menuBar()->setVisible(!on);
    statusBar()->setVisible(!on);
    viewWidget->setFocus();
    actions->update();
}

void MainWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape) {
        if (!nudge(*event)) {
            QMainWindow::keyPressEvent(event);
        }
    } else if (loader->isRunning()) {
        stopLoading();
    } else if (StageTool* tool = viewWidget->stage().activeTool();
               tool == nullptr || !tool->leaveMode()) {
        showWhole(false);
    }
}

bool MainWindow::nudge(const QKeyEvent& key)
{
    const QPoint way = key.key() == Qt::Key_Left ? QPoint(-1, 0)
        : key.key() == Qt::Key_Right             ? QPoint(1, 0)
        : key.key() == Qt::Key_Up                ? QPoint(0, 1)
        : key.key() == Qt::Key_Down              ? QPoint(0, -1)
                                                 : QPoint();
    StageTool* const tool = viewWidget->stage().activeTool();
    return !way.isNull() && tool != nullptr &&
        tool->nudge(way, key.modifiers().testFlag(Qt::ShiftModifier));
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!isReplaying() && !sceneFiles->mayReplace()) {
        event->ignore();
        return;
    }
    loader->cancel();
    sessionPlayer->stop();
    if (mode == Attendance::Attended) {
        showWhole(false);
        memory::keepLayout(*this, memory::stateOf(*this));
    }
    QMainWindow::closeEvent(event);
}

}  // namespace viewer
