// SPDX-License-Identifier: MIT
// The part of the window that has to do with files: opening, saving of pictures, replaying.
#include "viewer/gui/LogPanel.h"
#include "viewer/gui/MainWindow.h"
#include "viewer/gui/MessageBar.h"
#include "viewer/gui/PanelDocks.h"
#include "viewer/gui/SceneFileActions.h"
#include "viewer/gui/SessionPlayer.h"
#include "viewer/gui/SessionTour.h"
#include "viewer/gui/StatusLine.h"
#include "viewer/gui/ViewWidget.h"
#include "viewer/gui/WindowActions.h"
#include "viewer/gui/WindowMemory.h"
#include "viewer/loading/ModelReader.h"
#include "viewer/loading/PictureFile.h"
#include "viewer/replay/SessionStage.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QImageReader>
#include <QStatusBar>
#include <QTimer>

#include <algorithm>

namespace viewer {
namespace {

bool isSession(const QString& file)
{
    return file.endsWith(".json", Qt::CaseInsensitive);
}

bool isPicture(const QString& file)
{
    const QByteArray suffix = QFileInfo(file).suffix().toLatin1().toLower();
    return QImageReader::supportedImageFormats().contains(suffix);
}

/// A window that a window manager refuses the wanted size is waited for this often.
constexpr int kMaxSizeChecks = 200;
constexpr int kSizeCheckMs = 10;
constexpr int kToldMs = 8000;  ///< how long a file that was written is told of

const char* const kSessionFilter = QT_TRANSLATE_NOOP("viewer::MainWindow", "Sessions (*.json)");

}  // namespace

// == Files

void MainWindow::showStartScene()
{
    if (!pendingSession && !sceneFiles->mayReplace()) {
        return;
    }
    loader->cancel();
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

void MainWindow::concludeOpening(const QString& file)
{
    setShownTitle(file);
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
    }
    QStringList warnings;
    osg::NodePtr last;
    for (const BuiltModel& model : loader->takeModels()) {
        last = stage.add(model);
        warnings.append(model.warnings);
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
    for (const QString& warning : warnings) {
        docks->log().append(nbLog::Level::Warning, warning);
    }
    if (!warnings.isEmpty() && mode == Attendance::Attended) {
        messageBar->showMessage(warnings.first());
    }
    concludeOpening(openingFiles.value(0));
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
    askAndWrite(tr("Save picture"), "view.png", tr("Pictures (*.png *.jpg *.bmp)"),
                [this](auto& path, auto& error) { return savePicture(path, error); });
}

void MainWindow::askAndWrite(const QString& title, const QString& suggested, const QString& filter,
                             const std::function<bool(const QString&, QString&)>& write)
{
    const QString path = askWhereToSave(*this, title, suggested, filter);
    QString error;
    if (!path.isEmpty() && write(path, error)) {
        statusBar()->showMessage(tr("%1 has been written").arg(path), kToldMs);
    } else if (!path.isEmpty()) {
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

SessionTour* MainWindow::goOnTour(const std::optional<QDir>& pictures)
{
    QString error;
    const QStringList sessions = SessionTour::readList(SessionTour::shippedSessions(), error);
    if (sessions.isEmpty()) {
        emit problem(error);
    }
    if (sessions.isEmpty() || !sceneFiles->mayReplace()) {
        return nullptr;
    }
    auto* tour = new SessionTour(*this, sessions, pictures);
    connect(tour, &SessionTour::finished, tour, &QObject::deleteLater);
    tour->start();
    return tour;
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
        // A session begins with the usual ones.
        settings->restore();
    }
    actions->update();
    emit replayFinished();
    if (!sessionPlayer->getFailures().isEmpty() && mode == Attendance::Attended) {
        emit problem(sessionPlayer->getFailures().first());
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
    if (!session) {
        emit problem(error);
    } else if (sceneFiles->mayReplace()) {
        replay(*session, std::nullopt);
    }
}

}  // namespace viewer
