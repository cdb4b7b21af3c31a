// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/core/ModelData.h"

#include <QObject>
#include <QStringList>

#include <atomic>
#include <memory>
#include <vector>

class QThread;

namespace viewer {

/// Reads model files in a thread of its own; one reading at a time.
class ModelLoader : public QObject
{
    Q_OBJECT

public:
    explicit ModelLoader(QObject* parent = nullptr);
    ModelLoader(const ModelLoader&) = delete;
    ModelLoader& operator=(const ModelLoader&) = delete;
    /// Stops a running reading and waits for its thread.
    ~ModelLoader() override;

    /// Begins to read; a running reading is given up without a word. Answers with finished() or
    /// failed() later.
    void start(const QStringList& files);
    /// Gives a running reading up; neither finished() nor failed() comes.
    void cancel();
    bool isRunning() const;
    /// Hands over what the last successful reading gave, one model for each file; empties the
    /// store.
    std::vector<ModelData> takeModels();

signals:
    /// @param percent  0 .. 100 of all files
    void progressed(const QString& file, int percent);
    void finished();
    /// @param reason  one line that begins with the file
    void failed(const QString& reason);

private:
    /// What one reading shares with its thread.
    struct Reading
    {
        QStringList files;
        std::vector<ModelData> models;
        QString error;
        std::atomic<bool> cancelled { false };
    };

    void read(const std::shared_ptr<Reading>& reading);
    void conclude(const std::shared_ptr<Reading>& reading);

    std::shared_ptr<Reading> current;
    std::vector<ModelData> models;
    std::vector<QThread*> threads;
};

}  // namespace viewer
