// SPDX-License-Identifier: MIT
#include "nbImage.h"

#include <nbOpenSGUtils/nbEdit.h>

#include <cstddef>
#include <cstring>
#include <limits>

namespace {

/// Where alpha is among the components of a pixel.
struct AlphaPlace
{
    std::size_t index = 0;
    std::size_t components = 0;  ///< 0: there is none
};

AlphaPlace findAlpha(osg::UInt32 format)
{
    switch (format) {
    case osg::Image::OSG_A_PF:
    case osg::Image::OSG_I_PF:
        return { 0, 1 };
    case osg::Image::OSG_LA_PF:
        return { 1, 2 };
    case osg::Image::OSG_RGBA_PF:
    case osg::Image::OSG_BGRA_PF:
        return { 3, 4 };
    default:
        return {};
    }
}

template <class Value>
Value full()
{
    return std::numeric_limits<Value>::is_integer ? std::numeric_limits<Value>::max() : Value(1);
}

template <class Value>
void invert(osg::UInt8* pixels, std::size_t bytes, const AlphaPlace& place)
{
    // Copied in and out: the bytes of an image need not be aligned for its values.
    for (std::size_t at = place.index * sizeof(Value); at < bytes;
         at += place.components * sizeof(Value)) {
        Value value {};
        std::memcpy(&value, pixels + at, sizeof(Value));
        value = static_cast<Value>(full<Value>() - value);
        std::memcpy(pixels + at, &value, sizeof(Value));
    }
}

}  // namespace

bool nbImage::invertAlpha(const osg::ImagePtr& image)
{
    if (image == osg::NullFC || !image->isValid() || image->getData() == nullptr) {
        return false;
    }
    const AlphaPlace place = findAlpha(image->getPixelFormat());
    if (place.components == 0) {
        return false;
    }
    const nbEdit edit(image, osg::Image::PixelFieldMask);
    const std::size_t bytes = image->getSize();
    switch (image->getDataType()) {
    case osg::Image::OSG_UINT8_IMAGEDATA:
        invert<osg::UInt8>(image->getData(), bytes, place);
        return true;
    case osg::Image::OSG_UINT16_IMAGEDATA:
        invert<osg::UInt16>(image->getData(), bytes, place);
        return true;
    case osg::Image::OSG_UINT32_IMAGEDATA:
        invert<osg::UInt32>(image->getData(), bytes, place);
        return true;
    case osg::Image::OSG_FLOAT32_IMAGEDATA:
        invert<osg::Real32>(image->getData(), bytes, place);
        return true;
    default:
        return false;
    }
}
