// SPDX-License-Identifier: MIT
#include "viewer/loading/ModelReader.h"

#include "viewer/loading/ModelRecords.h"
#include "viewer/loading/PictureDecoding.h"
#include "viewer/texts/FileRules.h"
#include "viewer/texts/Language.h"
#include "viewer/texts/Text.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <unistd.h>

namespace viewer {
namespace {

constexpr int kTickMs = 50;
constexpr qint64 kBytesOfASecond = 1000000;
constexpr qint64 kMsOfASecond = 1000;
constexpr int kGoodbyeMs = 1000;
/// What tells something again and again has to end, too.
constexpr int kMostPatiences = 20;

/// Beside the program, as when both have just been built, or where it is installed to.
QString readerProgram()
{
    const QDir folder = QFileInfo(QFile::symLinkTarget("/proc/self/exe")).dir();
    const QString beside = folder.filePath("nbmodelreader");
    return QFileInfo::exists(beside)
        ? beside
        : QDir::cleanPath(folder.filePath(QStringLiteral(NB_READER_FROM_PROGRAM)));
}

/// Memory that a process has in use; 0 where it cannot be told.
qint64 residentBytes(qint64 processId)
{
    QFile file(QStringLiteral("/proc/%1/statm").arg(processId));
    const QList<QByteArray> pages =
        file.open(QIODevice::ReadOnly) ? file.readAll().split(' ') : QList<QByteArray>();
    return pages.value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

}  // namespace

/// The reading of one file.
class ModelReader::Reading
{
public:
    Reading(QProcess& readingProgram, const Limits& readingLimits, const QString& file)
        : program(readingProgram)
        , limits(readingLimits)
        , patienceMs(readingLimits.patienceMs +
                     kMsOfASecond * QFileInfo(file).size() / kBytesOfASecond)
    {
        clock.start();
        wholeClock.start();
        program.write(file.toUtf8() + '\0');
    }

    /// Waits for the model. @return what went wrong; "" for nothing
    QString finish(const ReadProgress& progress)
    {
        while (!assembly.isComplete()) {
            program.waitForReadyRead(kTickMs);
            const QByteArray bytes = program.readAllStandardOutput();
            if (!bytes.isEmpty()) {
                clock.restart();
                toldBytes += bytes.size();
            }
            if (!assembly.take(bytes)) {
                return Text::tr("cannot be read as a model: what was read of it is damaged");
            }
            const QString fault = assembly.isComplete() ? QString() : findFault(progress);
            if (!fault.isEmpty()) {
                return fault;
            }
        }
        return {};
    }

    ModelAssembly assembly;

private:
    QString findFault(const ReadProgress& progress)
    {
        if (progress && !progress(assembly.progress())) {
            return Text::tr("reading was stopped");
        }
        if (program.state() == QProcess::NotRunning && program.bytesAvailable() == 0) {
            return Text::tr("cannot be read as a model: reading it ended with a fault");
        }
        if (qMax(toldBytes, residentBytes(program.processId())) > limits.memoryBytes) {
            return Text::tr("cannot be read as a model: it would take too much memory");
        }
        const bool isEndless =
            clock.elapsed() > patienceMs || wholeClock.elapsed() > kMostPatiences * patienceMs;
        return isEndless ? Text::tr("has no end: reading was given up") : QString();
    }

    QProcess& program;
    const Limits& limits;
    qint64 patienceMs;
    QElapsedTimer clock;  ///< since something was told
    QElapsedTimer wholeClock;
    qint64 toldBytes = 0;
};

ModelReader::ModelReader()
    : ModelReader(Limits())
{ }

ModelReader::ModelReader(const Limits& newLimits)
    : limits(newLimits)
{ }

ModelReader::~ModelReader()
{
    end();
}

bool ModelReader::start(QString& error)
{
    if (program && program->state() == QProcess::Running) {
        return true;
    }
    program = std::make_unique<QProcess>();
    // What its libraries say quotes strangers' files, and may be without end.
    program->setStandardErrorFile(QProcess::nullDevice());
    program->start(limits.program.isEmpty() ? readerProgram() : limits.program,
                   { QString::number(limits.memoryBytes), QString::number(pictureBudget()),
                     languageName(appliedLanguage()) });
    if (!program->waitForStarted()) {
        error = Text::tr("the program that reads models cannot be started: %1")
                    .arg(program->errorString());
        return false;
    }
    return true;
}

void ModelReader::end()
{
    if (program) {
        program->kill();
        program->waitForFinished(kGoodbyeMs);
        program.reset();
    }
}

std::optional<ModelData> ModelReader::read(const QString& path, const ReadProgress& progress,
                                           QString& error)
{
    const auto fail = [&](const QString& what) {
        error = oneLine(QStringLiteral("%1: %2").arg(path, what));
        return std::nullopt;
    };
    if (!isReadable(path, error)) {
        return std::nullopt;
    }
    if (!isModelFileName(path)) {
        return fail(Text::tr("cannot be read as a model: %1 is no kind that is known")
                        .arg('.' + QFileInfo(path).suffix()));
    }
    QString problem;
    if (!start(problem)) {
        return fail(problem);
    }
    const QFileInfo info(path);
    Reading reading(*program, limits, info.absoluteFilePath());
    problem = reading.finish(progress);
    if (!problem.isEmpty()) {
        end();
        return fail(problem);
    }
    if (!reading.assembly.failure().isEmpty()) {
        return fail(reading.assembly.failure());
    }
    ModelData model = reading.assembly.takeModel();
    model.root.name = info.completeBaseName();
    model.file = info.absoluteFilePath();
    return model;
}

QString ModelReader::libraryVersion()
{
    return QStringLiteral("Assimp " NB_ASSIMP_VERSION);
}

std::optional<ModelData> readModelFile(const QString& path, const ReadProgress& progress,
                                       QString& error)
{
    return ModelReader().read(path, progress, error);
}

}  // namespace viewer
