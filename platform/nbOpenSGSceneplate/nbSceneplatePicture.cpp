// SPDX-License-Identifier: MIT
#include "nbSceneplatePicture.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace {

/// Place of the alpha among the components of a pixel; -1 without alpha.
int alphaComponent(osg::UInt32 format)
{
    switch (format) {
    case osg::Image::OSG_A_PF:
    case osg::Image::OSG_I_PF:
        return 0;
    case osg::Image::OSG_LA_PF:
        return 1;
    case osg::Image::OSG_RGBA_PF:
    case osg::Image::OSG_BGRA_PF:
        return 3;
    default:
        return -1;
    }
}

osg::Real32 componentAt(const osg::UInt8* bytes, osg::Int32 type, int component)
{
    constexpr float kByte = 255.f;
    constexpr float kShort = 65535.f;
    if (type == osg::Image::OSG_UINT8_IMAGEDATA) {
        return bytes[component] / kByte;
    }
    if (type == osg::Image::OSG_UINT16_IMAGEDATA) {
        osg::UInt16 value = 0;
        std::memcpy(&value, bytes + component * sizeof(value), sizeof(value));
        return value / kShort;
    }
    if (type == osg::Image::OSG_FLOAT32_IMAGEDATA) {
        float value = 0.f;
        std::memcpy(&value, bytes + component * sizeof(value), sizeof(value));
        return value;
    }
    return 1.f;
}

osg::Int32 pixelAt(float part, osg::Int32 count)
{
    const auto pixel = static_cast<osg::Int32>(part * static_cast<float>(count));
    return std::clamp(pixel, osg::Int32(0), count - 1);
}

}  // namespace

osg::Real32 nbSceneplatePicture::alphaAt(const osg::SceneplatePtr& plate,
                                         const osg::Pnt2f& position)
{
    const osg::ImagePtr image = plate->getImage();
    if (image == osg::NullFC) {
        return plate->getColor().alpha();
    }
    const int component = alphaComponent(image->getPixelFormat());
    const osg::UInt8* const data = image->isValid() ? image->getData() : nullptr;
    if (component < 0 || data == nullptr) {
        return 1.f;
    }
    const osg::Int32 x = pixelAt(position.x(), image->getWidth());
    const osg::Int32 y = pixelAt(position.y(), image->getHeight());
    const std::size_t pixel = static_cast<std::size_t>(y) * image->getWidth() + x;
    return componentAt(data + pixel * image->getBpp(), image->getDataType(), component);
}
