// SPDX-License-Identifier: MIT
#include "nbImageConvert.h"

#include <nbOpenSGUtils/nbEdit.h>

#include <cstring>
#include <vector>

namespace {

/// An alpha or colour of 1.
constexpr int kFull = 255;

QRgb pixelOf(const osg::UInt8* p, osg::UInt32 format)
{
    switch (format) {
    case osg::Image::OSG_A_PF:
        return qRgba(kFull, kFull, kFull, p[0]);
    case osg::Image::OSG_I_PF:
        return qRgba(p[0], p[0], p[0], p[0]);
    case osg::Image::OSG_L_PF:
        return qRgba(p[0], p[0], p[0], kFull);
    case osg::Image::OSG_LA_PF:
        return qRgba(p[0], p[0], p[0], p[1]);
    case osg::Image::OSG_RGB_PF:
        return qRgba(p[0], p[1], p[2], kFull);
    case osg::Image::OSG_BGR_PF:
        return qRgba(p[2], p[1], p[0], kFull);
    case osg::Image::OSG_RGBA_PF:
        return qRgba(p[0], p[1], p[2], p[3]);
    default:
        return qRgba(p[2], p[1], p[0], p[3]);
    }
}

}  // namespace

osg::ImagePtr nbImageConvert::toImage(const QImage& picture)
{
    if (picture.isNull()) {
        return osg::NullFC;
    }
    const bool hasAlpha = picture.hasAlphaChannel();
    const QImage source =
        picture.convertToFormat(hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    const std::size_t rowBytes = static_cast<std::size_t>(source.width()) * (hasAlpha ? 4U : 3U);
    std::vector<osg::UInt8> rows(rowBytes * static_cast<std::size_t>(source.height()));
    for (int y = 0; y < source.height(); ++y) {
        const auto row = static_cast<std::size_t>(source.height() - 1 - y);
        std::memcpy(rows.data() + row * rowBytes, source.constScanLine(y), rowBytes);
    }
    const osg::ImagePtr image = osg::Image::create();
    const nbEdit edit(image, osg::FieldBits::AllFields);
    image->set(hasAlpha ? osg::Image::OSG_RGBA_PF : osg::Image::OSG_RGB_PF, source.width(),
               source.height(), 1, 1, 1, 0.0, rows.data());
    return image;
}

QImage nbImageConvert::toPicture(const osg::ImagePtr& image)
{
    if (image == osg::NullFC || !image->isValid() ||
        image->getDataType() != osg::Image::OSG_UINT8_IMAGEDATA) {
        return {};
    }
    QImage picture(image->getWidth(), image->getHeight(),
                   image->hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    const osg::UInt8* source = image->getData();
    const osg::UInt32 format = image->getPixelFormat();
    for (int y = image->getHeight() - 1; y >= 0; --y) {
        auto* const row = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            row[x] = pixelOf(source, format);
            source += image->getBpp();
        }
    }
    return picture;
}
