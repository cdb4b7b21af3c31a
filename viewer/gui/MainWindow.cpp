// SPDX-License-Identifier: MIT
#include "viewer/gui/MainWindow.h"

#include "viewer/gui/CaptionBar.h"
#include "viewer/gui/LogPanel.h"
#include "viewer/gui/MessageBar.h"
#include "viewer/gui/PanelDocks.h"
#include "viewer/gui/SceneFileActions.h"
#include "viewer/gui/SessionPlayer.h"
#include "viewer/gui/SessionRecorder.h"
#include "viewer/gui/StageTools.h"
#include "viewer/gui/StatusLine.h"
#include "viewer/gui/ToolBars.h"
#include "viewer/gui/ViewWidget.h"
#include "viewer/gui/WindowActions.h"
#include "viewer/gui/WindowMemory.h"
#include "viewer/loading/ModelReader.h"
#include "viewer/loading/PictureFile.h"
#include "viewer/stage/ObjectCommands.h"
#include "viewer/stage/StageTool.h"

#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QImageReader>
#include <QJsonArray>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QToolBar>

#include <algorithm>

namespace viewer {
namespace {

/// Size at the first start, logical pixels, and the part of the screen that it takes at most.
constexpr QSize kFirstSize(1440, 900);
constexpr double kMostOfScreen = 0.94;

bool isSession(const QString& file)
{
    return file.endsWith(QLatin1String(".json"), Qt::CaseInsensitive);
}

bool isPicture(const QString& file)
{
    const QByteArray suffix = QFileInfo(file).suffix().toLatin1().toLower();
    return QImageReader::supportedImageFormats().contains(suffix);
}

}  // namespace

MainWindow::MainWindow(Attendance attendance)
    : mode(attendance)
    , viewWidget(new ViewWidget)
    , loader(new ModelLoader(this))
    , sessionPlayer(new SessionPlayer(*viewWidget, *this, this))
    , sessionRecorder(new SessionRecorder(*viewWidget, this))
    , fullScreen(*this)
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
    viewWidget->setCoarseWhileMoving(mode == Attendance::Attended && memory::coarseWhileMoving());
    if (mode == Attendance::Attended) {
        shownTheme = memory::theme();
        applyTheme(shownTheme);
    }
    sceneFiles = new SceneFileActions(*this, viewWidget->stage(), *loader);
    addSurroundings();
    if (mode == Attendance::Attended) {
        connect(this, &MainWindow::problem, messageBar, &MessageBar::showMessage);
        sceneFiles->setQuestion(sceneFiles->dialog());
        sceneFiles->keepEdits(QFileInfo(QSettings().fileName()).dir(),
                              [this] { return viewWidget->lastFrame(); });
        connect(sessionPlayer, &SessionPlayer::captionChanged, new CaptionBar(viewWidget),
                &CaptionBar::showCaption);
        if (!memory::restoreLayout(*this)) {
            resize(kFirstSize.boundedTo(screen()->availableSize() * kMostOfScreen));
        }
    }
    connectParts();
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
    connect(sceneFiles, &SceneFileActions::opened, this, &MainWindow::sceneOpened);
    connect(sceneFiles, &SceneFileActions::saved, this, [this](const QString& path) {
        shownFiles = QStringList { path };
        setShownTitle(QFileInfo(path).fileName());
        addRecentFiles(shownFiles);
    });
    connect(sessionPlayer, &SessionPlayer::finished, this, &MainWindow::concludeReplay);
    viewWidget->stage().commands().setListener(
        [this](const QString& name, const QJsonValue& value, Commands::Moment moment) {
            if (moment == Commands::Moment::Final) {
                sessionRecorder->addCommand(name, value);
            }
            sceneFiles->noteCommand(name);
            viewWidget->stage().edited();
        });
    viewWidget->stage().setHeldCallback(
        [this] { emit problem(tr("The view is held: \"Hold the view\" (Shift+H) lets it go")); });
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
    delete sessionRecorder;
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
    docks->setObjectActions(actions->objectActions());
    addToolBars(*this);
    if (mode == Attendance::Attended) {
        actions->setRecentFiles(memory::recentFiles());
    }
    connect(actions, &WindowActions::shortcutUsed, sessionRecorder, &SessionRecorder::addShortcut);
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
    showRecording();
    updateStatus();
    viewWidget->setFocus();
}

