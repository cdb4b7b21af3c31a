// SPDX-License-Identifier: MIT
// Replaying, the part of the window that has to do with sessions.
#include "viewer/gui/MainWindow.h"
#include "viewer/gui/SceneFileActions.h"
#include "viewer/gui/SessionPlayer.h"
#include "viewer/gui/SessionTour.h"
#include "viewer/gui/ViewWidget.h"
#include "viewer/gui/WindowActions.h"
#include "viewer/replay/SessionStage.h"

#include <QFileDialog>
#include <QTimer>

namespace viewer {
namespace {

/// A window that a window manager refuses the wanted size is waited for this often.
constexpr int kMaxSizeChecks = 200;
constexpr int kSizeCheckMs = 10;

const char* const kSessionFilter = QT_TRANSLATE_NOOP("viewer::MainWindow", "Sessions (*.json)");

}  // namespace

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
