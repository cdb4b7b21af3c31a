// SPDX-License-Identifier: MIT
#include "GpuTextures.h"

#include <nbOpenSGRenderAction/nbImageConvert.h>
#include <nbOpenSGUtils/nbDropDead.h>
#include <nbUtils/nbLog.h>

#include <OpenSG/OSGImage.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include <ContentStamp.h>

namespace nbrender {

namespace {

/// How an image format is kept: core profiles know red, green, blue and alpha alone; the old
/// formats are made of these by swizzling.
struct Layout
{
    osg::UInt32 format;
    GLenum external;
    GLint swizzle[4];

    bool hasColor() const { return format != osg::Image::OSG_A_PF; }

    bool hasAlpha() const { return swizzle[3] != GL_ONE; }

    GLenum internal(bool ofBytes) const
    {
        switch (external) {
        case GL_RED:
            return ofBytes ? GL_R8 : GL_R16F;
        case GL_RG:
            return ofBytes ? GL_RG8 : GL_RG16F;
        case GL_RGB:
        case GL_BGR:
            return ofBytes ? GL_RGB8 : GL_RGB16F;
        default:
            return ofBytes ? GL_RGBA8 : GL_RGBA16F;
        }
    }
};

constexpr Layout kLayouts[] = {
    { osg::Image::OSG_A_PF, GL_RED, { GL_ONE, GL_ONE, GL_ONE, GL_RED } },
    { osg::Image::OSG_I_PF, GL_RED, { GL_RED, GL_RED, GL_RED, GL_RED } },
    { osg::Image::OSG_L_PF, GL_RED, { GL_RED, GL_RED, GL_RED, GL_ONE } },
    { osg::Image::OSG_LA_PF, GL_RG, { GL_RED, GL_RED, GL_RED, GL_GREEN } },
    { osg::Image::OSG_RGB_PF, GL_RGB, { GL_RED, GL_GREEN, GL_BLUE, GL_ONE } },
    { osg::Image::OSG_BGR_PF, GL_BGR, { GL_RED, GL_GREEN, GL_BLUE, GL_ONE } },
    { osg::Image::OSG_RGBA_PF, GL_RGBA, { GL_RED, GL_GREEN, GL_BLUE, GL_ALPHA } },
    { osg::Image::OSG_BGRA_PF, GL_BGRA, { GL_RED, GL_GREEN, GL_BLUE, GL_ALPHA } },
};

const Layout* findLayout(osg::UInt32 format)
{
    const auto found = std::find_if(std::begin(kLayouts), std::end(kLayouts),
                                    [format](const Layout& l) { return l.format == format; });
    return found == std::end(kLayouts) ? nullptr : found;
}

/// GL_CLAMP mixed with a border that core profiles do not have.
GLint wrapping(GLenum mode)
{
    constexpr GLenum kClamp = 0x2900;
    return static_cast<GLint>(mode == kClamp ? GLenum(GL_CLAMP_TO_EDGE) : mode);
}

void setParameters(Gl& gl, const osg::TextureChunkPtr& chunk)
{
    const auto set = [&gl](GLenum name, GLint value) {
        gl.glTexParameteri(GL_TEXTURE_2D, name, value);
    };
    set(GL_TEXTURE_MIN_FILTER, static_cast<GLint>(chunk->getMinFilter()));
    set(GL_TEXTURE_MAG_FILTER, static_cast<GLint>(chunk->getMagFilter()));
    set(GL_TEXTURE_WRAP_S, wrapping(chunk->getWrapS()));
    set(GL_TEXTURE_WRAP_T, wrapping(chunk->getWrapT()));
}

/// Pixels of bytes with their colours times alpha, which is the last component.
std::vector<osg::UInt8> premultiply(const osg::UInt8* pixels, std::size_t count,
                                    std::size_t components)
{
    constexpr unsigned int kFull = 255;
    std::vector<osg::UInt8> result(pixels, pixels + count * components);
    for (std::size_t pixel = 0; pixel < result.size(); pixel += components) {
        const unsigned int alpha = result[pixel + components - 1];
        for (std::size_t i = pixel; i + 1 < pixel + components; ++i) {
            result[i] = static_cast<osg::UInt8>((result[i] * alpha + kFull / 2) / kFull);
        }
    }
    return result;
}

/// How the levels of an image are uploaded.
struct UploadOptions
{
    osg::UInt32 frame = 0;
    bool wholeChain = true;  ///< missing mipmaps are made
    bool premultiplied = false;
};

void uploadLevel(Gl& gl, const osg::ImagePtr& image, osg::Int32 level, const Layout& layout,
                 const UploadOptions& options)
{
    const auto type = static_cast<GLenum>(image->getDataType());
    const GLenum internal = layout.internal(type == GL_UNSIGNED_BYTE);
    const GLsizei width = std::max(image->getWidth() >> level, 1);
    const GLsizei height = std::max(image->getHeight() >> level, 1);
    const osg::UInt8* data = image->getData(static_cast<osg::UInt32>(level), options.frame);
    std::vector<osg::UInt8> scaled;
    if (options.premultiplied) {
        scaled = premultiply(data, static_cast<std::size_t>(width) * height, image->getBpp());
        data = scaled.data();
    }
    gl.glTexImage2D(GL_TEXTURE_2D, level, static_cast<GLint>(internal), width, height, 0,
                    layout.external, type, data);
}

/// Uploads the levels that the image has; with a whole chain, the driver makes the missing ones of
/// the last that there is.
void uploadLevels(Gl& gl, const osg::ImagePtr& image, const Layout& layout,
                  const UploadOptions& options)
{
    const osg::Int32 levels = std::max(image->getMipMapCount(), 1);
    gl.glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    for (osg::Int32 level = 0; level < levels; ++level) {
        uploadLevel(gl, image, level, layout, options);
    }
    gl.glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    if (options.wholeChain && levels < static_cast<osg::Int32>(image->calcMipmapLevelCount())) {
        gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_BASE_LEVEL, levels - 1);
        gl.glGenerateMipmap(GL_TEXTURE_2D);
        gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_BASE_LEVEL, 0);
    } else {
        gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAX_LEVEL, levels - 1);
    }
}

