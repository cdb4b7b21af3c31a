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

/// Places in HostState::numbers.
enum Number : std::size_t
{
    DepthFunction,
    DepthMask,
    BlendSource,
    BlendDestination,
    BlendSourceAlpha,
    BlendDestinationAlpha,
    BlendEquation,
    BlendEquationAlpha,
    CulledFace,
    FrontFace,
    PolygonMode,
    PolygonModeEnd,  ///< drivers answer with one number or two
    Alignment,
    DrawFramebuffer,
    ReadFramebuffer,
    Program,
    VertexArray,
    ArrayBuffer,
    Unit,
    Texture,
    Sampler,
    NumberCount
};

constexpr GLenum kNames[NumberCount] = { GL_DEPTH_FUNC,
                                         GL_DEPTH_WRITEMASK,
                                         GL_BLEND_SRC_RGB,
                                         GL_BLEND_DST_RGB,
                                         GL_BLEND_SRC_ALPHA,
                                         GL_BLEND_DST_ALPHA,
                                         GL_BLEND_EQUATION_RGB,
                                         GL_BLEND_EQUATION_ALPHA,
                                         GL_CULL_FACE_MODE,
                                         GL_FRONT_FACE,
                                         GL_POLYGON_MODE,
                                         0,
                                         GL_UNPACK_ALIGNMENT,
                                         GL_DRAW_FRAMEBUFFER_BINDING,
                                         GL_READ_FRAMEBUFFER_BINDING,
                                         GL_CURRENT_PROGRAM,
                                         GL_VERTEX_ARRAY_BINDING,
                                         GL_ARRAY_BUFFER_BINDING,
                                         GL_ACTIVE_TEXTURE,
                                         GL_TEXTURE_BINDING_2D,
                                         GL_SAMPLER_BINDING };

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
    static_assert(std::size(kCapabilities) == kCapabilityCount && NumberCount == kNumbers);
    for (std::size_t i = 0; i < kCapabilityCount; ++i) {
        wasOn[i] = gl.glIsEnabled(kCapabilities[i]) == GL_TRUE;
        switchTo(gl, kCapabilities[i], i < kOnCount);
    }
    for (std::size_t i = 0; i < kNumbers; ++i) {
        if (i == Texture) {
            gl.glActiveTexture(GL_TEXTURE0);
        }
        if (kNames[i] != 0) {
            gl.glGetIntegerv(kNames[i], &numbers[i]);
        }
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

void HostState::restoreFunctions() const
{
    const auto name = [this](Number number) { return static_cast<GLenum>(numbers[number]); };
    gl.glDepthFunc(name(DepthFunction));
    gl.glDepthMask(static_cast<GLboolean>(numbers[DepthMask]));
    gl.glDepthRange(depthRange[0], depthRange[1]);
    gl.glBlendFuncSeparate(name(BlendSource), name(BlendDestination), name(BlendSourceAlpha),
                           name(BlendDestinationAlpha));
    gl.glBlendEquationSeparate(name(BlendEquation), name(BlendEquationAlpha));
    gl.glBlendColor(blendColor[0], blendColor[1], blendColor[2], blendColor[3]);
    gl.glColorMask(colorMask[0], colorMask[1], colorMask[2], colorMask[3]);
    gl.glCullFace(name(CulledFace));
    gl.glFrontFace(name(FrontFace));
    gl.glPolygonMode(GL_FRONT_AND_BACK, name(PolygonMode));
    gl.glPolygonOffset(offset[0], offset[1]);
    gl.glViewport(viewport[0], viewport[1], viewport[2], viewport[3]);
    gl.glScissor(scissor[0], scissor[1], scissor[2], scissor[3]);
    gl.glPixelStorei(GL_UNPACK_ALIGNMENT, numbers[Alignment]);
}

void HostState::restoreBindings() const
{
    const auto id = [this](Number number) { return static_cast<GLuint>(numbers[number]); };
    gl.glBindFramebuffer(GL_DRAW_FRAMEBUFFER, id(DrawFramebuffer));
    gl.glBindFramebuffer(GL_READ_FRAMEBUFFER, id(ReadFramebuffer));
    gl.glUseProgram(id(Program));
    gl.glBindVertexArray(id(VertexArray));
    gl.glBindBuffer(GL_ARRAY_BUFFER, id(ArrayBuffer));
    gl.glActiveTexture(GL_TEXTURE0);
    gl.glBindTexture(GL_TEXTURE_2D, id(Texture));
    gl.glBindSampler(0, id(Sampler));
    gl.glActiveTexture(id(Unit));
}

}  // namespace nbrender
