// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGAttachmentContainer.h>

namespace osg {
OSG_DECLARED_POINTER(Image, AttachmentContainerPtr);

class Image : public AttachmentContainer
{
    OSG_DECLARED_CLASS(Image, AttachmentContainer)

    enum Type
    {
        OSG_UINT8_IMAGEDATA = GL_UNSIGNED_BYTE,
        OSG_UINT16_IMAGEDATA = GL_UNSIGNED_SHORT,
        OSG_UINT32_IMAGEDATA = GL_UNSIGNED_INT,
        OSG_FLOAT32_IMAGEDATA = GL_FLOAT,
        OSG_FLOAT16_IMAGEDATA = GL_HALF_FLOAT
    };

    enum PixelFormat
    {
        OSG_A_PF = GL_ALPHA,
        OSG_I_PF = GL_INTENSITY,
        OSG_L_PF = GL_LUMINANCE,
        OSG_LA_PF = GL_LUMINANCE_ALPHA,
        OSG_RGB_PF = GL_RGB,
        OSG_BGR_PF = GL_BGR,
        OSG_RGBA_PF = GL_RGBA,
        OSG_BGRA_PF = GL_BGRA
    };
    OSG_DECLARED_VALUE(Width, Int32)
    OSG_DECLARED_VALUE(Height, Int32)
    OSG_DECLARED_VALUE(Depth, Int32)
    OSG_DECLARED_VALUE(Bpp, Int32)
    OSG_DECLARED_VALUE(MipMapCount, Int32)
    OSG_DECLARED_VALUE(FrameCount, Int32)
    OSG_DECLARED_VALUE(SideCount, Int32)
    OSG_DECLARED_VALUE(PixelFormat, UInt32)
    OSG_DECLARED_VALUE(DataType, Int32)
    OSG_DECLARED_VALUE(ForceAlphaChannel, bool)
    OSG_DECLARED_MASK(Pixel)
    bool set(UInt32 pixelFormat, Int32 width, Int32 height = 1, Int32 depth = 1,
             Int32 mipmapCount = 1, Int32 frameCount = 1, Time frameDelay = 0.0,
             const UInt8* data = 0, Int32 type = OSG_UINT8_IMAGEDATA, bool allocMem = true,
             Int32 sideCount = 1);
    bool set(ImagePtr other);
    UInt8* getData(UInt32 mipmap = 0, UInt32 frame = 0, UInt32 side = 0);
    UInt32 getSize(bool withMipmaps = true, bool withFrames = true, bool withSides = true) const;
    bool hasAlphaChannel();
    bool hasColorChannel();
    UInt8 getComponents() const;
    bool isValid() const;
    UInt32 calcMipmapLevelCount() const;
    bool reformat(const PixelFormat format, ImagePtr destination = NullFC);
    bool createMipmap(Int32 level = -1, ImagePtr destination = NullFC);
    bool scale(Int32 width, Int32 height = 1, Int32 depth = 1, ImagePtr destination = NullFC);
    bool scaleNextPower2(ImagePtr destination = NullFC);
    bool read(const Char8* file);
    bool write(const Char8* file);
};
}  // namespace osg
