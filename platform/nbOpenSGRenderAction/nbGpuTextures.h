// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/nbGlProgram.h>

#include <OpenSG/OSGImage.h>
#include <OpenSG/OSGTextureChunk.h>

#include <unordered_map>

namespace nbrender {

/// A texture on the graphics card and what its image has.
struct GpuTexture
{
    GLuint name = 0;  ///< 0 if the image cannot be shown
    bool hasColor = false;
    bool hasAlpha = false;
};

/// Textures by the container id of their chunk: made on first use, anew when the chunk or its image
/// was edited, dropped when the chunk is gone. Needs the current context of its first use.
class GpuTextures
{
public:
    /// Texture of a chunk; name 0 without a valid image, or with one that the driver cannot hold,
    /// of which the log then has a line.
    const GpuTexture& get(Gl& gl, const osg::TextureChunkPtr& chunk);

    void collect(Gl& gl);
    void release(Gl& gl);

    void forget() { entries.clear(); }

private:
    struct Entry
    {
        osg::UInt64 stamp = 0;
        GpuTexture texture;
    };

    static GpuTexture upload(Gl& gl, const osg::TextureChunkPtr& chunk);

    std::unordered_map<osg::UInt32, Entry> entries;
};

}  // namespace nbrender
