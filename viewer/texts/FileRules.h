// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>
#include <QFile>
#include <QString>

namespace viewer {

/// What may be done with files; docs/safety.md says why. A path may come from a stranger's file.

/// What is quoted may have several lines: each control character becomes a space.
QString oneLine(QString text);

/// Opens a regular file of this machine for reading: no device, no pipe, which might never end, and
/// nothing of another machine. @return false with one line in `error` that begins with the path
bool openForReading(QFile& file, QString& error);

/// Whether a file can be written: it is new or a regular one.
/// @return false with one line in `error` that begins with the path
bool isReplaceable(const QString& path, QString& error);

/// Path of a file that a stranger's session may write: it lies in the folder or below, links
/// included, ends as said, and is new or a regular file.
/// @param name    from the folder, or the whole path
/// @param ending  such as ".png"
/// @return "" with one line in `error`
QString pathInside(const QDir& folder, const QString& name, const QString& ending, QString& error);

}  // namespace viewer
