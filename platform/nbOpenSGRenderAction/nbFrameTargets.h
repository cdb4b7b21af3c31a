// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/nbGlProgram.h>

#include <QtGui/QImage>

namespace nbrender {

/// Where a frame is drawn: colour, effect and depth with several samples per pixel, and two
/// textures that receive the resolved colour and effect. 8 bits per component, unconverted; depth
/// has 24 bits.
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

    /// Fills a texture from what was drawn since bind().
    void resolve(Gl& gl, Buffer buffer);

    /// Texture with the resolved picture.
    GLuint getTexture(Buffer buffer) const { return textures[buffer == Buffer::Color ? 0 : 1]; }

    /// Framebuffer whose first buffer is the resolved colour, whose second the resolved effect.
    GLuint getResolved() const { return resolveFramebuffer; }

    /// The resolved picture, rows from top to bottom: colour without alpha, effect with it. Null
    /// before the first frame.
    QImage read(Gl& gl, Buffer buffer);

    /// Samples per pixel that the driver really gave.
    int getSamples() const { return madeSamples; }

    void release(Gl& gl);

    void forget() { *this = FrameTargets(); }

private:
    bool make(Gl& gl, int samples, GLenum depthFormat, std::string& error);

    int madeWidth = 0;
    int madeHeight = 0;
    int wantedSamples = 0;
    int madeSamples = 0;
    GLuint drawFramebuffer = 0;
    GLuint resolveFramebuffer = 0;
    GLuint renderbuffers[3] = { 0, 0, 0 };  ///< colour, effect, depth
    GLuint textures[2] = { 0, 0 };
};

}  // namespace nbrender
