// SPDX-License-Identifier: MIT
#include "viewer/gui/ModelLoader.h"

#include "viewer/core/ModelReader.h"

#include <QThread>

#include <algorithm>

namespace viewer {

ModelLoader::ModelLoader(QObject* parent)
    : QObject(parent)
{ }

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
    const auto reading = std::make_shared<Reading>();
    reading->files = files;
    current = reading;
    QThread* thread = QThread::create([this, reading] { read(reading); });
    threads.push_back(thread);
    connect(thread, &QThread::finished, this, [this, thread, reading] {
        threads.erase(std::remove(threads.begin(), threads.end(), thread), threads.end());
        thread->deleteLater();
        conclude(reading);
    });
    thread->start();
}

void ModelLoader::cancel()
{
    if (current) {
        current->cancelled = true;
        current.reset();
    }
}

bool ModelLoader::isRunning() const
{
    return current != nullptr;
}

std::vector<ModelData> ModelLoader::takeModels()
{
    return std::move(models);
}

/// Runs in the thread; touches nothing but the reading, and signals only through the event queue.
void ModelLoader::read(const std::shared_ptr<Reading>& reading)
{
    constexpr double kPercent = 100.0;
    const int count = reading->files.size();
    for (int i = 0; i < count && !reading->cancelled; ++i) {
        const QString& file = reading->files.at(i);
        int lastPercent = -1;
        const auto report = [&](double fraction) {
            const int percent = qRound(kPercent * (i + fraction) / count);
            if (percent != lastPercent && !reading->cancelled) {
                lastPercent = percent;
                emit progressed(file, percent);
            }
            return !reading->cancelled;
        };
        report(0.0);
        std::optional<ModelData> model = readModelFile(file, report, reading->error);
        if (!model) {
            return;
        }
        reading->models.push_back(std::move(*model));
    }
}

void ModelLoader::conclude(const std::shared_ptr<Reading>& reading)
{
    if (reading != current) {
        return;
    }
    current.reset();
    if (!reading->error.isEmpty()) {
        emit failed(reading->error);
        return;
    }
    models = std::move(reading->models);
    emit finished();
}

}  // namespace viewer
