// SPDX-License-Identifier: MIT
#include "HostState.h"

#include <iterator>

namespace nbrender {

namespace {

/// Those that drawing needs on come first.
constexpr std::size_t kOnCount = 2;
constexpr GLenum kCapabilities[] = { GL_MULTISAMPLE,
                                     GL_PROGRAM_POINT_SIZE,
                                     GL_DEPTH_TEST,
                                     GL_BLEND,
                                     GL_CULL_FACE,
                                     GL_SCISSOR_TEST,
                                     GL_STENCIL_TEST,
                                     GL_DITHER,
                                     GL_FRAMEBUFFER_SRGB,
                                     GL_COLOR_LOGIC_OP,
                                     GL_SAMPLE_COVERAGE,
                                     GL_SAMPLE_MASK,
                                     GL_SAMPLE_ALPHA_TO_COVERAGE,
                                     GL_SAMPLE_ALPHA_TO_ONE,
                                     GL_PRIMITIVE_RESTART,
                                     GL_RASTERIZER_DISCARD,
                                     GL_DEPTH_CLAMP,
                                     GL_POLYGON_OFFSET_FILL,
                                     GL_POLYGON_OFFSET_LINE,
                                     GL_POLYGON_OFFSET_POINT,
                                     GL_POLYGON_SMOOTH,
                                     GL_LINE_SMOOTH,
                                     GL_CLIP_DISTANCE0,
                                     GL_CLIP_DISTANCE1,
                                     GL_TEXTURE_CUBE_MAP_SEAMLESS };

void switchTo(Gl& gl, GLenum capability, bool on)
{
    if (on) {
        gl.glEnable(capability);
    } else {
        gl.glDisable(capability);
    }
}

}  // namespace

HostState::HostState(Gl& context)
    : gl(context)
{
    static_assert(std::size(kCapabilities) == kCapabilityCount);
    for (std::size_t i = 0; i < kCapabilityCount; ++i) {
        wasOn[i] = gl.glIsEnabled(kCapabilities[i]) == GL_TRUE;
        switchTo(gl, kCapabilities[i], i < kOnCount);
    }
    gl.glGetIntegerv(GL_VIEWPORT, viewport.data());
    gl.glGetIntegerv(GL_SCISSOR_BOX, scissor.data());
    gl.glGetBooleanv(GL_COLOR_WRITEMASK, colorMask.data());
    gl.glGetFloatv(GL_BLEND_COLOR, blendColor.data());
    gl.glGetFloatv(GL_DEPTH_RANGE, depthRange.data());
    gl.glGetFloatv(GL_POLYGON_OFFSET_FACTOR, &offset[0]);
    gl.glGetFloatv(GL_POLYGON_OFFSET_UNITS, &offset[1]);
    gl.glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    gl.glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    gl.glBlendEquation(GL_FUNC_ADD);
    gl.glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
}

HostState::~HostState()
{
    for (std::size_t i = 0; i < kCapabilityCount; ++i) {
        switchTo(gl, kCapabilities[i], wasOn[i]);
    }
    restoreFunctions();
    restoreBindings();
}

GLuint HostState::read(GLenum name) const
{
    std::array<GLint, 2> numbers {};  // of the polygon mode drivers tell one or two
    gl.glGetIntegerv(name, numbers.data());
    return static_cast<GLuint>(numbers[0]);
}

GLuint HostState::readOfFirstUnit(GLenum name) const
{
    gl.glActiveTexture(GL_TEXTURE0);
    return read(name);
}

void HostState::restoreFunctions() const
{
    gl.glDepthFunc(depthFunction);
    gl.glDepthMask(static_cast<GLboolean>(depthMask));
    gl.glDepthRange(depthRange[0], depthRange[1]);
    gl.glBlendFuncSeparate(blendSource, blendDestination, blendSourceAlpha, blendDestinationAlpha);
    gl.glBlendEquationSeparate(blendEquation, blendEquationAlpha);
    gl.glBlendColor(blendColor[0], blendColor[1], blendColor[2], blendColor[3]);
    gl.glColorMask(colorMask[0], colorMask[1], colorMask[2], colorMask[3]);
    gl.glCullFace(culledFace);
    gl.glFrontFace(frontFace);
    gl.glPolygonMode(GL_FRONT_AND_BACK, polygonMode);
    gl.glPolygonOffset(offset[0], offset[1]);
    gl.glViewport(viewport[0], viewport[1], viewport[2], viewport[3]);
    gl.glScissor(scissor[0], scissor[1], scissor[2], scissor[3]);
    gl.glPixelStorei(GL_UNPACK_ALIGNMENT, static_cast<GLint>(alignment));
}

void HostState::restoreBindings() const
{
    gl.glBindFramebuffer(GL_DRAW_FRAMEBUFFER, drawFramebuffer);
    gl.glBindFramebuffer(GL_READ_FRAMEBUFFER, readFramebuffer);
    gl.glUseProgram(program);
    gl.glBindVertexArray(vertexArray);
    gl.glBindBuffer(GL_ARRAY_BUFFER, arrayBuffer);
    gl.glActiveTexture(GL_TEXTURE0);
    gl.glBindTexture(GL_TEXTURE_2D, texture);
    gl.glBindSampler(0, sampler);
    gl.glActiveTexture(unit);
}

}  // namespace nbrender
