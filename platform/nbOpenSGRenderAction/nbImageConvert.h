// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGImage.h>

#include <QtGui/QImage>

/// Conversion between pictures of Qt, rows from the top, and of the scene graph, rows from the
/// bottom.
class NB_PLATFORM_API nbImageConvert
{
public:
    /// A new image, reference count 0: RGBA if the picture has an alpha channel, otherwise RGB; 8
    /// bits per component, alpha not premultiplied. Null for a null picture.
    static osg::ImagePtr toImage(const QImage& picture);

    /// The picture of an image's base level; null for null, an invalid image, or components of more
    /// than 8 bits. Brightness without colour gives grey, alpha without colour white.
    static QImage toPicture(const osg::ImagePtr& image);
};
