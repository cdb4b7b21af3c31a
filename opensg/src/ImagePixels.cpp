// SPDX-License-Identifier: MIT
#include "ImagePixels.h"

#include <OpenSG/OSGGL.h>

#include <algorithm>
#include <iterator>

namespace osg {

namespace {

// The value of an intensity is brightness and alpha at once.
constexpr PixelLayout kLayouts[] = {
    { GL_ALPHA, 1, -1, -1, -1, -1, 0 },     { GL_INTENSITY, 1, -1, -1, -1, 0, 0 },
    { GL_LUMINANCE, 1, -1, -1, -1, 0, -1 }, { GL_LUMINANCE_ALPHA, 2, -1, -1, -1, 0, 1 },
    { GL_RGB, 3, 0, 1, 2, -1, -1 },         { GL_BGR, 3, 2, 1, 0, -1, -1 },
    { GL_RGBA, 4, 0, 1, 2, -1, 3 },         { GL_BGRA, 4, 2, 1, 0, -1, 3 },
};

/// Brightness of a pixel: what it says itself, else the average of its colours, else its alpha.
UInt8 brightness(const PixelLayout& layout, const UInt8* pixel)
{
    if (layout.grey >= 0) {
        return pixel[layout.grey];
    }
    if (layout.red >= 0) {
        return static_cast<UInt8>((pixel[layout.red] + pixel[layout.green] + pixel[layout.blue]) /
                                  3);
    }
    return pixel[layout.alpha];
}

void convertPixel(const PixelLayout& from, const UInt8* source, const PixelLayout& to,
                  UInt8* target)
{
    const UInt8 grey = brightness(from, source);
    const auto convert = [&](Int8 fromPlace, Int8 toPlace) {
        if (toPlace >= 0) {
            target[toPlace] = fromPlace >= 0 ? source[fromPlace] : grey;
        }
    };
    convert(from.red, to.red);
    convert(from.green, to.green);
    convert(from.blue, to.blue);
    convert(from.alpha, to.alpha);
    convert(from.grey, to.grey);
}

/// Source pixels that a target pixel covers in one direction, at least one: [first, end).
struct Range
{
    Int32 first, end;

    Range(Int32 index, Int32 targetSize, Int32 sourceSize)
        : first(static_cast<Int32>(Int64(index) * sourceSize / targetSize))
        , end(std::max(first + 1, static_cast<Int32>(Int64(index + 1) * sourceSize / targetSize)))
    { }

    UInt64 size() const { return static_cast<UInt64>(end - first); }
};

/// Average of the pixels of a box, component by component.
void averageBox(const PixelBlock& block, const UInt8* source, const Range& xs, const Range& ys,
                const Range& zs, UInt8* target)
{
    const UInt64 count = xs.size() * ys.size() * zs.size();
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

}  // namespace

const PixelLayout* pixelLayout(UInt32 format)
{
    const auto* const found =
        std::find_if(std::begin(kLayouts), std::end(kLayouts),
                     [&](const PixelLayout& layout) { return layout.format == format; });
    return found != std::end(kLayouts) ? found : nullptr;
}

void convertPixels(const PixelLayout& from, const UInt8* source, const PixelLayout& to,
                   UInt8* target, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i) {
        convertPixel(from, source + i * from.components, to, target + i * to.components);
    }
}

std::size_t PixelBlock::offset(Int32 x, Int32 y, Int32 z) const
{
    const auto row = static_cast<std::size_t>(z) * static_cast<std::size_t>(height) +
        static_cast<std::size_t>(y);
    return (row * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)) * components;
}

void resamplePixels(const PixelBlock& from, const UInt8* source, const PixelBlock& to,
                    UInt8* target)
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

}  // namespace osg
