// SPDX-License-Identifier: MIT
#include "viewer/gui/StartUp.h"

#include "viewer/gui/MainWindow.h"
#include "viewer/gui/SceneFileActions.h"
#include "viewer/gui/SessionPlayer.h"
#include "viewer/gui/SessionTour.h"
#include "viewer/gui/ViewWidget.h"
#include "viewer/texts/FileRules.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>

namespace viewer {
namespace {

/// Pictures are named on standard output, for whoever started the program.
void announce(const QString& path)
{
    std::fprintf(stdout, "%s\n", qPrintable(oneLine(path)));
    std::fflush(stdout);
}

}  // namespace

StartUp::StartUp(MainWindow& targetWindow, const CommandLine& commandLine,
                 const std::optional<Session>& newSession)
    : QObject(&targetWindow)
    , window(targetWindow)
    , options(commandLine)
    , session(newSession)
{ }

void StartUp::complain(const QString& text)
{
    std::fprintf(stderr, "nbviewer: %s\n", qPrintable(oneLine(text.simplified())));
}

void StartUp::run()
{
    if (options.tourWanted) {
        window.show();
        goOnTour();
        return;
    }
    connect(&window, &MainWindow::problem, this, &StartUp::giveUp);
    if (session) {
        // The command line's files and size stand in for the session's own.
        session->areFilesChosen = !options.files.isEmpty();
        session->files = session->areFilesChosen ? options.files : session->files;
        session->sizePx = options.sizePx.isValid() ? options.sizePx : session->sizePx;
        window.show();
        playSession();
        return;
    }
    if (options.isUnattended()) {
        window.view().fixSize(options.sizePx);
        window.adjustSize();
    }
    window.show();
    // How many device pixels a logical one has is known only once the window is on its screen.
    if (!options.isUnattended() && options.sizePx.isValid()) {
        window.suggestViewSize(options.sizePx);
    }
    showFiles();
}

void StartUp::showFiles()
{
    if (options.files.isEmpty()) {
        window.showStartScene();
        // The layout has settled when the events of showing the window are done.
        QTimer::singleShot(0, this, &StartUp::conclude);
        return;
    }
    connect(&window, &MainWindow::filesShown, this, &StartUp::conclude);
    window.openFiles(options.files, MainWindow::Opening::Replace);
}

void StartUp::playSession()
{
    connect(&window.player(), &SessionPlayer::pictureWritten, this, &announce);
    connect(&window, &MainWindow::replayFinished, this, &StartUp::concludeSession);
    window.replay(*session, QDir(options.outputFolder.isEmpty() ? "." : options.outputFolder));
}

void StartUp::goOnTour()
{
    connect(&window, &MainWindow::problem, this, &StartUp::giveUp);
    std::optional<QDir> pictures;
    if (options.isUnattended()) {
        pictures = QDir(options.outputFolder);
        connect(&window.player(), &SessionPlayer::pictureWritten, this, &announce);
    }
    SessionTour* const tour = window.goOnTour(pictures);
    // What goes wrong from now on is the tour's to tell.
    disconnect(&window, &MainWindow::problem, this, nullptr);
    if (tour != nullptr) {
        connect(tour, &SessionTour::finished, this, [tour] {
            for (const QString& failure : tour->getFailures()) {
                complain(failure);
            }
            QCoreApplication::exit(tour->getFailures().isEmpty() ? 0 : kCheckpointStatus);
        });
    }
}

void StartUp::concludeSession()
{
    const QStringList failures = window.player().getFailures();
    for (const QString& failure : failures) {
        complain(QStringLiteral("%1: %2").arg(options.session, failure));
    }
    if (!failures.isEmpty()) {
        QCoreApplication::exit(kCheckpointStatus);
        return;
    }
    conclude();
}

void StartUp::conclude()
{
    // What goes wrong from now on is the window's to tell.
    disconnect(&window, &MainWindow::filesShown, this, nullptr);
    if (!options.screenshot.isEmpty()) {
        QString error;
        if (!window.savePicture(options.screenshot, error)) {
            giveUp(error);
            return;
        }
        announce(options.screenshot);
    }
    if (options.isUnattended()) {
        QCoreApplication::exit(0);
    } else {
        disconnect(&window, &MainWindow::problem, this, nullptr);
        window.scenes().offerKept();
    }
}

void StartUp::giveUp(const QString& text)
{
    complain(session ? QStringLiteral("%1: %2").arg(options.session, text) : text);
    QCoreApplication::exit(kBadInputStatus);
}

}  // namespace viewer
