// SPDX-License-Identifier: MIT
#include "viewer/scenes/Recovery.h"

#include "viewer/loading/PictureDecoding.h"
#include "viewer/texts/Text.h"

#include <QFile>
#include <QFileInfo>

#include <chrono>

#include <sys/file.h>

namespace viewer {
namespace {

const QString kScenes = "recovery-*.nbscene";
const QString kLocks = "recovery-*.lock";
constexpr const char* kPicture = ".png";
constexpr int kMostProcesses = 1000;
constexpr QSize kPicturePx(320, 200);

/// The file of the same name with another ending.
QString beside(const QString& file, const char* ending)
{
    const QFileInfo info(file);
    return info.dir().absoluteFilePath(info.completeBaseName() + QLatin1String(ending));
}

/// Takes the lock of a scene's file. The system lets go of it when a process ends, however it does;
/// no number of a process or name of a machine has to be believed.
/// @return null if a process has it; removed when the last count goes
std::shared_ptr<QFile> lockOf(const QString& file)
{
    auto lock = std::make_unique<QFile>(beside(file, ".lock"));
    // Read and written: neither waits at a pipe nor empties what a link leads to. One that is there
    // no more was that of a process that has just ended.
    if (!lock->open(QIODevice::ReadWrite) || flock(lock->handle(), LOCK_EX | LOCK_NB) != 0 ||
        !lock->exists()) {
        return nullptr;
    }
    return { lock.release(), [](QFile* held) {
                // While it is still held, so that it is nobody else's.
                QFile::remove(held->fileName());
                delete held;
            } };
}

}  // namespace

Recovery::Recovery(const QDir& wanted)
    : folder(wanted)
{
    folder.mkpath(".");
    for (int number = 1; !lock && number <= kMostProcesses; ++number) {
        ownFile = folder.absoluteFilePath(QStringLiteral("recovery-%1.nbscene").arg(number));
        lock = QFile::exists(ownFile) ? nullptr : lockOf(ownFile);
    }
}

Recovery::~Recovery()
{
    forget();
}

bool Recovery::keep(SceneDocument document, const QImage& frame)
{
    if (!lock) {
        fault = Text::tr("%1: cannot be written").arg(ownFile);
    }
    if (!lock || isWriting()) {
        return false;
    }
    wait();
    auto write = [file = ownFile, kept = std::move(document), frame] {
        QString error;
        if (!frame.isNull()) {
            writePicture(beside(file, kPicture),
                         frame.scaled(kPicturePx, Qt::KeepAspectRatio, Qt::SmoothTransformation),
                         error);
        }
        return writeSceneFile(file, kept, error) ? QString() : error;
    };
    // Where the system has no thread left, wait() writes.
    writing = std::async(std::launch::async | std::launch::deferred, std::move(write));
    return true;
}

bool Recovery::isWriting() const
{
    return writing.valid() &&
        writing.wait_for(std::chrono::seconds(0)) == std::future_status::timeout;
}

void Recovery::forget()
{
    wait();
    if (lock) {
        discard(ownFile);
    }
}

QString Recovery::wait()
{
    if (writing.valid()) {
        fault = writing.get();
    }
    return fault;
}

std::optional<Recovery::Kept> Recovery::find()
{
    for (const QFileInfo& left : folder.entryInfoList({ kLocks }, QDir::Files)) {
        lockOf(left.filePath());  // goes if nobody has it
    }
    for (const QFileInfo& left : folder.entryInfoList({ kScenes }, QDir::Files, QDir::Time)) {
        const QString file = left.absoluteFilePath();
        if (auto held = lockOf(file)) {
            QString error;
            return Kept { file, left.lastModified(),
                          decodePictureFile(beside(file, kPicture), error), std::move(held) };
        }
    }
    return std::nullopt;
}

bool Recovery::takeUp(const Kept& kept)
{
    forget();
    QFile::rename(beside(kept.file, kPicture), beside(ownFile, kPicture));
    return QFile::rename(kept.file, ownFile);
}

void Recovery::discard(const QString& file)
{
    QFile::remove(file);
    QFile::remove(beside(file, kPicture));
}

}  // namespace viewer
