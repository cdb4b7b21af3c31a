// SPDX-License-Identifier: MIT
#include "viewer/scenes/ScenePictures.h"

#include "viewer/loading/PictureFile.h"
#include "viewer/texts/Text.h"

#include <nbOpenSGRenderAction/nbImageConvert.h>

#include <QBuffer>

namespace viewer {
namespace {

/// Of a text within a PNG.
const QString kSourceKey = "Source";

}  // namespace

bool capturePicture(const osg::ImagePtr& image, ScenePicture& picture, QString& error)
{
    if (image == osg::NullFC) {
        return true;
    }
    picture.file = pictureFile(image);
    if (!picture.file.isEmpty()) {
        return true;
    }
    picture.pixels = nbImageConvert::toPicture(image);
    picture.pixels.setText(kSourceKey, pictureSource(image));
    if (picture.pixels.isNull()) {
        error = Text::tr("a picture that came from no file cannot be saved");
        return false;
    }
    return true;
}

osg::ImagePtr imageOf(const QByteArray& png)
{
    QBuffer buffer;
    buffer.setData(png);
    buffer.open(QIODevice::ReadOnly);
    QString error;
    const QImage pixels = decodePicture(buffer, "png", error);
    const osg::ImagePtr image = nbImageConvert::toImage(pixels);
    if (image != osg::NullFC && !pixels.text(kSourceKey).isEmpty()) {
        setPictureSource(image, pixels.text(kSourceKey));
    }
    return image;
}

}  // namespace viewer
