// SPDX-License-Identifier: MIT
#include "viewer/gui/ModelLoader.h"

#include "viewer/loading/ModelReader.h"

#include <nbInteraction/PickTreeBuilder.h>

#include <QThread>
#include <QTimer>

#include <algorithm>

namespace viewer {
namespace {

constexpr double kPercent = 100.0;

/// Of the whole time; reading and converting take longer than trees by far.
constexpr double kReadingShare = 0.75;

}  // namespace

ModelLoader::ModelLoader(QObject* parent)
    : QObject(parent)
{
    // Goes from thread to thread by value.
    qRegisterMetaType<Phase>();
}

ModelLoader::~ModelLoader()
{
    cancel();
    for (QThread* thread : threads) {
        thread->wait();
        delete thread;
    }
}

void ModelLoader::start(const QStringList& files)
{
    cancel();
    const auto loading = std::make_shared<Loading>();
    loading->files = files;
    current = loading;
    // The thread's own count of the loading would end in the thread; then() keeps one here.
    runThread(
        loading, [this, raw = loading.get()] { read(*raw); }, [this, loading] { build(loading); });
}

void ModelLoader::cancel()
{
    if (current) {
        current->cancelled = true;
        current.reset();
    }
}

void ModelLoader::runThread(const Shared& loading, std::function<void()> work,
                            std::function<void()> then)
{
    QThread* thread = QThread::create(std::move(work));
    threads.push_back(thread);
    connect(thread, &QThread::finished, this, [this, thread, loading, next = std::move(then)] {
        threads.erase(std::remove(threads.begin(), threads.end(), thread), threads.end());
        thread->deleteLater();
        if (loading == current) {
            next();
        }
    });
    thread->start();
}

/// Any thread. @return whether to go on
bool ModelLoader::report(Loading& loading, Phase phase, int file, double fraction)
{
    const int percent = qRound(kPercent * fraction);
    if (percent > loading.lastPercent && !loading.cancelled) {
        loading.lastPercent = percent;
        emit progressed(phase, loading.files.value(file), percent);
    }
    return !loading.cancelled;
}

/// Runs in a thread; touches nothing but the loading, and signals only through the event queue.
void ModelLoader::read(Loading& loading)
{
    const int count = loading.files.size();
    ModelReader reader;
    for (int i = 0; i < count && !loading.cancelled; ++i) {
        const auto progress = [&](double fraction) {
            return report(loading, Phase::Reading, i, kReadingShare * (i + fraction) / count);
        };
        progress(0.0);
        std::optional<ModelData> model = reader.read(loading.files.at(i), progress, loading.error);
        if (!model) {
            return;
        }
        loading.models.push_back(std::move(*model));
    }
}

void ModelLoader::build(const Shared& loading)
{
    if (!loading->error.isEmpty()) {
        current.reset();
        emit failed(loading->error);
        return;
    }
    const std::size_t done = loading->built.size();
    report(*loading, Phase::Preparing, static_cast<int>(done), kReadingShare);
    if (done < loading->models.size()) {
        loading->built.push_back(buildModel(loading->models[done]));
        loading->models[done] = ModelData();  // whose memory the next one may need
        QTimer::singleShot(0, this, [this, loading] {
            if (loading == current) {
                build(loading);
            }
        });
        return;
    }
    buildTrees(loading);
}

void ModelLoader::buildTrees(const Shared& loading)
{
    std::vector<osg::NodePtr> roots;
    for (const BuiltModel& model : loading->built) {
        roots.push_back(model.root.get());
    }
    loading->trees = std::make_unique<nbec::interaction::PickTreeBuilder>(roots);
    const auto work = [this, raw = loading.get()] {
        raw->trees->build([this, raw](double fraction) {
            return report(*raw, Phase::Preparing, raw->files.size() - 1,
                          kReadingShare + (1.0 - kReadingShare) * fraction);
        });
    };
    runThread(loading, work, [this, loading] { conclude(loading); });
}

void ModelLoader::conclude(const Shared& loading)
{
    current.reset();
    loading->trees->adopt();
    models = std::move(loading->built);
    emit finished();
}

}  // namespace viewer
