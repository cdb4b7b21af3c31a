// SPDX-License-Identifier: MIT
#include "nbFrameTargets.h"

#include <algorithm>

namespace nbrender {

namespace {

constexpr GLenum kOutputs[] = { GL_COLOR_ATTACHMENT0, GL_COLOR_ATTACHMENT1 };

int clampSamples(Gl& gl, int samples)
{
    GLint color = 1;
    gl.glGetIntegerv(GL_MAX_SAMPLES, &color);
    return std::clamp(samples, 1, std::max<int>(color, 1));
}

std::string sizeText(int width, int height)
{
    return std::to_string(width) + " x " + std::to_string(height) + " pixels";
}

}  // namespace

bool FrameTargets::bind(Gl& gl, int width, int height, int samples, GLenum depthFormat,
                        std::string& error)
{
    if (width != madeWidth || height != madeHeight || samples != wantedSamples) {
        release(gl);
        madeWidth = width;
        madeHeight = height;
        if (!make(gl, samples, depthFormat, error)) {
            release(gl);
            return false;
        }
        wantedSamples = samples;
    }
    gl.glBindFramebuffer(GL_FRAMEBUFFER, drawFramebuffer);
    gl.glDrawBuffers(2, kOutputs);
    return true;
}

bool FrameTargets::make(Gl& gl, int samples, GLenum depthFormat, std::string& error)
{
    GLint largest = 0;
    gl.glGetIntegerv(GL_MAX_RENDERBUFFER_SIZE, &largest);
    if (madeWidth > largest || madeHeight > largest) {
        error = "a picture of " + sizeText(madeWidth, madeHeight) +
            " exceeds the driver's limit of " + std::to_string(largest);
        return false;
    }
    madeSamples = clampSamples(gl, samples);
    gl.glGenFramebuffers(1, &drawFramebuffer);
    gl.glBindFramebuffer(GL_FRAMEBUFFER, drawFramebuffer);
    gl.glGenRenderbuffers(3, renderbuffers);
    const GLenum formats[] = { GL_RGBA8, GL_RGBA8, depthFormat };
    constexpr GLenum kAttachments[] = { GL_COLOR_ATTACHMENT0, GL_COLOR_ATTACHMENT1,
                                        GL_DEPTH_ATTACHMENT };
    for (int i = 0; i < 3; ++i) {
        gl.glBindRenderbuffer(GL_RENDERBUFFER, renderbuffers[i]);
        gl.glRenderbufferStorageMultisample(GL_RENDERBUFFER, madeSamples > 1 ? madeSamples : 0,
                                            formats[i], madeWidth, madeHeight);
        gl.glFramebufferRenderbuffer(GL_FRAMEBUFFER, kAttachments[i], GL_RENDERBUFFER,
                                     renderbuffers[i]);
    }
    const bool canDraw = gl.glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;

    gl.glGenFramebuffers(1, &resolveFramebuffer);
    gl.glBindFramebuffer(GL_FRAMEBUFFER, resolveFramebuffer);
    gl.glGenTextures(2, textures);
    for (int i = 0; i < 2; ++i) {
        gl.glBindTexture(GL_TEXTURE_2D, textures[i]);
        gl.glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, madeWidth, madeHeight, 0, GL_RGBA,
                        GL_UNSIGNED_BYTE, nullptr);
        gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
        gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
        gl.glFramebufferTexture2D(GL_FRAMEBUFFER, kOutputs[i], GL_TEXTURE_2D, textures[i], 0);
    }
    gl.glBindTexture(GL_TEXTURE_2D, 0);
    const bool canResolve = gl.glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
    if (!canDraw || !canResolve) {
        error = "the driver refuses frame buffers of " + sizeText(madeWidth, madeHeight) +
            " with " + std::to_string(madeSamples) + " samples";
    }
    return canDraw && canResolve;
}

void FrameTargets::resolve(Gl& gl, Buffer buffer)
{
    const GLenum output = kOutputs[buffer == Buffer::Color ? 0 : 1];
    gl.glBindFramebuffer(GL_READ_FRAMEBUFFER, drawFramebuffer);
    gl.glBindFramebuffer(GL_DRAW_FRAMEBUFFER, resolveFramebuffer);
    gl.glReadBuffer(output);
    gl.glDrawBuffer(output);
    gl.glBlitFramebuffer(0, 0, madeWidth, madeHeight, 0, 0, madeWidth, madeHeight,
                         GL_COLOR_BUFFER_BIT, GL_NEAREST);
}

QImage FrameTargets::read(Gl& gl, Buffer buffer)
{
    if (resolveFramebuffer == 0) {
        return {};
    }
    GLint readBefore = 0;
    GLint drawnBefore = 0;
    gl.glGetIntegerv(GL_READ_FRAMEBUFFER_BINDING, &readBefore);
    gl.glGetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &drawnBefore);
    resolve(gl, buffer);
    QImage picture(madeWidth, madeHeight, QImage::Format_RGBA8888);
    gl.glBindFramebuffer(GL_READ_FRAMEBUFFER, resolveFramebuffer);
    gl.glReadBuffer(kOutputs[buffer == Buffer::Color ? 0 : 1]);
    gl.glReadPixels(0, 0, madeWidth, madeHeight, GL_RGBA, GL_UNSIGNED_BYTE, picture.bits());
    gl.glBindFramebuffer(GL_READ_FRAMEBUFFER, static_cast<GLuint>(readBefore));
    gl.glBindFramebuffer(GL_DRAW_FRAMEBUFFER, static_cast<GLuint>(drawnBefore));
    QImage upright = picture.mirrored();
    if (buffer == Buffer::Effect) {
        return upright;
    }
    // Blending leaves fractions in the alpha of the colour buffer, which the picture does not have.
    QImage opaque = upright.convertToFormat(QImage::Format_RGBX8888);
    constexpr uchar kOpaque = 0xff;
    for (int y = 0; y < opaque.height(); ++y) {
        uchar* row = opaque.scanLine(y);
        for (int x = 0; x < opaque.width(); ++x) {
            row[4 * x + 3] = kOpaque;
        }
    }
    return opaque;
}

void FrameTargets::release(Gl& gl)
{
    gl.glDeleteFramebuffers(1, &drawFramebuffer);
    gl.glDeleteFramebuffers(1, &resolveFramebuffer);
    gl.glDeleteRenderbuffers(3, renderbuffers);
    gl.glDeleteTextures(2, textures);
    forget();
}

}  // namespace nbrender
