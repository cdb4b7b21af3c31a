// SPDX-License-Identifier: MIT
// Reads model files for the viewer, which trusts neither this program nor what it tells.
//   nbmodelreader MEMORY PICTURE LANGUAGE
// MEMORY: most bytes to be used. PICTURE: most bytes of a decoded picture. LANGUAGE: of messages.
// Standard input: absolute paths, each ended by a byte 0. Standard output: see ModelRecords.h.
#include "viewer/loading/ModelRecords.h"
#include "viewer/loading/PictureDecoding.h"
#include "viewer/reader/ModelImport.h"
#include "viewer/texts/Language.h"

#include <QCoreApplication>
#include <QFile>

#include <csignal>
#include <cstdio>
#include <iostream>
#include <string>

#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define NB_HAS_SHADOW_MEMORY
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define NB_HAS_SHADOW_MEMORY
#endif
#endif

namespace {

void limit(int resource, rlim_t most)
{
    const rlimit wanted { most, most };
    setrlimit(static_cast<__rlimit_resource_t>(resource), &wanted);
}

/// Nothing is written to a file, no fault leaves a dump, and the viewer's end is the end of this.
void giveUpRights(const QString& memory)
{
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_FSIZE, 0);
#ifndef NB_HAS_SHADOW_MEMORY
    limit(RLIMIT_AS, memory.toULongLong());
#else
    Q_UNUSED(memory)
#endif
    prctl(PR_SET_PDEATHSIG, SIGKILL);
}

void answer(const QString& path, QFile& output)
{
    using viewer::ModelRecord;
    const auto write = [&output](const QByteArray& record) {
        output.write(record);
        output.flush();
    };
    const auto progress = [&write](double fraction) {
        write(viewer::progressRecord(qBound(0.0, fraction, 1.0)));
    };
    QString error;
    const std::optional<viewer::ModelData> model = viewer::importModel(path, progress, error);
    if (model) {
        viewer::writeModel(*model, write);
    } else {
        write(viewer::textRecord(ModelRecord::Failure, error));
    }
}

}  // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    constexpr int kArguments = 4;
    if (arguments.size() != kArguments) {
        std::fputs("nbmodelreader: started by nbviewer to read models\n", stderr);
        return 2;
    }
    giveUpRights(arguments[1]);
    viewer::setPictureBudget(arguments[2].toLongLong());
    viewer::applyLanguage(
        viewer::languageFromName(arguments[3]).value_or(viewer::Language::English));
    // Whatever a library prints is no record.
    QFile output;
    const bool isOpen =
        output.open(dup(STDOUT_FILENO), QIODevice::WriteOnly | QIODevice::Unbuffered,
                    QFileDevice::AutoCloseHandle);
    dup2(STDERR_FILENO, STDOUT_FILENO);
    for (std::string path; isOpen && std::getline(std::cin, path, '\0');) {
        answer(QString::fromStdString(path), output);
    }
    return 0;
}
