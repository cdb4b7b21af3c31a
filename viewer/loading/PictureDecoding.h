// SPDX-License-Identifier: MIT
#pragma once

#include <QIODevice>
#include <QImage>
#include <QString>

namespace viewer {

/// Most bytes that a picture may take when it is decoded, four for a pixel; 256 MiB at first.
void setPictureBudget(qint64 mostBytes);
qint64 pictureBudget();

/// Decodes a picture of a usual kind (PNG, JPEG, BMP, GIF, PPM, ...) upright, after its header has
/// told a size within the budget. Any thread.
/// @param device  open for reading
/// @param name    of the file, with which the line in `error` begins
/// @return null with one line in `error`
QImage decodePicture(QIODevice& device, const QString& name, QString& error);
/// The same for a regular file.
QImage decodePictureFile(const QString& file, QString& error);

/// Writes a picture in the format of the name's ending; an existing file is replaced only when
/// everything is on the disk. @return false with one line in `error` that begins with the file
bool writePicture(const QString& file, const QImage& picture, QString& error);

/// Filter of a file dialog for all formats that can be read.
QString pictureFileFilter();

}  // namespace viewer
