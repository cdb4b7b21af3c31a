// SPDX-License-Identifier: MIT
#include "viewer/loading/PictureDecoding.h"

#include "viewer/texts/FileRules.h"
#include "viewer/texts/Text.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>

#include <atomic>

namespace viewer {
namespace {

constexpr qint64 kBytesOfAPixel = 4;
constexpr qint64 kMebibyte = 1024LL * 1024;
std::atomic<qint64> budget { 256 * kMebibyte };

/// Kinds whose readers look at nothing but the file itself.
bool isUsualKind(const QByteArray& format)
{
    static const QList<QByteArray> kUsual { "png", "jpeg", "jpg",  "bmp", "gif", "pbm",
                                            "pgm", "ppm",  "tiff", "tif", "webp" };
    return kUsual.contains(format);
}

}  // namespace

void setPictureBudget(qint64 mostBytes)
{
    budget = mostBytes;
}

qint64 pictureBudget()
{
    return budget;
}

QImage decodePicture(QIODevice& device, const QString& name, QString& error)
{
    const auto fail = [&](const QString& what) {
        error = oneLine(QStringLiteral("%1: %2").arg(name, what));
        return QImage();
    };
    QImageReader reader(&device);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    const QSize size = isUsualKind(reader.format()) ? reader.size() : QSize();
    if (!size.isValid()) {
        return fail(Text::tr("is no picture"));
    }
    if (qint64(size.width()) * size.height() > pictureBudget() / kBytesOfAPixel) {
        return fail(Text::tr("the picture has %1 x %2 pixels, which would take more than %3 MiB")
                        .arg(size.width())
                        .arg(size.height())
                        .arg(pictureBudget() / kMebibyte));
    }
    const QImage picture = reader.read();
    return picture.isNull() ? fail(reader.errorString()) : picture;
}

QImage decodePictureFile(const QString& file, QString& error)
{
    QFile opened(file);
    return openForReading(opened, error) ? decodePicture(opened, file, error) : QImage();
}

bool writePicture(const QString& file, const QImage& picture, QString& error)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    const QByteArray format = QFileInfo(file).suffix().toLatin1();
    if (!buffer.open(QIODevice::WriteOnly) || !picture.save(&buffer, format.constData())) {
        error = oneLine(Text::tr("%1: cannot be written").arg(file));
        return false;
    }
    return writeWhole(file, bytes, error);
}

QString pictureFileFilter()
{
    QStringList patterns;
    for (const QByteArray& format : QImageReader::supportedImageFormats()) {
        if (isUsualKind(format)) {
            patterns.append(QStringLiteral("*.") + QString::fromLatin1(format));
        }
    }
    return Text::tr("Pictures (%1)").arg(patterns.join(' '));
}

}  // namespace viewer
