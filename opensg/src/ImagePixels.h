// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <cstddef>

/// @file
/// Arithmetic on pixels of one byte per component. Knows no container.
namespace osg {

/// Which components a pixel format has and where they are in a pixel; -1: not there.
struct PixelLayout
{
    UInt32 format;
    UInt8 components;
    Int8 red, green, blue, grey, alpha;
};

/// The layout of one of Image's pixel formats; null for any other number.
const PixelLayout* pixelLayout(UInt32 format);

/// Converts pixels from one layout to another, see Image::reformat.
void convertPixels(const PixelLayout& from, const UInt8* source, const PixelLayout& to,
                   UInt8* target, std::size_t count);

/// Size of a block of pixels.
struct PixelBlock
{
    Int32 width, height, depth;
    UInt32 components;

    /// Place of a pixel's first byte.
    std::size_t offset(Int32 x, Int32 y, Int32 z) const;
};

/// Each target pixel becomes the average of the source pixels that it covers, rounded down; at
/// least the nearest one.
void resamplePixels(const PixelBlock& from, const UInt8* source, const PixelBlock& to,
                    UInt8* target);

}  // namespace osg
