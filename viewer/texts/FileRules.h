// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QFile>
#include <QString>

namespace viewer {

// What may be done with files; docs/safety.md says why. A path may come from a stranger's file.

/// What is quoted may have several lines: each control character becomes a space.
QString oneLine(QString text);

/// Whether a file may be opened for reading: a regular one of this machine, no device and no pipe,
/// which might never end. @return false with one line in `error` that begins with the path
bool isReadable(const QString& path, QString& error);
/// Opens such a file. @return false as isReadable()
bool openForReading(QFile& file, QString& error);

/// Whether a file can be written: it is new or a regular one.
/// @return false with one line in `error` that begins with the path
bool isReplaceable(const QString& path, QString& error);

/// Path of a file that a stranger's session may write: it lies in the folder or below, links
/// included, ends as said, has no control characters, and is new or a regular file.
/// @param name    from the folder, or the whole path
/// @param ending  such as ".png"
/// @return "" with one line in `error`
QString pathInside(const QDir& folder, const QString& name, const QString& ending, QString& error);

/// Reads a whole regular file.
/// @param mostBytes  a larger one is refused
/// @return false with one line in `error` that begins with the file's name
bool readWhole(const QString& path, qint64 mostBytes, QByteArray& text, QString& error);

/// Writes a whole file; an existing one is replaced only when everything is on the disk. A folder
/// that may not be written and a full disk leave no trace.
/// @return false with one line in `error` that begins with the file's name
bool writeWhole(const QString& path, const QByteArray& text, QString& error);

}  // namespace viewer
