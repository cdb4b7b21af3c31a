// SPDX-License-Identifier: MIT
#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGLog.h>

#include <algorithm>
#include <limits>

namespace osg {

OSG_CONTAINER_TYPE(Image, AttachmentContainer);

namespace {

/// Which components a format has and where they are in a pixel; -1: not there.
struct Layout
{
    UInt32 format;
    UInt8 components;
    Int8 red, green, blue, grey, alpha;
};

// The value of an intensity is brightness and alpha at once.
constexpr Layout kLayouts[] = {
    { Image::OSG_A_PF, 1, -1, -1, -1, -1, 0 },  { Image::OSG_I_PF, 1, -1, -1, -1, 0, 0 },
    { Image::OSG_L_PF, 1, -1, -1, -1, 0, -1 },  { Image::OSG_LA_PF, 2, -1, -1, -1, 0, 1 },
    { Image::OSG_RGB_PF, 3, 0, 1, 2, -1, -1 },  { Image::OSG_BGR_PF, 3, 2, 1, 0, -1, -1 },
    { Image::OSG_RGBA_PF, 4, 0, 1, 2, -1, 3 },  { Image::OSG_BGRA_PF, 4, 2, 1, 0, -1, 3 },
};

const Layout* layoutOf(UInt32 format)
{
    const auto* const end = std::end(kLayouts);
    const auto* const found = std::find_if(std::begin(kLayouts), end, [&](const Layout& layout) {
        return layout.format == format;
    });
    return found != end ? found : nullptr;
}

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

/// Converts one pixel; both formats have one byte for a component.
void convertPixel(const Layout& from, const UInt8* source, const Layout& to, UInt8* target)
{
    const bool coloured = from.red >= 0;
    const auto part = [&](Int8 place, UInt8 otherwise) {
        return place >= 0 ? source[place] : otherwise;
    };
    UInt8 grey = part(from.grey, part(from.alpha, 0));
    if (coloured) {
        grey = static_cast<UInt8>((source[from.red] + source[from.green] + source[from.blue]) / 3);
    }
    const auto write = [&](Int8 place, UInt8 value) {
        if (place >= 0) {
            target[place] = value;
        }
    };
    write(to.red, part(from.red, grey));
    write(to.green, part(from.green, grey));
    write(to.blue, part(from.blue, grey));
    write(to.alpha, part(from.alpha, grey));
    write(to.grey, grey);
}

/// A block of pixels of one byte per component.
struct Block
{
    Int32 width, height, depth;
    UInt32 components;

    std::size_t offset(Int32 x, Int32 y, Int32 z) const
    {
        return ((static_cast<std::size_t>(z) * static_cast<std::size_t>(height)
                 + static_cast<std::size_t>(y))
                    * static_cast<std::size_t>(width)
                + static_cast<std::size_t>(x))
            * components;
    }
};

/// Source pixels that a target pixel covers in one direction, at least one: [first, end).
struct Range
{
    Int32 first, end;

    Range(Int32 index, Int32 targetSize, Int32 sourceSize)
        : first(static_cast<Int32>(Int64(index) * sourceSize / targetSize))
        , end(std::max(first + 1,
                       static_cast<Int32>(Int64(index + 1) * sourceSize / targetSize)))
    { }

