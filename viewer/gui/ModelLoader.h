// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/loading/BuiltModel.h"
#include "viewer/loading/ModelData.h"

#include <QObject>
#include <QStringList>

#include <atomic>
#include <functional>
#include <memory>
#include <vector>

class QThread;

namespace nbec::interaction {
class PickTreeBuilder;
}  // namespace nbec::interaction

namespace viewer {

/// Makes models of files without keeping the window waiting; one loading at a time.
///
/// Files are read in a thread. Then the nodes are made, in the user-interface thread, to which the
/// scene graph belongs; between two models it handles events. The search trees of the nodes, which
/// the first click would otherwise wait for, are built in a thread again. Nothing hangs in the
/// scene until the models are taken, so that a loading which is given up leaves no trace.
class ModelLoader : public QObject
{
    Q_OBJECT

public:
    /// What is being done.
    enum class Phase
    {
        Reading,
        Preparing  ///< nodes and search trees
    };
    Q_ENUM(Phase)

    explicit ModelLoader(QObject* parent = nullptr);
    ModelLoader(const ModelLoader&) = delete;
    ModelLoader& operator=(const ModelLoader&) = delete;
    /// Stops a running loading and waits for its threads.
    ~ModelLoader() override;

    /// Begins to load; a running loading is given up without a word. Answers with finished() or
    /// failed() later.
    void start(const QStringList& files);
    /// Gives a running loading up; neither finished() nor failed() comes.
    void cancel();

    bool isRunning() const { return current != nullptr; }

    /// Hands over what the last successful loading gave, one model for each file, with search
    /// trees; empties the store.
    std::vector<BuiltModel> takeModels() { return std::move(models); }

signals:
    /// @param file  that is being read or prepared
    /// @param percent  0 .. 100 of everything, never falling
    void progressed(viewer::ModelLoader::Phase phase, const QString& file, int percent);
    void finished();
    /// @param reason  one line that begins with the file
    void failed(const QString& reason);

private:
    /// What one loading shares with its threads.
    struct Loading
    {
        QStringList files;
        std::vector<ModelData> models;
        std::vector<BuiltModel> built;  ///< touched in the user-interface thread only
        std::unique_ptr<nbec::interaction::PickTreeBuilder> trees;
        QString error;
        std::atomic<bool> cancelled { false };
        std::atomic<int> lastPercent { -1 };
    };

    using Shared = std::shared_ptr<Loading>;

    /// Does work in a thread, then the next step in this one unless the loading was given up.
    void runThread(const Shared& loading, std::function<void()> work, std::function<void()> then);
    bool report(Loading& loading, Phase phase, int file, double fraction);
    void read(Loading& loading);
    void build(const Shared& loading);
    void buildTrees(const Shared& loading);
    void conclude(const Shared& loading);

    Shared current;
    std::vector<BuiltModel> models;
    std::vector<QThread*> threads;
};

}  // namespace viewer
