// SPDX-License-Identifier: MIT
#include "viewer/gui/MainWindow.h"

#include "viewer/core/ModelReader.h"
#include "viewer/core/SessionStart.h"
#include "viewer/core/StageTool.h"
#include "viewer/core/StageTools.h"
#include "viewer/gui/LogPanel.h"
#include "viewer/gui/MessageBar.h"
#include "viewer/gui/PanelDocks.h"
#include "viewer/gui/SessionPlayer.h"
#include "viewer/gui/SessionRecorder.h"
#include "viewer/gui/StatusLine.h"
#include "viewer/gui/ToolBars.h"
#include "viewer/gui/ViewWidget.h"
#include "viewer/gui/WindowActions.h"
#include "viewer/gui/WindowMemory.h"

#include <nbKernelServices/nbUndoService.h>

#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QImageReader>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>
#include <QUndoStack>

namespace viewer {
namespace {

/// A window that a window manager refuses the wanted size is waited for this often.
constexpr int kMaxSizeChecks = 200;
constexpr int kSizeCheckMs = 10;

/// Size at the first start, logical pixels, and the part of the screen that it takes at most.
constexpr QSize kFirstSize(1440, 900);
constexpr double kMostOfScreen = 0.94;

const char* const kSessionFilter = QT_TRANSLATE_NOOP("viewer::MainWindow", "Sessions (*.json)");

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
    , tools(std::make_unique<StageTools>(viewWidget->stage()))
{
    setShownTitle({});
    auto* centre = new QWidget(this);
    auto* layout = new QGridLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(viewWidget, 0, 0);
    setCentralWidget(centre);
    messageBar = new MessageBar(viewWidget);
    if (mode == Attendance::Attended) {
        shownTheme = memory::theme();
        applyTheme(shownTheme);
    }
    addSurroundings();
    if (mode == Attendance::Attended) {
        connect(this, &MainWindow::problem, messageBar, &MessageBar::showMessage);
        if (!memory::restoreLayout(*this)) {
            resize(kFirstSize.boundedTo(screen()->availableSize() * kMostOfScreen));
        }
    }
    connect(this, &MainWindow::problem, this,
            [this](const QString& text) { docks->log().append(nbLog::Level::Warning, text); });
    connect(viewWidget, &ViewWidget::stateChanged, this, &MainWindow::updateStatus);
    connect(viewWidget, &ViewWidget::drawingFailed, this, &MainWindow::problem);
    connect(viewWidget, &ViewWidget::filesDropped, this, &MainWindow::handleDroppedFiles);
    connect(loader, &ModelLoader::finished, this, &MainWindow::showLoadedModels);
    connect(loader, &ModelLoader::failed, this, [this](const QString& reason) {
        updateStatus();
        pendingSession.reset();
        emit problem(reason);
    });
    connect(nbUndoService::the()->getStack(), &QUndoStack::cleanChanged, this,
            [this](bool clean) { setWindowModified(!clean); });
    connect(sessionPlayer, &SessionPlayer::finished, this, &MainWindow::concludeReplay);
    viewWidget->stage().commands().setListener(
        [this](const QString& name, const QJsonValue& value, Commands::Moment moment) {
            if (moment == Commands::Moment::Final) {
                sessionRecorder->addCommand(name, value);
            }
            viewWidget->stage().edited();
        });
    viewWidget->stage().setChangedCallback([this] {
        actions->update();
        updateStatus();
    });
    viewWidget->setFocus();
}

MainWindow::~MainWindow()
{
    viewWidget->stage().setChangedCallback(nullptr);
    viewWidget->stage().commands().setListener(nullptr);
    // Panels show tools, which end before the stage.
    delete docks;
    // The service outlives the window, and the end of the stage empties the stack.
    nbUndoService::the()->getStack()->disconnect(this);
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
    const QVector<LogPanel::Entry> messages = docks->log().entries();
    delete docks;
    delete actions;
    for (QToolBar* bar : findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly)) {
        delete bar;
    }
    delete menuBar();
    delete statusBar();
    addSurroundings();
    for (const LogPanel::Entry& message : messages) {
        docks->log().append(message);
    }
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
    loader->cancel();
    shownFiles.clear();
    viewWidget->stage().showStartScene();
    setShownTitle({});
    updateStatus();
}

void MainWindow::openFiles(const QStringList& files, Opening opening)
{
    openingFiles = files;
    openingMode = opening;
    statusLine->setProgress(ModelLoader::Phase::Reading, files.value(0), 0);
    loader->start(files);
    updateStatus();
}

void MainWindow::showLoadedModels()
{
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
    pendingSession.reset();
    updateStatus();
}

void MainWindow::askForFiles(Opening opening)
{
    const QStringList files =
        QFileDialog::getOpenFileNames(this, tr("Open"), {}, modelFileFilter());
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
    if (picture.isNull()) {
        return false;
    }
    if (!picture.save(path)) {
        error = tr("%1: cannot be written").arg(path);
        return false;
    }
    return true;
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
        QMainWindow::keyPressEvent(event);
    } else if (loader->isRunning()) {
        stopLoading();
    } else {
        showWhole(false);
    }
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    loader->cancel();
    sessionPlayer->stop();
    if (mode == Attendance::Attended) {
        showWhole(false);
        memory::keepLayout(*this, memory::stateOf(*this));
    }
    QMainWindow::closeEvent(event);
}