    UInt32 size() const { return static_cast<UInt32>(end - first); }
};

/// Average of the pixels of a box, component by component.
void averageBox(const Block& block, const UInt8* source, const Range& xs, const Range& ys,
                const Range& zs, UInt8* target)
{
    const UInt64 count = UInt64(xs.size()) * ys.size() * zs.size();
    for (UInt32 component = 0; component < block.components; ++component) {
        UInt64 sum = 0;
        for (Int32 z = zs.first; z < zs.end; ++z) {
            for (Int32 y = ys.first; y < ys.end; ++y) {
                for (Int32 x = xs.first; x < xs.end; ++x) {
                    sum += source[block.offset(x, y, z) + component];
                }
            }
        }
        target[component] = static_cast<UInt8>(sum / count);
    }
}

/// Each target pixel becomes the average of the source pixels that it covers, rounded down.
void resample(const Block& from, const UInt8* source, const Block& to, UInt8* target)
{
    for (Int32 z = 0; z < to.depth; ++z) {
        const Range zs(z, to.depth, from.depth);
        for (Int32 y = 0; y < to.height; ++y) {
            const Range ys(y, to.height, from.height);
            for (Int32 x = 0; x < to.width; ++x) {
                const Range xs(x, to.width, from.width);
                averageBox(from, source, xs, ys, zs, target + to.offset(x, y, z));
            }
        }
    }
}

}  // namespace

bool Image::set(UInt32 newFormat, Int32 newWidth, Int32 newHeight, Int32 newDepth,
                Int32 mipmapCount, Int32 frameCount, Time frameDelay, const UInt8* data, Int32 type,
                bool allocMem, Int32 sideCount)
{
    const Layout* const layout = layoutOf(newFormat);
    const UInt32 componentBytes = componentSize(type);
    if (layout == nullptr || componentBytes == 0
        || std::min({ newWidth, newHeight, newDepth, mipmapCount, frameCount, sideCount }) < 1) {
        SWARNING << "Image::set: no image of " << newWidth << " x " << newHeight << " x "
                 << newDepth << ", format " << newFormat << ", type " << type << ", mipmaps "
                 << mipmapCount << ", frames " << frameCount << ", sides " << sideCount
                 << std::endl;
        return false;
    }
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
    MField<UInt8> pixels;
    if (allocMem && data != nullptr) {
        pixels.assign(data, data + getSize());
    } else if (allocMem) {
        pixels.assign(getSize(), 0);
    }
    mfPixel.swap(pixels);
    return true;
}

bool Image::set(ImagePtr other)
{
    if (other == NullFC) {
        SWARNING << "Image::set: the other image is null" << std::endl;
        return false;
    }
    setForceAlphaChannel(other->getForceAlphaChannel());
    setForceColorChannel(other->getForceColorChannel());
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
    if (!isValid() || mipmap >= static_cast<UInt32>(getMipMapCount())
        || frame >= static_cast<UInt32>(getFrameCount())
        || side >= static_cast<UInt32>(getSideCount())) {
        return nullptr;
    }
    std::size_t offset = std::size_t(getSize(true, false, true)) * frame
        + std::size_t(getSize(true, false, false)) * side;
    for (UInt32 level = 0; level < mipmap; ++level) {
        offset += levelBytes(level);
    }
    return mfPixel.data() + offset;
}

std::size_t Image::levelBytes(UInt32 level) const
{
    return static_cast<std::size_t>(levelSize(getWidth(), level))
        * static_cast<std::size_t>(levelSize(getHeight(), level))
        * static_cast<std::size_t>(levelSize(getDepth(), level)) * static_cast<UInt32>(getBpp());
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
    const Layout* const layout = layoutOf(getPixelFormat());
    return getForceAlphaChannel() || (layout != nullptr && layout->alpha >= 0);
}

bool Image::hasColorChannel() const
{
    const Layout* const layout = layoutOf(getPixelFormat());
    return getForceColorChannel() || (layout != nullptr && layout->red >= 0);
}

UInt8 Image::getComponents() const
{
    const Layout* const layout = layoutOf(getPixelFormat());
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
    const Layout* const to = layoutOf(format);
    const bool inPlace = destination == NullFC || destination.getCPtr() == this;
    if (to == nullptr || !canConvert("reformat")
        || (inPlace && getPixelFormat() == UInt32(format))) {
        return false;
    }
    const Layout* const from = layoutOf(getPixelFormat());
    MField<UInt8> pixels(mfPixel.size() / from->components * to->components);
    for (std::size_t i = 0, count = mfPixel.size() / from->components; i < count; ++i) {
        convertPixel(*from, mfPixel.data() + i * from->components, *to,
                     pixels.data() + i * to->components);
    }
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
    const Int32 levels = level < 0 ? std::max(whole - 1, 1) : std::min(std::max(level, 1), whole);
    const RefPtr<ImagePtr> result(create());
    result->set(getPixelFormat(), getWidth(), getHeight(), getDepth(), levels, getFrameCount(),
                getFrameDelay(), nullptr, getDataType(), true, getSideCount());
    for (Int32 frame = 0; frame < getFrameCount(); ++frame) {
        for (Int32 side = 0; side < getSideCount(); ++side) {
            result->fillMipmaps(*this, static_cast<UInt32>(frame), static_cast<UInt32>(side));
        }
    }
    return (destination == NullFC ? ImagePtr(this) : destination)->takePixels(*result);
}
