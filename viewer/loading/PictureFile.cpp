// SPDX-License-Identifier: MIT
#include "viewer/loading/PictureFile.h"

#include <nbOpenSGRenderAction/nbImageConvert.h>

#include <OpenSG/OSGSimpleAttachments.h>

#include <QFileInfo>

namespace viewer {
namespace {

constexpr int kLargestSide = 8192;
/// Begins the name of an image that comes from no file.
const QString kSourcePrefix = "source:";

QString nameOf(const osg::ImagePtr& image)
{
    const char* name = image == osg::NullFC ? nullptr : osg::getName(image);
    return QString::fromUtf8(name);
}

}  // namespace

osg::RefPtr<osg::ImagePtr> readPicture(const QString& file, QString& error)
{
    QImage picture = decodePictureFile(file, error);
    if (picture.isNull()) {
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
    const QString name = nameOf(image);
    return name.startsWith(kSourcePrefix) ? QString() : name;
}

QString pictureSource(const osg::ImagePtr& image)
{
    const QString name = nameOf(image);
    return name.startsWith(kSourcePrefix) ? name.mid(kSourcePrefix.size()) : QString();
}

void setPictureSource(const osg::ImagePtr& image, const QString& source)
{
    osg::setName(
        image, source.isEmpty() ? std::string() : (kSourcePrefix + source).toUtf8().toStdString());
}

QString pictureName(const osg::ImagePtr& image)
{
    return QFileInfo(pictureFile(image)).fileName();
}

}  // namespace viewer