GLint largestSize(Gl& gl)
{
    GLint largest = 0;
    gl.glGetIntegerv(GL_MAX_TEXTURE_SIZE, &largest);
    return largest;
}

/// Makes a texture of an image's frame, bound when it returns. Name 0 if it cannot be shown.
GpuTexture upload(Gl& gl, const osg::ImagePtr& image, UploadOptions options)
{
    GpuTexture result;
    if (image == osg::NullFC || !image->isValid() || image->getData(0, options.frame) == nullptr) {
        return result;
    }
    const Layout* layout = findLayout(image->getPixelFormat());
    const GLint largest = largestSize(gl);
    if (layout == nullptr || image->getWidth() > largest || image->getHeight() > largest) {
        nbLog::error("texture of " + std::to_string(image->getWidth()) + " x " +
                     std::to_string(image->getHeight()) + " pixels, format " +
                     std::to_string(image->getPixelFormat()) +
                     ", cannot be shown by this driver (limit " + std::to_string(largest) + ")");
        return result;
    }
    const bool isIntensity = layout->format == osg::Image::OSG_I_PF;
    gl.glGenTextures(1, &result.name);
    gl.glBindTexture(GL_TEXTURE_2D, result.name);
    gl.glTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_SWIZZLE_RGBA, layout->swizzle);
    options.premultiplied = options.premultiplied && layout->hasAlpha() && layout->hasColor() &&
        !isIntensity && image->getDataType() == osg::Image::OSG_UINT8_IMAGEDATA;
    uploadLevels(gl, image, *layout, options);
    result.hasColor = layout->hasColor();
    result.hasAlpha = layout->hasAlpha();
    result.isIntensity = isIntensity;
    result.isPremultiplied = options.premultiplied;
    return result;
}

