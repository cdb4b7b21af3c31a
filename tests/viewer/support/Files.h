// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QImage>

#include <gtest/gtest.h>

namespace viewer {

/// Writes a file of a test.
/// @return its path
inline QString writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size())
        << path.toStdString();
    return path;
}

/// Writes a picture of one colour.
/// @return its path
inline QString writePlainPicture(const QString& path, const QSize& size, const QColor& color)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(color);
    EXPECT_TRUE(picture.save(path)) << path.toStdString();
    return path;
}

inline QByteArray readFile(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

}  // namespace viewer
