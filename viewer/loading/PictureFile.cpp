// SPDX-License-Identifier: MIT
#include "viewer/loading/PictureFile.h"

#include "viewer/texts/Text.h"

#include <nbOpenSGRenderAction/nbImageConvert.h>

#include <OpenSG/OSGSimpleAttachments.h>

#include <QFileInfo>
#include <QImageReader>

namespace viewer {
namespace {

constexpr int kLargestSide = 8192;

}  // namespace

osg::RefPtr<osg::ImagePtr> readPicture(const QString& file, QString& error)
{
    QImageReader reader(file);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    QImage picture = reader.read();
    if (picture.isNull()) {
        error = QStringLiteral("%1: %2").arg(file, reader.errorString());
        return {};
    }
    if (picture.width() > kLargestSide || picture.height() > kLargestSide) {
        picture = picture.scaled(kLargestSide, kLargestSide, Qt::KeepAspectRatio,
                                 Qt::SmoothTransformation);
    }
    osg::RefPtr<osg::ImagePtr> image(nbImageConvert::toImage(picture));
    osg::setName(image.get(), QFileInfo(file).absoluteFilePath().toStdString());
    return image;
}

QString pictureFile(const osg::ImagePtr& image)
{
    const char* name = image == osg::NullFC ? nullptr : osg::getName(image);
    return QString::fromUtf8(name);
}

QString pictureName(const osg::ImagePtr& image)
{
    return QFileInfo(pictureFile(image)).fileName();
}

QString pictureFileFilter()
{
    QStringList patterns;
    for (const QByteArray& format : QImageReader::supportedImageFormats()) {
        patterns.append(QStringLiteral("*.") + QString::fromLatin1(format));
    }
    return Text::tr("Pictures (%1)").arg(patterns.join(QLatin1Char(' ')));
}

}  // namespace viewer