void MainWindow::changeEvent(QEvent* event)
{
    // Not before the window is complete.
    if (event->type() == QEvent::LanguageChange && actions != nullptr) {
        renewSurroundings();
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::setShownTitle(const QString& name)
{
    setWindowTitle(name.isEmpty() ? QStringLiteral("nbviewer[*]")
                                  : name + QStringLiteral("[*] - nbviewer"));
}

void MainWindow::updateStatus()
{
    Stage& stage = viewWidget->stage();
    statusLine->update(stage, loader->isRunning());
    statusLine->showFrame(viewWidget->frameText());
    docks->refresh();
}

// == Files

void MainWindow::showStartScene()
{
    if (!pendingSession && !sceneFiles->mayReplace()) {
        return;
    }
    loader->cancel();
    shownFiles.clear();
    viewWidget->stage().showStartScene();
    sceneFiles->replaced();
    setShownTitle({});
    updateStatus();
}

void MainWindow::openFiles(const QStringList& files, Opening opening)
{
    const bool isScene = std::any_of(files.begin(), files.end(), &isSceneFileName);
    if (isScene && (files.size() > 1 || opening == Opening::Add)) {
        emit problem(tr("%1: a scene can only be opened by itself").arg(files.first()));
        return;
    }
    if (opening == Opening::Replace && !pendingSession && !sceneFiles->mayReplace()) {
        return;
    }
    openingFiles = files;
    openingMode = opening;
    statusLine->setProgress(ModelLoader::Phase::Reading, files.value(0), 0);
    sceneFiles->forget();
    if (isScene) {
        sceneFiles->open(files.first(), !pendingSession || pendingSession->areFilesChosen);
    } else {
        loader->start(files);
    }
    updateStatus();
}

void MainWindow::sceneOpened(const QString& path, bool byCommand)
{
    shownFiles = QStringList { path };
    addRecentFiles(shownFiles);
    setShownTitle(QFileInfo(path).fileName());
    if (!byCommand) {
        sessionRecorder->addCommand(QStringLiteral("scene.open"), path);
    }
    actions->update();
    updateStatus();
    if (pendingSession) {
        beginReplay();
    }
    emit filesShown();
}

void MainWindow::showLoadedModels()
{
    if (sceneFiles->isOpening()) {
        sceneFiles->conclude();
        return;
    }
    Stage& stage = viewWidget->stage();
    const bool replaced = openingMode == Opening::Replace || stage.isEmpty();
    if (openingMode == Opening::Replace) {
        stage.clear();
        shownFiles.clear();
    }
    QStringList warnings;
    osg::NodePtr last;
    for (const BuiltModel& model : loader->takeModels()) {
        last = stage.add(model);
        warnings.append(model.warnings);
    }
    for (const QString& file : openingFiles) {
        shownFiles.append(QFileInfo(file).absoluteFilePath());
    }
    addRecentFiles(openingFiles);
    if (openingMode == Opening::Replace) {
        sceneFiles->replaced();
    } else {
        sceneFiles->touch();
    }
    stage.frameAll(replaced);
    stage.select(last);
    if (stage.gizmo().shown() == Gizmo::None) {
        stage.showGizmo(Gizmo::Universal);
    }
    actions->update();
    updateStatus();
    setShownTitle(QFileInfo(openingFiles.value(0)).fileName());
    for (const QString& warning : warnings) {
        docks->log().append(nbLog::Level::Warning, warning);
    }
    if (!warnings.isEmpty() && mode == Attendance::Attended) {
        messageBar->showMessage(warnings.first());
    }
    if (pendingSession) {
        beginReplay();
    }
    emit filesShown();
}

void MainWindow::addRecentFiles(const QStringList& files)
{
    if (mode == Attendance::Attended) {
        actions->setRecentFiles(memory::addRecentFiles(files));
    }
}

void MainWindow::stopLoading()
{
    loader->cancel();
    sceneFiles->forget();
    pendingSession.reset();
    updateStatus();
}

void MainWindow::askForFiles(Opening opening)
{
    const QString scenes = opening == Opening::Replace
        ? QStringLiteral("*.") + QLatin1String(kSceneSuffix)
        : QString();
    const QStringList files =
        QFileDialog::getOpenFileNames(this, tr("Open"), {}, modelFileFilter(scenes));
    if (!files.isEmpty()) {
        openFiles(files, opening);
    }
}

void MainWindow::askForPicture()
{
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Save picture"), QStringLiteral("view.png"), tr("Pictures (*.png *.jpg *.bmp)"));
    QString error;
    if (!path.isEmpty() && !savePicture(path, error)) {
        emit problem(error);
    }
}

bool MainWindow::savePicture(const QString& path, QString& error)
{
    const QImage picture = viewWidget->takePicture(error);
    return !picture.isNull() && writePicture(path, picture, error);
}

void MainWindow::handleDroppedFiles(const QStringList& files, const osg::Pnt2f& px)
{
    const QString& file = files.first();
    if (files.size() > 1 || (!isPicture(file) && !isSession(file))) {
        openFiles(files, Opening::Replace);
    } else if (isSession(file)) {
        replayFile(file);
    } else {
        QString error;
        if (viewWidget->stage().takePicture(file, px, error)) {
            showPanelOfTool();
        } else {
            emit problem(error.isEmpty() ? tr("%1: drop pictures on an object").arg(file) : error);
        }
    }
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
        stage.commands().run(QStringLiteral("scene.select"), QJsonArray { pathOf(object) }, error);
    }
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(actions->objectActions());
    menu->popup(screenPlace);
}

void MainWindow::showEffectBuffer(bool on)
{
    viewWidget->showEffectBuffer(on);
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

void MainWindow::setTheme(Theme theme)
{
    shownTheme = theme;
    applyTheme(theme);
    if (mode == Attendance::Attended) {
        memory::keepTheme(theme);
    }
}

void MainWindow::setCoarseWhileMoving(bool on)
{
    viewWidget->setCoarseWhileMoving(on);
    if (mode == Attendance::Attended) {
        memory::keepCoarseWhileMoving(on);
    }
}

void MainWindow::setLanguage(Language language)
{
    applyLanguage(language);
    if (mode == Attendance::Attended) {
        memory::keepLanguage(language);
    }
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
    if (fullScreen.set(on)) {
        viewWidget->setFocus();
        actions->update();
    }
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
