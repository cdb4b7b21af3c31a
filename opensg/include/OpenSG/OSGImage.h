// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGContainerMacros.h>
#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGImageFields.h>

#include <cstddef>

namespace osg {

#define OSG_IMAGE_FIELDS(VALUE, OWNED, LINK, VALUES, OWNEDS, LINKS)                                \
    VALUE(Width, width, Int32, 0)                                                                  \
    VALUE(Height, height, Int32, 1)                                                                \
    VALUE(Depth, depth, Int32, 1)                                                                  \
    VALUE(Bpp, bpp, Int32, 0)                                                                      \
    VALUE(MipMapCount, mipMapCount, Int32, 1)                                                      \
    VALUE(FrameCount, frameCount, Int32, 1)                                                        \
    VALUE(SideCount, sideCount, Int32, 1)                                                          \
    VALUE(FrameDelay, frameDelay, Time, 0.0)                                                       \
    VALUE(PixelFormat, pixelFormat, UInt32, 0)                                                     \
    VALUE(DataType, dataType, Int32, Image::OSG_UINT8_IMAGEDATA)                                   \
    VALUES(Pixel, pixel, UInt8)                                                                    \
    VALUE(ForceAlphaChannel, forceAlphaChannel, bool, false)                                       \
    VALUE(ForceColorChannel, forceColorChannel, bool, false)

/// Pixels, rows from bottom to top. An image may have a depth, a chain of mipmaps, frames and the
/// sides of a cube; its memory holds frame after frame, in each of them side after side, in each
/// of these mipmap after mipmap. getBpp is bytes per pixel.
///
/// Pixels written through getData show after an edit of PixelFieldMask. reformat, createMipmap and
/// scale work on components of one byte and answer false for others.
/// Left out of OpenSG's class: image files (read and write always fail), compressed formats,
/// subimages, comparison.
class Image : public AttachmentContainer
{
public:
    enum Type
    {
        OSG_INVALID_IMAGEDATA = 0,
        OSG_UINT8_IMAGEDATA = GL_UNSIGNED_BYTE,
        OSG_UINT16_IMAGEDATA = GL_UNSIGNED_SHORT,
        OSG_UINT32_IMAGEDATA = GL_UNSIGNED_INT,
        OSG_FLOAT32_IMAGEDATA = GL_FLOAT,
        OSG_FLOAT16_IMAGEDATA = GL_HALF_FLOAT
    };

    enum PixelFormat
    {
        OSG_INVALID_PF = 0,
        OSG_A_PF = GL_ALPHA,
        OSG_I_PF = GL_INTENSITY,
        OSG_L_PF = GL_LUMINANCE,
        OSG_LA_PF = GL_LUMINANCE_ALPHA,
        OSG_RGB_PF = GL_RGB,
        OSG_BGR_PF = GL_BGR,
        OSG_RGBA_PF = GL_RGBA,
        OSG_BGRA_PF = GL_BGRA
    };

    OSG_MULTI_CONTAINER(Image, AttachmentContainer, OSG_IMAGE_FIELDS);

public:
    /// Takes over sizes and a copy of the data. Opens its own edit, as all functions here do that
    /// change an image as a whole.
    /// @param pixelFormat  one of PixelFormat
    /// @param width, height, depth  pixels, at least 1
    /// @param frameDelay   seconds between frames
    /// @param data         all frames, sides and mipmaps; null: memory of zeros
    /// @param type         one of Type
    /// @param allocMem     false: sizes only, no memory
    /// @return false, and a warning, for sizes, formats or types that cannot be; nothing changes
    bool set(UInt32 pixelFormat, Int32 width, Int32 height = 1, Int32 depth = 1,
             Int32 mipmapCount = 1, Int32 frameCount = 1, Time frameDelay = 0.0,
             const UInt8* data = nullptr, Int32 type = OSG_UINT8_IMAGEDATA, bool allocMem = true,
             Int32 sideCount = 1);

    /// Becomes a copy of another image; false for null and for an image without a size.
    bool set(ImagePtr other);

    /// First byte of a mipmap; null without data or if it does not exist.
    UInt8* getData(UInt32 mipmap = 0, UInt32 frame = 0, UInt32 side = 0);
    const UInt8* getData(UInt32 mipmap = 0, UInt32 frame = 0, UInt32 side = 0) const;

    /// Bytes of the image, each of the three factors counted or taken as one.
    UInt32 getSize(bool withMipmaps = true, bool withFrames = true, bool withSides = true) const;

    /// Whether the format has alpha, or setForceAlphaChannel says so.
    bool hasAlphaChannel() const;

    /// Whether the format has red, green and blue, or setForceColorChannel says so.
    bool hasColorChannel() const;

    /// Components of a pixel, 1 .. 4; 0 for an image without format.
    UInt8 getComponents() const;

    /// Whether there are pixels.
    bool isValid() const;

    /// Levels of the whole mipmap chain down to one pixel.
    UInt32 calcMipmapLevelCount() const;

    /// Converts to another format, mipmaps, frames and sides along.
    ///
    /// Deliberate: brightness is the plain average of red, green and blue, rounded down, whatever
    /// the alpha; where a source without alpha meets a target with alpha, the alpha is the
    /// brightness, not 255; to its own format in place, or without data: false, unchanged.
    /// @param destination  receives the result, null: this image
    bool reformat(PixelFormat format, ImagePtr destination = NullFC);

    /// Makes a chain of mipmaps, each pixel the average of its box, rounded down.
    ///
    /// Deliberate: -1 makes one level less than the whole chain, but at least one.
    /// @param level        number of levels, the base counted
    /// @param destination  receives the result, null: this image
    bool createMipmap(Int32 level = -1, ImagePtr destination = NullFC);

    /// Scales the base level: each pixel the average of the pixels that it covers.
    bool scale(Int32 width, Int32 height = 1, Int32 depth = 1, ImagePtr destination = NullFC);

    /// Scales up to the next powers of two.
    bool scaleNextPower2(ImagePtr destination = NullFC);

    /// Files are the host's business: both log one warning and answer false.
    bool read(const Char8* fileName);
    bool write(const Char8* fileName) const;

private:
    /// Bytes of one level of one side of one frame.
    std::size_t levelBytes(UInt32 level) const;

    /// Whether there are pixels of one byte per component; otherwise a warning.
    bool canConvert(const Char8* operation) const;

    bool resampleTo(Int32 newWidth, Int32 newHeight, Int32 newDepth, Int32 levels,
                    const ImagePtr& destination);
};

}  // namespace osg
