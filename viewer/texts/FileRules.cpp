// SPDX-License-Identifier: MIT
#include "viewer/texts/FileRules.h"

#include "viewer/texts/Text.h"

#include <QFileInfo>
#include <QSaveFile>

namespace viewer {
namespace {

bool fail(const QString& path, const QString& what, QString& error)
{
    error = oneLine(QStringLiteral("%1: %2").arg(path, what));
    return false;
}

/// Files there look like any other, but reading one may wait for ever.
bool isOfTheSystem(const QFileInfo& info)
{
    const QString path = info.canonicalFilePath();
    return path.startsWith(QLatin1String("/proc/")) || path.startsWith(QLatin1String("/sys/"));
}

bool isOfAnotherMachine(const QString& path)
{
    return path.startsWith(QLatin1String("//")) || path.startsWith(QLatin1String("\\\\")) ||
        path.contains(QLatin1String("://"));
}

}  // namespace

QString oneLine(QString text)
{
    for (QChar& letter : text) {
        if (!letter.isPrint() && !letter.isSurrogate()) {
            letter = QLatin1Char(' ');
        }
    }
    return text;
}

bool isReadable(const QString& path, QString& error)
{
    const QFileInfo info(path);
    if (isOfAnotherMachine(path)) {
        return fail(path, Text::tr("is not on this machine"), error);
    }
    if (path.contains(QChar::Null) || !info.exists()) {
        return fail(path, Text::tr("no such file"), error);
    }
    return (info.isFile() && !isOfTheSystem(info)) || fail(path, Text::tr("not a file"), error);
}

bool openForReading(QFile& file, QString& error)
{
    return isReadable(file.fileName(), error) &&
        (file.open(QIODevice::ReadOnly) || fail(file.fileName(), file.errorString(), error));
}

bool isReplaceable(const QString& path, QString& error)
{
    const QFileInfo info(path);
    return !info.exists() || info.isFile() || fail(path, Text::tr("not a file"), error);
}

QString pathInside(const QDir& folder, const QString& name, const QString& ending, QString& error)
{
    const QString path = QDir::cleanPath(folder.absoluteFilePath(name));
    const QFileInfo info(path);
    const QString own = info.dir().canonicalPath();
    const QString allowed = folder.canonicalPath();
    if (oneLine(name) != name) {
        // The system ends a name at a zero, and so would not see the ending.
        fail(path, QStringLiteral("has control characters"), error);
    } else if (own.isEmpty()) {
        fail(path, Text::tr("no such folder"), error);
    } else if (allowed.isEmpty() ||
               !(own + '/').startsWith(allowed.endsWith('/') ? allowed : allowed + '/')) {
        fail(path,
             QStringLiteral("does not lie in %1, where sessions may write").arg(folder.path()),
             error);
    } else if (!path.endsWith(ending, Qt::CaseInsensitive)) {
        fail(path, QStringLiteral("does not end with %1").arg(ending), error);
    } else if (info.isSymLink()) {
        fail(path, Text::tr("not a file"), error);
    } else if (isReplaceable(path, error)) {
        return path;
    }
    return {};
}

bool readWhole(const QString& path, qint64 mostBytes, QByteArray& text, QString& error)
{
    QFile file(path);
    if (!openForReading(file, error)) {
        return false;
    }
    // One byte more shows a file that grows.
    text = file.read(mostBytes + 1);
    if (file.error() != QFileDevice::NoError) {
        return fail(path, file.errorString(), error);
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
    return (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
            file.write(text) == text.size() && file.commit()) ||
        fail(path, file.errorString(), error);
}

}  // namespace viewer
