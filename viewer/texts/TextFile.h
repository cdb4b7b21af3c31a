// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace viewer {

/// Reads a whole regular file.
/// @param mostBytes  a larger one is refused
/// @return false with one line in `error` that begins with the file's name
bool readWhole(const QString& path, qint64 mostBytes, QByteArray& text, QString& error);

/// Writes a whole file; an existing one is replaced only when everything is on the disk. A folder
/// that may not be written and a full disk leave no trace.
/// @return false with one line in `error` that begins with the file's name
bool writeWhole(const QString& path, const QByteArray& text, QString& error);

}  // namespace viewer
