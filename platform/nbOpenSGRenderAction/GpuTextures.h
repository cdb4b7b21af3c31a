// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/GlProgram.h>

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGTextureChunk.h>

#include <array>
#include <cstddef>
#include <unordered_map>

namespace nbrender {

/// A texture on the graphics card and what its image has.
struct GpuTexture
{
    GLuint name = 0;  ///< 0 if the image cannot be shown
    bool hasColor = false;
    bool hasAlpha = false;
    bool isIntensity = false;  ///< colour and alpha are one value
    bool isPremultiplied = false;  ///< colours are times alpha
};

/// How a texture holds the pixels of an image.
enum class PixelForm : std::size_t
{
    Plain,  ///< as they are, rows from the bottom
    /// Colours times alpha, so that those of transparent pixels do not mix with their neighbours';
    /// as far as the image has bytes and alpha.
    Premultiplied,
    /// Red, green, blue and alpha, colours times alpha as Qt rounds them, rows from the top; an
    /// image larger than the driver allows is scaled down. For images of bytes.
    Plate
};

/// Textures by the container id of their chunk or image: made on first use, anew when these were
/// edited, dropped when they are gone. Mipmaps that an image lacks are made where they are wanted.
/// Needs the current context of its first use.
class GpuTextures
{
public:
    /// Texture of a chunk; name 0 without a valid image, or with one that the driver cannot hold,
    /// of which the log then has a line.
    const GpuTexture& get(Gl& gl, const osg::TextureChunkPtr& chunk);

    /// Texture of an image's first frame with all its mipmaps, to be used with a sampler of
    /// getSampler; name 0 as above.
    const GpuTexture& get(Gl& gl, const osg::ImagePtr& image, PixelForm form);

    /// Name of a sampler that filters smoothly and repeats, or keeps to the edge, in u and v.
    GLuint getSampler(Gl& gl, bool repeatU, bool repeatV);

    void collect(Gl& gl);
    void release(Gl& gl);

    void forget() { *this = GpuTextures(); }

private:
    struct Entry
    {
        osg::UInt64 stamp = 0;
        GpuTexture texture;
    };

    static constexpr std::size_t kFormCount = 3;
    static constexpr std::size_t kSamplerCount = 4;

    using Entries = std::unordered_map<osg::UInt32, Entry>;

    Entries chunkEntries;
    std::array<Entries, kFormCount> imageEntries;  ///< by PixelForm
    std::array<GLuint, kSamplerCount> samplers {};
};

}  // namespace nbrender
