// SPDX-License-Identifier: MIT
#include "viewer/scenes/Recovery.h"

#include <QCoreApplication>
#include <QFile>
#include <QThread>

namespace viewer {
namespace {

const QString kEnding = QStringLiteral(".nbscene");

QString lockOf(const QDir& folder, const QString& name)
{
    return folder.filePath(name + QStringLiteral(".lock"));
}

}  // namespace

Recovery::Recovery(const QDir& wanted)
    : folder(wanted)
    , name(QStringLiteral("recovery-%1").arg(QCoreApplication::applicationPid()))
    , lock((folder.mkpath(QStringLiteral(".")), lockOf(folder, name)))
{
    // Only the end of its process makes a lock void, no matter how old it is.
    lock.setStaleLockTime(0);
    lock.tryLock();
}

Recovery::~Recovery()
{
    forget();
}

void Recovery::keep(const SceneDocument& document)
{
    if (writing && writing->isRunning()) {
        return;
    }
    wait();
    writing.reset(QThread::create([this, document] {
        QString error;
        isWritten = writeSceneFile(file(), document, error);
    }));
    writing->start();
}

void Recovery::forget()
{
    wait();
    QFile::remove(file());
}

bool Recovery::wait()
{
    if (writing) {
        writing->wait();
        writing.reset();
    }
    return isWritten;
}

std::optional<QDateTime> Recovery::takeUp()
{
    const QFileInfoList files =
        folder.entryInfoList({ QStringLiteral("recovery-*") + kEnding }, QDir::Files, QDir::Time);
    for (const QFileInfo& left : files) {
        QLockFile other(lockOf(folder, left.completeBaseName()));
        other.setStaleLockTime(0);
        if (left.completeBaseName() != name && other.tryLock(0)) {
            const QDateTime time = left.lastModified();
            forget();
            if (QFile::rename(left.filePath(), file())) {
                return time;
            }
        }
    }
    return std::nullopt;
}

QString Recovery::file() const
{
    return folder.absoluteFilePath(name + kEnding);
}

}  // namespace viewer
