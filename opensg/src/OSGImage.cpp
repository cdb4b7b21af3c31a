// SPDX-License-Identifier: MIT
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGLog.h>

#include <algorithm>
#include <limits>
#include <vector>

#include "ImagePixels.h"

namespace osg {

OSG_CONTAINER_TYPE(Image, AttachmentContainer);

namespace {

/// Bytes of one component; 0 for an unknown type.
UInt32 componentSize(Int32 type)
{
    switch (type) {
    case Image::OSG_UINT8_IMAGEDATA:
        return 1;
    case Image::OSG_UINT16_IMAGEDATA:
    case Image::OSG_FLOAT16_IMAGEDATA:
        return 2;
    case Image::OSG_UINT32_IMAGEDATA:
    case Image::OSG_FLOAT32_IMAGEDATA:
        return 4;
    default:
        return 0;
    }
}

/// Most bytes of a base level; with its mipmaps the size still fits into 32 bits.
constexpr double kMostBytes = 2147483648.0;

/// Levels beyond this one would all be one pixel, whatever the size.
constexpr Int32 kMostMipmaps = 32;

/// Size of a mipmap level in one direction.
Int32 levelSize(Int32 size, UInt32 level)
{
    return level < 31 ? std::max(size >> level, 1) : 1;
}

Int32 nextPower2(Int32 size)
{
    Int32 result = 1;
    while (result < size && result <= std::numeric_limits<Int32>::max() / 2) {
        result *= 2;
    }
    return result;
}

}  // namespace

bool Image::set(UInt32 newFormat, Int32 newWidth, Int32 newHeight, Int32 newDepth,
                Int32 mipmapCount, Int32 frameCount, Time frameDelay, const UInt8* data, Int32 type,
                bool allocMem, Int32 sideCount)
{
    const PixelLayout* const layout = pixelLayout(newFormat);
    const UInt32 componentBytes = componentSize(type);
    const bool possible = layout != nullptr && componentBytes > 0 &&
        std::min({ newWidth, newHeight, newDepth, mipmapCount, frameCount, sideCount }) >= 1 &&
        mipmapCount <= kMostMipmaps &&
        double(newWidth) * newHeight * newDepth * layout->components * componentBytes * frameCount *
                sideCount <=
            kMostBytes;
    if (!possible) {
        SWARNING << "Image::set: no image of " << newWidth << " x " << newHeight << " x "
                 << newDepth << ", format " << newFormat << ", type " << type << ", mipmaps "
                 << mipmapCount << ", frames " << frameCount << ", sides " << sideCount
                 << std::endl;
        return false;
    }
    const ImagePtr self(*this);
    beginEditCP(self);
    setPixelFormat(newFormat);
    setWidth(newWidth);
    setHeight(newHeight);
    setDepth(newDepth);
    setBpp(static_cast<Int32>(layout->components * componentBytes));
    setMipMapCount(mipmapCount);
    setFrameCount(frameCount);
    setFrameDelay(frameDelay);
    setSideCount(sideCount);
    setDataType(type);
    // The data may be those of this very image.
    std::vector<UInt8> pixels;
    if (allocMem && data != nullptr) {
        pixels.assign(data, data + getSize());
    } else if (allocMem) {
        pixels.assign(getSize(), 0);
    }
    mfPixel.getValues().swap(pixels);
    endEditCP(self);
    return true;
}

bool Image::set(ImagePtr other)
{
    if (other == NullFC) {
        SWARNING << "Image::set: the other image is null" << std::endl;
        return false;
    }
    return set(other->getPixelFormat(), other->getWidth(), other->getHeight(), other->getDepth(),
               other->getMipMapCount(), other->getFrameCount(), other->getFrameDelay(),
               other->getData(), other->getDataType(), other->isValid(), other->getSideCount());
}

UInt8* Image::getData(UInt32 mipmap, UInt32 frame, UInt32 side)
{
    return const_cast<UInt8*>(static_cast<const Image*>(this)->getData(mipmap, frame, side));
}

const UInt8* Image::getData(UInt32 mipmap, UInt32 frame, UInt32 side) const
{
    if (!isValid() || mipmap >= static_cast<UInt32>(getMipMapCount()) ||
        frame >= static_cast<UInt32>(getFrameCount()) ||
        side >= static_cast<UInt32>(getSideCount())) {
        return nullptr;
    }
    std::size_t offset = std::size_t(getSize(true, false, true)) * frame +
        std::size_t(getSize(true, false, false)) * side;
    for (UInt32 level = 0; level < mipmap; ++level) {
        offset += levelBytes(level);
    }
    return mfPixel.getValues().data() + offset;
}

std::size_t Image::levelBytes(UInt32 level) const
{
    return static_cast<std::size_t>(levelSize(getWidth(), level)) *
        static_cast<std::size_t>(levelSize(getHeight(), level)) *
        static_cast<std::size_t>(levelSize(getDepth(), level)) * static_cast<UInt32>(getBpp());
}

UInt32 Image::getSize(bool withMipmaps, bool withFrames, bool withSides) const
{
    if (getWidth() < 1) {
        return 0;
    }
    const Int32 levels = withMipmaps ? getMipMapCount() : 1;
    std::size_t result = 0;
    for (Int32 level = 0; level < levels; ++level) {
        result += levelBytes(static_cast<UInt32>(level));
    }
    result *= static_cast<std::size_t>(withFrames ? getFrameCount() : 1);
    result *= static_cast<std::size_t>(withSides ? getSideCount() : 1);
    return static_cast<UInt32>(result);
}

bool Image::hasAlphaChannel() const
{
    const PixelLayout* const layout = pixelLayout(getPixelFormat());
    return getForceAlphaChannel() || (layout != nullptr && layout->alpha >= 0);
}

bool Image::hasColorChannel() const
{
    const PixelLayout* const layout = pixelLayout(getPixelFormat());
    return getForceColorChannel() || (layout != nullptr && layout->red >= 0);
}

UInt8 Image::getComponents() const
{
    const PixelLayout* const layout = pixelLayout(getPixelFormat());
    return layout != nullptr ? layout->components : UInt8(0);
}

bool Image::isValid() const
{
    return !mfPixel.empty();
}

UInt32 Image::calcMipmapLevelCount() const
{
    UInt32 result = 1;
    for (Int32 size = std::max({ getWidth(), getHeight(), getDepth() }); size > 1; size /= 2) {
        ++result;
    }
    return result;
}

bool Image::canConvert(const Char8* operation) const
{
    if (isValid() && getDataType() == OSG_UINT8_IMAGEDATA) {
        return true;
    }
    SWARNING << "Image::" << operation << ": the image has no pixels of one byte per component"
             << std::endl;
    return false;
}

bool Image::reformat(PixelFormat format, ImagePtr destination)
{
    const PixelLayout* const to = pixelLayout(format);
    const bool inPlace = destination == NullFC || destination.getCPtr() == this;
    if (to == nullptr || !canConvert("reformat") ||
        (inPlace && getPixelFormat() == UInt32(format))) {
        return false;
    }
    const PixelLayout* const from = pixelLayout(getPixelFormat());
    const std::size_t count = mfPixel.size() / from->components;
    std::vector<UInt8> pixels(count * to->components);
    convertPixels(*from, mfPixel.getValues().data(), *to, pixels.data(), count);
    const ImagePtr target = inPlace ? ImagePtr(this) : destination;
    return target->set(format, getWidth(), getHeight(), getDepth(), getMipMapCount(),
                       getFrameCount(), getFrameDelay(), pixels.data(), getDataType(), true,
                       getSideCount());
}

bool Image::createMipmap(Int32 level, ImagePtr destination)
{
    if (!canConvert("createMipmap")) {
        return false;
    }
    const auto whole = static_cast<Int32>(calcMipmapLevelCount());
    const Int32 levels = level < 0 ? std::max(whole - 1, 1) : std::clamp(level, 1, whole);
    return resampleTo(getWidth(), getHeight(), getDepth(), levels, destination);
}

bool Image::scale(Int32 newWidth, Int32 newHeight, Int32 newDepth, ImagePtr destination)
{
    return canConvert("scale") && resampleTo(newWidth, newHeight, newDepth, 1, destination);
}

bool Image::scaleNextPower2(ImagePtr destination)
{
    return scale(nextPower2(getWidth()), nextPower2(getHeight()), nextPower2(getDepth()),
                 destination);
}

bool Image::resampleTo(Int32 newWidth, Int32 newHeight, Int32 newDepth, Int32 levels,
                       const ImagePtr& destination)
{
    const RefPtr<ImagePtr> result(create());
    if (!result->set(getPixelFormat(), newWidth, newHeight, newDepth, levels, getFrameCount(),
                     getFrameDelay(), nullptr, getDataType(), true, getSideCount())) {
        return false;
    }
    const auto block = [](const Image& image, UInt32 level) {
        return PixelBlock { levelSize(image.getWidth(), level), levelSize(image.getHeight(), level),
                            levelSize(image.getDepth(), level), image.getComponents() };
    };
    for (UInt32 frame = 0; frame < static_cast<UInt32>(getFrameCount()); ++frame) {
        for (UInt32 side = 0; side < static_cast<UInt32>(getSideCount()); ++side) {
            resamplePixels(block(*this, 0), getData(0, frame, side), block(*result.getCPtr(), 0),
                           result->getData(0, frame, side));
            for (UInt32 level = 1; level < static_cast<UInt32>(levels); ++level) {
                resamplePixels(
                    block(*result.getCPtr(), level - 1), result->getData(level - 1, frame, side),
                    block(*result.getCPtr(), level), result->getData(level, frame, side));
            }
        }
    }
    const ImagePtr target = destination == NullFC ? ImagePtr(this) : destination;
    return target->set(result);
}

bool Image::read(const Char8* fileName)
{
    FWARNING(("Image::read: no image files here, %s was not read\n", fileName));
    return false;
}

bool Image::write(const Char8* fileName) const
{
    FWARNING(("Image::write: no image files here, %s was not written\n", fileName));
    return false;
}

}  // namespace osg
