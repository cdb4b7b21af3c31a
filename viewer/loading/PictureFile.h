// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/loading/PictureDecoding.h"

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGRefPtr.h>

#include <QString>
#include <QStringList>

namespace viewer {

/// Reads a picture file as decodePictureFile(), for use on a surface. Very large ones are scaled
/// down to what any graphics card takes. The image is named with the whole path.
/// @return null with one line in `error`
osg::RefPtr<osg::ImagePtr> readPicture(const QString& file, QString& error);

/// Absolute path of the file that an image was read from; "" for null and other images.
QString pictureFile(const osg::ImagePtr& image);

/// What an image was painted from where that is no file, such as a text with its font; "" for other
/// images. Goes with the image into scene files.
QString pictureSource(const osg::ImagePtr& image);
void setPictureSource(const osg::ImagePtr& image, const QString& source);

/// Name of the file that an image was read from, without folder; "" for null and other images.
QString pictureName(const osg::ImagePtr& image);

}  // namespace viewer
