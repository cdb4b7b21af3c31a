// SPDX-License-Identifier: MIT
#include "FrameTargets.h"

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
        madeDepthFormat = depthFormat;
        if (!make(gl, samples, error)) {
            release(gl);
            return false;
        }
        wantedSamples = samples;
    }
    gl.glBindFramebuffer(GL_FRAMEBUFFER, drawn.framebuffer);
    gl.glDrawBuffers(2, kOutputs);
    return true;
}

bool FrameTargets::make(Gl& gl, int samples, std::string& error)
{
    GLint largest = 0;
    gl.glGetIntegerv(GL_MAX_RENDERBUFFER_SIZE, &largest);
    if (madeWidth > largest || madeHeight > largest) {
        error = "a picture of " + sizeText(madeWidth, madeHeight) +
            " exceeds the driver's limit of " + std::to_string(largest);
        return false;
    }
    madeSamples = clampSamples(gl, samples);
    const bool canDraw = makeLayers(gl, drawn);
    markDrawn({ 0, 0, madeWidth, madeHeight });

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

bool FrameTargets::makeLayers(Gl& gl, Layers& layers) const
{
    gl.glGenFramebuffers(1, &layers.framebuffer);
    gl.glBindFramebuffer(GL_FRAMEBUFFER, layers.framebuffer);
    gl.glGenRenderbuffers(3, layers.renderbuffers);
    const GLenum formats[] = { GL_RGBA8, GL_RGBA8, madeDepthFormat };
    constexpr GLenum kAttachments[] = { GL_COLOR_ATTACHMENT0, GL_COLOR_ATTACHMENT1,
                                        GL_DEPTH_ATTACHMENT };
    for (int i = 0; i < 3; ++i) {
        gl.glBindRenderbuffer(GL_RENDERBUFFER, layers.renderbuffers[i]);
        gl.glRenderbufferStorageMultisample(GL_RENDERBUFFER, madeSamples > 1 ? madeSamples : 0,
                                            formats[i], madeWidth, madeHeight);
        gl.glFramebufferRenderbuffer(GL_FRAMEBUFFER, kAttachments[i], GL_RENDERBUFFER,
                                     layers.renderbuffers[i]);
    }
    return gl.glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
}

void FrameTargets::markDrawn(const PixelBox& box)
{
    difference.unite(box);
    for (PixelBox& waiting : unresolved) {
        waiting.unite(box);
    }
}

void FrameTargets::copy(Gl& gl, const Layers& from, const Layers& to, const PixelBox& box)
{
    gl.glBindFramebuffer(GL_READ_FRAMEBUFFER, from.framebuffer);
    gl.glBindFramebuffer(GL_DRAW_FRAMEBUFFER, to.framebuffer);
    const auto blit = [&gl, &box](GLbitfield mask) {
        gl.glBlitFramebuffer(box.left, box.bottom, box.right, box.top, box.left, box.bottom,
                             box.right, box.top, mask, GL_NEAREST);
    };
    for (const GLenum output : kOutputs) {
        gl.glReadBuffer(output);
        // The buffer of an attachment can only stand in its own place of the list.
        const GLenum outputs[] = { output == kOutputs[0] ? output : GLenum(GL_NONE),
                                   output == kOutputs[1] ? output : GLenum(GL_NONE) };
        gl.glDrawBuffers(2, outputs);
        blit(GL_COLOR_BUFFER_BIT);
    }
    blit(GL_DEPTH_BUFFER_BIT);
}

bool FrameTargets::keep(Gl& gl)
{
    isKept = kept.framebuffer != 0 || makeLayers(gl, kept);
    if (isKept) {
        copy(gl, drawn, kept, { 0, 0, madeWidth, madeHeight });
        difference = PixelBox();
    } else {
        release(gl, kept);
    }
    gl.glBindFramebuffer(GL_FRAMEBUFFER, drawn.framebuffer);
    gl.glDrawBuffers(2, kOutputs);
    return isKept;
}

void FrameTargets::restore(Gl& gl)
{
    if (isKept && !difference.isEmpty()) {
        copy(gl, kept, drawn, difference);
        markDrawn(difference);
        difference = PixelBox();
    }
    gl.glBindFramebuffer(GL_FRAMEBUFFER, drawn.framebuffer);
    gl.glDrawBuffers(2, kOutputs);
}

void FrameTargets::resolve(Gl& gl, Buffer buffer)
{
    const int index = buffer == Buffer::Color ? 0 : 1;
    PixelBox& box = unresolved[index];
    if (box.isEmpty()) {
        return;
    }
    gl.glBindFramebuffer(GL_READ_FRAMEBUFFER, drawn.framebuffer);
    gl.glBindFramebuffer(GL_DRAW_FRAMEBUFFER, resolveFramebuffer);
    gl.glReadBuffer(kOutputs[index]);
    gl.glDrawBuffer(kOutputs[index]);
    gl.glBlitFramebuffer(box.left, box.bottom, box.right, box.top, box.left, box.bottom, box.right,
                         box.top, GL_COLOR_BUFFER_BIT, GL_NEAREST);
    box = PixelBox();
}

void FrameTargets::release(Gl& gl, Layers& layers)
{
    gl.glDeleteFramebuffers(1, &layers.framebuffer);
    gl.glDeleteRenderbuffers(3, layers.renderbuffers);
    layers = Layers();
}

void FrameTargets::release(Gl& gl)
{
    release(gl, drawn);
    release(gl, kept);
    gl.glDeleteFramebuffers(1, &resolveFramebuffer);
    gl.glDeleteTextures(2, textures);
    forget();
}

}  // namespace nbrender