GpuTexture upload(Gl& gl, const osg::TextureChunkPtr& chunk)
{
    const GLenum filter = chunk->getMinFilter();
    const bool wholeChain = filter != GL_NEAREST && filter != GL_LINEAR;
    const GpuTexture result =
        upload(gl, chunk->getImage(), UploadOptions { chunk->getFrame(), wholeChain, false });
    if (result.name != 0) {
        setParameters(gl, chunk);
    }
    return result;
}

/// Makes a texture of the form of plates, bound when it returns.
GpuTexture uploadPlate(Gl& gl, const osg::ImagePtr& image)
{
    const GLint largest = largestSize(gl);
    QImage picture = nbImageConvert::toPicture(image);
    if (std::max(picture.width(), picture.height()) > largest) {
        picture = picture.scaled(largest, largest, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    picture = picture.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
    GpuTexture result { 0, true, true, false, true };
    gl.glGenTextures(1, &result.name);
    gl.glBindTexture(GL_TEXTURE_2D, result.name);
    gl.glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, picture.width(), picture.height(), 0, GL_RGBA,
                    GL_UNSIGNED_BYTE, picture.constBits());
    gl.glGenerateMipmap(GL_TEXTURE_2D);
    return result;
}

GpuTexture upload(Gl& gl, const osg::ImagePtr& image, PixelForm form)
{
    return form == PixelForm::Plate
        ? uploadPlate(gl, image)
        : upload(gl, image, UploadOptions { 0, true, form == PixelForm::Premultiplied });
}

}  // namespace

const GpuTexture& GpuTextures::get(Gl& gl, const osg::TextureChunkPtr& chunk)
{
    Entry& entry = chunkEntries[chunk.getFieldContainerId()];
    osg::ContentStamp stamp(chunk);
    stamp.add(chunk->getImage());
    if (entry.stamp != stamp.get()) {
        gl.glDeleteTextures(1, &entry.texture.name);
        entry.texture = upload(gl, chunk);
        entry.stamp = stamp.get();
    }
    return entry.texture;
}

const GpuTexture& GpuTextures::get(Gl& gl, const osg::ImagePtr& image, PixelForm form)
{
    Entries& entries = imageEntries[static_cast<std::size_t>(form)];
    Entry& entry = entries[image.getFieldContainerId()];
    const osg::UInt64 stamp = osg::ContentStamp(image).get();
    if (entry.stamp != stamp) {
        gl.glDeleteTextures(1, &entry.texture.name);
        entry.texture = upload(gl, image, form);
        entry.stamp = stamp;
    }
    return entry.texture;
}

GLuint GpuTextures::getSampler(Gl& gl, bool repeatU, bool repeatV)
{
    GLuint& sampler = samplers[(repeatU ? 1U : 0U) + (repeatV ? 2U : 0U)];
    if (sampler == 0) {
        gl.glGenSamplers(1, &sampler);
        gl.glSamplerParameteri(sampler, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
        gl.glSamplerParameteri(sampler, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
        gl.glSamplerParameteri(sampler, GL_TEXTURE_WRAP_S, repeatU ? GL_REPEAT : GL_CLAMP_TO_EDGE);
        gl.glSamplerParameteri(sampler, GL_TEXTURE_WRAP_T, repeatV ? GL_REPEAT : GL_CLAMP_TO_EDGE);
    }
    return sampler;
}

void GpuTextures::collect(Gl& gl)
{
    const auto destroy = [&gl](Entry& entry) { gl.glDeleteTextures(1, &entry.texture.name); };
    nbDropDead(chunkEntries, destroy);
    for (Entries& entries : imageEntries) {
        nbDropDead(entries, destroy);
    }
}

void GpuTextures::release(Gl& gl)
{
    for (auto& [id, entry] : chunkEntries) {
        gl.glDeleteTextures(1, &entry.texture.name);
    }
    for (Entries& entries : imageEntries) {
        for (auto& [id, entry] : entries) {
            gl.glDeleteTextures(1, &entry.texture.name);
        }
    }
    gl.glDeleteSamplers(static_cast<GLsizei>(samplers.size()), samplers.data());
    forget();
}

}  // namespace nbrender