// == Sessions

void MainWindow::replay(const Session& session, const std::optional<QDir>& pictures)
{
    sessionPlayer->stop();
    pendingSession = session;
    pendingPictures = pictures;
    sizeChecks = 0;
    if (!session.files.isEmpty()) {
        openFiles(session.files, Opening::Replace);
        return;
    }
    showStartScene();
    beginReplay();
}

void MainWindow::beginReplay()
{
    viewWidget->fixSize(pendingSession->sizePx);
    if (sizeChecks == 0) {
        adjustSize();
    }
    // The layout gives the view its size only when the window has got its own.
    const nbOSGWidget& renderWidget = viewWidget->stage().view();
    const QSize size(renderWidget.getWidth(), renderWidget.getHeight());
    if ((size != pendingSession->sizePx || !viewWidget->isVisible()) &&
        ++sizeChecks < kMaxSizeChecks) {
        QTimer::singleShot(kSizeCheckMs, this, [this] {
            if (pendingSession) {
                beginReplay();
            }
        });
        return;
    }
    const Session session = *pendingSession;
    pendingSession.reset();
    QString error;
    if (!beginSession(viewWidget->stage(), session, error)) {
        viewWidget->fixSize({});
        emit problem(error);
        return;
    }
    const auto pace = mode == Attendance::Attended ? SessionPlayer::Pace::AsRecorded
                                                   : SessionPlayer::Pace::AsFastAsPossible;
    sessionPlayer->start(session, pace, pendingPictures);
    actions->update();
}

void MainWindow::stopReplay()
{
    sessionPlayer->stop();
}

bool MainWindow::isReplaying() const
{
    return sessionPlayer->isPlaying();
}

void MainWindow::concludeReplay()
{
    if (mode == Attendance::Attended) {
        viewWidget->fixSize({});
    }
    actions->update();
    if (!sessionPlayer->getFailures().isEmpty() && mode == Attendance::Attended) {
        emit problem(sessionPlayer->getFailures().first());
    }
    emit replayFinished();
}

void MainWindow::record(bool on)
{
    if (on && !sessionRecorder->isRecording()) {
        sessionRecorder->start(shownFiles);
        showRecording();
    } else if (!on && sessionRecorder->isRecording()) {
        statusBar()->clearMessage();
        saveRecording();
    }
}

void MainWindow::showRecording()
{
    if (isRecording()) {
        statusBar()->showMessage(tr("Recording"));
    }
}

bool MainWindow::isRecording() const
{
    return sessionRecorder->isRecording();
}

void MainWindow::addCheckpoint()
{
    sessionRecorder->addCheckpoint();
}

void MainWindow::saveRecording()
{
    const Session session = sessionRecorder->stop();
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Save session"), QStringLiteral("session.json"), tr(kSessionFilter));
    QString error;
    if (!path.isEmpty() && !writeSessionFile(path, session, error)) {
        emit problem(error);
    }
}

void MainWindow::askForSession()
{
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Replay session"), {}, tr(kSessionFilter));
    if (!path.isEmpty()) {
        replayFile(path);
    }
}

void MainWindow::replayFile(const QString& path)
{
    QString error;
    const std::optional<Session> session = readSessionFile(path, error);
    if (session) {
        replay(*session, std::nullopt);
    } else {
        emit problem(error);
    }
}

}  // namespace viewer
