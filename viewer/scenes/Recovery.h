// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/scenes/SceneDocument.h"

#include <QDateTime>
#include <QLockFile>

#include <memory>

class QThread;

namespace viewer {

/// Keeps an edited scene in a file of this process, from which the next one takes it up when this
/// one is killed. A lock says that the process still runs; its regular end leaves nothing.
class Recovery
{
public:
    /// @param folder  made if it is not there
    explicit Recovery(const QDir& folder);
    Recovery(const Recovery&) = delete;
    Recovery& operator=(const Recovery&) = delete;
    ~Recovery();

    /// Begins to write a scene in a thread; the file is replaced only when everything is on the
    /// disk. While the scene before is still being written, nothing.
    void keep(const SceneDocument& document);
    /// Removes the file: there is nothing to be lost.
    void forget();
    /// Waits until what keep() began is on the disk. @return false if it cannot be written
    bool wait();

    /// Makes the newest file of a process that did not end regularly that of this one.
    /// @return when it was written; nothing if there is none
    std::optional<QDateTime> takeUp();

    /// Absolute path of this process's file, whether there is one or not.
    QString file() const;

private:
    QDir folder;
    QString name;  ///< of file and lock, without ending
    QLockFile lock;
    std::unique_ptr<QThread> writing;
    bool isWritten = true;
};

}  // namespace viewer
