// SPDX-License-Identifier: MIT
#include "viewer/loading/ModelWriter.h"

#include "viewer/loading/ModelRecords.h"
#include "viewer/loading/ReaderProgram.h"
#include "viewer/texts/FileRules.h"
#include "viewer/texts/Text.h"
#include "viewer/texts/TextFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

namespace viewer {
namespace {

constexpr int kPatienceMs = 600000;

/// Has the other program write to a file. @return what went wrong; "" for nothing
QString writeThere(const QString& file, const ModelData& model)
{
    QProcess program;
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(readerProgram(), { file });
    if (!program.waitForStarted()) {
        return program.errorString();
    }
    writeModel(model, [&program](const QByteArray& record) { program.write(record); });
    program.closeWriteChannel();
    ModelAssembly answer;
    const bool isOver = program.waitForFinished(kPatienceMs) && program.exitCode() == 0 &&
        answer.take(program.readAllStandardOutput()) && answer.isComplete();
    return isOver ? answer.failure() : Text::tr("cannot be written");
}

}  // namespace

bool writeModelFile(const QString& path, const ModelData& model, QString& error)
{
    const QFileInfo target(path);
    const QTemporaryDir folder;
    const QString problem = writeThere(folder.filePath(target.fileName()), model);
    if (!problem.isEmpty()) {
        error = oneLine(QStringLiteral("%1: %2").arg(path, problem));
        return false;
    }
    for (const QFileInfo& part : QDir(folder.path()).entryInfoList(QDir::Files)) {
        QFile written(part.filePath());
        if (!written.open(QIODevice::ReadOnly) ||
            !writeWhole(target.dir().filePath(part.fileName()), written.readAll(), error)) {
            return false;
        }
    }
    return true;
}

QString exportFileFilter()
{
    return Text::tr("Models (%1)").arg(QStringLiteral("*.glb *.gltf *.obj *.ply *.stl"));
}

}  // namespace viewer
