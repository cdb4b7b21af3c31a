// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/Frame.h>

namespace nbrender {

/// Where a frame is drawn: colour, effect and depth with several samples per pixel, and two
/// textures that receive the resolved colour and effect. 8 bits per component, unconverted.
///
/// A copy of the buffers can be kept, sample by sample, and put back. Pixels that were not drawn on
/// since are neither copied nor resolved again; who draws says which they were, see markDrawn().
class FrameTargets
{
public:
    enum class Buffer
    {
        Color,
        Effect
    };

    /// Makes the buffers for a size, if they are not there yet, and binds them for drawing.
    /// @param samples  wanted samples per pixel; the driver's limit holds, 1 or less is one
    /// @param error    receives a line on failure
    /// @param depthFormat  of the depth buffer
    bool bind(Gl& gl, int width, int height, int samples, GLenum depthFormat, std::string& error);

    /// Notes that something was or will be drawn within a box.
    void markDrawn(const PixelBox& box);

    /// Fills a texture from what was drawn since.
    void resolve(Gl& gl, Buffer buffer);

    /// Keeps a copy of all that was drawn, in place of the former copy. Costs the memory of the
    /// buffers once more.
    /// @return false, without a copy, if the driver refuses it
    bool keep(Gl& gl);

    bool hasKept() const { return isKept; }

    /// Where the buffers may differ from the copy.
    const PixelBox& getDifference() const { return difference; }

    /// Puts the copy back; bound for drawing afterwards.
    void restore(Gl& gl);

    /// Texture with the resolved picture.
    GLuint getTexture(Buffer buffer) const { return textures[buffer == Buffer::Color ? 0 : 1]; }

    /// Framebuffer whose first buffer is the resolved colour, whose second the resolved effect.
    GLuint getResolved() const { return resolveFramebuffer; }

    void release(Gl& gl);

    void forget() { *this = FrameTargets(); }

private:
    /// A framebuffer to draw into and its colour, effect and depth.
    struct Layers
    {
        GLuint framebuffer = 0;
        GLuint renderbuffers[3] = { 0, 0, 0 };
    };

    bool make(Gl& gl, int samples, std::string& error);
    bool makeLayers(Gl& gl, Layers& layers) const;
    static void release(Gl& gl, Layers& layers);
    /// Copies colour, effect and depth of all samples.
    static void copy(Gl& gl, const Layers& from, const Layers& to, const PixelBox& box);

    int madeWidth = 0;
    int madeHeight = 0;
    int wantedSamples = 0;
    int madeSamples = 0;
    GLenum madeDepthFormat = 0;
    Layers drawn;
    Layers kept;
    bool isKept = false;
    PixelBox difference;  ///< of drawn and kept
    PixelBox unresolved[2];
    GLuint resolveFramebuffer = 0;
    GLuint textures[2] = { 0, 0 };
};

}  // namespace nbrender
