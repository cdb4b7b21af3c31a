// SPDX-License-Identifier: MIT
#include "viewer/texts/TextFile.h"

#include "viewer/texts/FileRules.h"
#include "viewer/texts/Text.h"

#include <QFile>
#include <QSaveFile>

namespace viewer {

bool readWhole(const QString& path, qint64 mostBytes, QByteArray& text, QString& error)
{
    QFile file(path);
    if (!openForReading(file, error)) {
        return false;
    }
    // One byte more shows a file that grows.
    text = file.read(mostBytes + 1);
    if (file.error() != QFileDevice::NoError) {
        error = QStringLiteral("%1: %2").arg(path, file.errorString());
        return false;
    }
    if (text.size() > mostBytes) {
        error = Text::tr("%1: too large").arg(path);
        return false;
    }
    return true;
}

bool writeWhole(const QString& path, const QByteArray& text, QString& error)
{
    if (!isReplaceable(path, error)) {
        return false;
    }
    QSaveFile file(path);
    // A buffer would tell of a full disk only when its text is lost.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) ||
        file.write(text) != text.size() || !file.commit()) {
        error = QStringLiteral("%1: %2").arg(path, file.errorString());
        file.cancelWriting();
        return false;
    }
    return true;
}

}  // namespace viewer
