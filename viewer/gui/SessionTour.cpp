// SPDX-License-Identifier: MIT
#include "viewer/gui/SessionTour.h"

#include "viewer/gui/MainWindow.h"
#include "viewer/gui/SessionPlayer.h"
#include "viewer/replay/Session.h"
#include "viewer/texts/FileRules.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QKeyEvent>

namespace viewer {
namespace {

constexpr qint64 kMostListBytes = 100000;

}  // namespace

QStringList SessionTour::readList(const QDir& folder, QString& error)
{
    const QString list = folder.filePath("tour.txt");
    QByteArray text;
    if (!readWhole(list, kMostListBytes, text, error)) {
        return {};
    }
    QStringList sessions;
    for (const QString& line : QString::fromUtf8(text).split('\n')) {
        const QString name = line.trimmed();
        if (!name.isEmpty() && !name.startsWith('#')) {
            sessions.append(folder.absoluteFilePath(name));
        }
    }
    if (sessions.isEmpty()) {
        error = QStringLiteral("%1: names no session").arg(list);
    }
    return sessions;
}

QDir SessionTour::shippedSessions()
{
    const QDir program(QCoreApplication::applicationDirPath());
    for (const char* place : { "../share/nbviewer/sessions", "../../../viewer/sessions" }) {
        const QDir folder(program.absoluteFilePath(QLatin1String(place)));
        if (folder.exists()) {
            return QDir(folder.canonicalPath());
        }
    }
    return QDir();
}

SessionTour::SessionTour(MainWindow& targetWindow, const QStringList& sessions,
                         const std::optional<QDir>& pictures)
    : QObject(&targetWindow)
    , window(targetWindow)
    , files(sessions)
    , pictureFolder(pictures)
{
    connect(&window, &MainWindow::replayFinished, this,
            [this] { conclude(window.player().getFailures()); });
    connect(&window, &MainWindow::problem, this, [this](const QString& text) {
        if (isSessionOpen && window.isReplaying()) {
            note(text);
        } else {
            conclude({ text });
        }
    });
    QCoreApplication::instance()->installEventFilter(this);
}

void SessionTour::start()
{
    window.player().setCaptionsShown(true);
    next = 0;
    running = true;
    playNext();
}

void SessionTour::pause(bool on)
{
    window.player().setPaused(on);
}

void SessionTour::skip()
{
    if (running) {
        window.stopReplay();
    }
}

void SessionTour::end()
{
    if (!running) {
        return;
    }
    running = false;
    window.stopReplay();
    emit finished();
}

void SessionTour::playNext()
{
    if (next >= files.size()) {
        end();
        return;
    }
    isSessionOpen = true;
    const QString file = files.at(next++);
    QString error;
    const std::optional<Session> session = readSessionFile(file, error);
    std::optional<QDir> pictures;
    if (session && pictureFolder) {
        const QString name = QStringLiteral("%1-%2")
                                 .arg(next, 2, 10, QLatin1Char('0'))
                                 .arg(QFileInfo(file).completeBaseName());
        pictures = QDir(pictureFolder->filePath(name));
        if (!pictureFolder->mkpath(name)) {
            error = QStringLiteral("%1: cannot be made").arg(pictures->path());
        }
    }
    if (error.isEmpty()) {
        window.replay(*session, pictures);
    } else {
        // Its line names the file already.
        isSessionOpen = false;
        failures.append(error);
        playNext();
    }
}

void SessionTour::note(const QString& failure)
{
    failures.append(QStringLiteral("%1: %2").arg(files.at(next - 1), failure));
}

void SessionTour::conclude(const QStringList& sessionFailures)
{
    if (!running || !isSessionOpen) {
        return;
    }
    isSessionOpen = false;
    for (const QString& failure : sessionFailures) {
        note(failure);
    }
    // Not within the player's signal, which is about the session that has ended.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (running) {
                playNext();
            }
        },
        Qt::QueuedConnection);
}

bool SessionTour::eventFilter(QObject* watched, QEvent* event)
{
    if (!running || !event->spontaneous() || event->type() != QEvent::KeyPress) {
        return QObject::eventFilter(watched, event);
    }
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Space:
        pause(!window.player().isPaused());
        return true;
    case Qt::Key_Right:
        skip();
        return true;
    case Qt::Key_Escape:
        end();
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}

}  // namespace viewer
