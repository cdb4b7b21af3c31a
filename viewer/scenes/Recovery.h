// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/scenes/SceneDocument.h"

#include <QDateTime>
#include <QImage>

#include <future>
#include <memory>

class QFile;

namespace viewer {

/// Keeps an edited scene in a file of this process, from which the next one takes it up when this
/// one is killed, and the picture that was shown last beside it. A lock says that the process still
/// runs; its regular end leaves nothing.
class Recovery
{
public:
    /// What a process kept that did not end regularly. Nobody else finds it while this is there.
    struct Kept
    {
        QString file;  ///< absolute
        QDateTime time;  ///< when it was written
        QImage picture;  ///< null for none
        std::shared_ptr<QFile> lock;
    };

    /// @param folder  made if it is not there
    explicit Recovery(const QDir& folder);
    Recovery(const Recovery&) = delete;
    Recovery& operator=(const Recovery&) = delete;
    ~Recovery();

    /// Begins to write a scene in a thread; the file is replaced only when everything is on the
    /// disk. @param frame  what is shown, at any size; null for none
    /// @return false while the scene before is still being written, and without a lock
    bool keep(SceneDocument document, const QImage& frame);
    bool isWriting() const;
    /// Removes the file: there is nothing to be lost.
    void forget();
    /// Waits until what keep() began is on the disk. @return why it is not, one line; "" if it is
    QString wait();

    /// The newest scene of a process that did not end regularly; nothing if there is none.
    std::optional<Kept> find();
    /// Makes what was found that of this process. @return false if it is gone
    bool takeUp(const Kept& kept);
    /// Removes a scene and its picture.
    static void discard(const QString& file);

    /// Absolute path of this process's file, whether there is one or not.
    const QString& file() const { return ownFile; }

private:
    QDir folder;
    QString ownFile;
    std::shared_ptr<QFile> lock;  ///< null where the folder cannot be written to
    std::future<QString> writing;  ///< why it is not on the disk, "" if it is
    QString fault;  ///< of the last one written, or that there is no lock
};

}  // namespace viewer
