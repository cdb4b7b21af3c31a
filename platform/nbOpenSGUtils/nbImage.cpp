// SPDX-License-Identifier: MIT
#include "nbImage.h"

#include <nbOpenSGUtils/nbEdit.h>

#include <cstddef>
#include <cstring>
#include <limits>

namespace {

template <class Value>
Value full()
{
    return std::numeric_limits<Value>::is_integer ? std::numeric_limits<Value>::max() : Value(1);
}

template <class Value>
void invert(const osg::ImagePtr& image)
{
    // Copied in and out: the bytes of an image need not be aligned for its values.
    const std::size_t bytes = image->getSize();
    osg::UInt8* const pixels = image->getData();
    const auto first = static_cast<std::size_t>(nbImage::alphaPlace(image)) * sizeof(Value);
    for (std::size_t at = first; at < bytes; at += image->getComponents() * sizeof(Value)) {
        Value value {};
        std::memcpy(&value, pixels + at, sizeof(Value));
        value = static_cast<Value>(full<Value>() - value);
        std::memcpy(pixels + at, &value, sizeof(Value));
    }
}

}  // namespace

int nbImage::alphaPlace(const osg::ImagePtr& image)
{
    switch (image->getPixelFormat()) {
    case osg::Image::OSG_L_PF:
    case osg::Image::OSG_RGB_PF:
    case osg::Image::OSG_BGR_PF:
        return -1;
    default:
        return image->getComponents() - 1;
    }
}

bool nbImage::invertAlpha(const osg::ImagePtr& image)
{
    if (image == osg::NullFC || !image->isValid() || image->getData() == nullptr ||
        alphaPlace(image) < 0) {
        return false;
    }
    const nbEdit edit(image, osg::Image::PixelFieldMask);
    switch (image->getDataType()) {
    case osg::Image::OSG_UINT8_IMAGEDATA:
        invert<osg::UInt8>(image);
        return true;
    case osg::Image::OSG_UINT16_IMAGEDATA:
        invert<osg::UInt16>(image);
        return true;
    case osg::Image::OSG_UINT32_IMAGEDATA:
        invert<osg::UInt32>(image);
        return true;
    case osg::Image::OSG_FLOAT32_IMAGEDATA:
        invert<osg::Real32>(image);
        return true;
    default:
        return false;
    }
}
