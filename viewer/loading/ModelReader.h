// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/loading/ModelData.h"
#include "viewer/loading/ModelFiles.h"

#include <memory>
#include <optional>

class QProcess;

namespace viewer {

/// Reads model files (OBJ, PLY, STL, glTF, GLB, 3DS, ...) and pictures through a program of its
/// own, since a stranger's file can make its readers fault, loop and take all memory: whatever
/// happens there is one line here. One program serves all files of a loading.
///
/// Touches no scene graph and no widget, so that any thread may use one; only that thread.
class ModelReader
{
public:
    /// What reading one file may take.
    struct Limits
    {
        static constexpr qint64 kUsualMemory = 4LL << 30;
        static constexpr int kUsualPatienceMs = 30000;

        qint64 memoryBytes = kUsualMemory;
        /// Without progress; a second for each MB comes on top. The whole may take 20 times that.
        int patienceMs = kUsualPatienceMs;
        QString program {};  ///< that reads; empty for that of this system
    };

    ModelReader();
    explicit ModelReader(const Limits& newLimits);
    ModelReader(const ModelReader&) = delete;
    ModelReader& operator=(const ModelReader&) = delete;
    /// Ends the program.
    ~ModelReader();

    /// Reads a file. Never throws.
    /// @param progress  asked about twenty times a second whether to go on; may be empty
    /// @param error  one line that begins with the path when the answer is nothing
    std::optional<ModelData> read(const QString& path, const ReadProgress& progress,
                                  QString& error);

    /// Name and version of the library that reads model files, such as "Assimp 5.2.4".
    static QString libraryVersion();

private:
    class Reading;

    bool start(QString& error);
    void end();

    Limits limits;
    std::unique_ptr<QProcess> program;
};

/// Reads one file with a ModelReader of its own.
std::optional<ModelData> readModelFile(const QString& path, const ReadProgress& progress,
                                       QString& error);

}  // namespace viewer
