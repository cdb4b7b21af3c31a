// SPDX-License-Identifier: MIT
#include "nbSceneplatePicture.h"

#include <nbOpenSGUtils/nbImage.h>

#include <algorithm>
#include <cstddef>

namespace {

osg::Int32 pixelAt(float part, osg::Int32 count)
{
    const auto pixel = static_cast<osg::Int32>(part * static_cast<float>(count));
    return std::clamp(pixel, osg::Int32(0), count - 1);
}

}  // namespace

osg::ImagePtr nbSceneplatePicture::imageOf(const osg::SceneplatePtr& plate)
{
    const osg::ImagePtr image = plate->getImage();
    const bool isShowable = image != osg::NullFC && image->isValid() &&
        image->getData() != nullptr && image->getDataType() == osg::Image::OSG_UINT8_IMAGEDATA;
    return isShowable ? image : osg::ImagePtr();
}

osg::Real32 nbSceneplatePicture::alphaAt(const osg::SceneplatePtr& plate,
                                         const osg::Pnt2f& position)
{
    constexpr float kOpaque = 255.0F;
    const osg::ImagePtr image = imageOf(plate);
    if (image == osg::NullFC) {
        return plate->getColor().alpha();
    }
    const int component = nbImage::alphaPlace(image);
    if (component < 0) {
        return 1.0F;
    }
    const osg::Int32 x = pixelAt(position.x(), image->getWidth());
    const osg::Int32 y = pixelAt(position.y(), image->getHeight());
    const std::size_t pixel =
        static_cast<std::size_t>(y) * static_cast<std::size_t>(image->getWidth()) +
        static_cast<std::size_t>(x);
    const osg::UInt8 alpha = image->getData()[pixel * static_cast<std::size_t>(image->getBpp()) +
                                              static_cast<std::size_t>(component)];
    return static_cast<float>(alpha) / kOpaque;
}
