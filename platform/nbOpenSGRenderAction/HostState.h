// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/GlProgram.h>

#include <array>
#include <cstddef>

namespace nbrender {

/// State of an OpenGL context in which a host draws, too: set at construction to what drawing
/// starts from, given back at the end.
///
/// Kept: capabilities, masks, functions and ranges of depth and blending, faces and polygon mode,
/// viewport, scissor, pixel alignment, framebuffers, program, vertex array, array buffer, texture
/// unit, and texture and sampler of unit 0. Left as drawing leaves it: other units and targets.
class HostState
{
public:
    [[nodiscard]] explicit HostState(Gl& context);
    HostState(const HostState&) = delete;
    HostState& operator=(const HostState&) = delete;
    ~HostState();

private:
    /// A number of the context, as it is when the member is made that keeps it.
    GLuint read(GLenum name) const;
    /// The same of texture unit 0, which becomes the active one.
    GLuint readOfFirstUnit(GLenum name) const;
    void restoreFunctions() const;
    void restoreBindings() const;

    static constexpr std::size_t kCapabilityCount = 25;

    Gl& gl;
    std::array<bool, kCapabilityCount> wasOn {};
    GLenum depthFunction = read(GL_DEPTH_FUNC);
    GLuint depthMask = read(GL_DEPTH_WRITEMASK);
    GLenum blendSource = read(GL_BLEND_SRC_RGB);
    GLenum blendDestination = read(GL_BLEND_DST_RGB);
    GLenum blendSourceAlpha = read(GL_BLEND_SRC_ALPHA);
    GLenum blendDestinationAlpha = read(GL_BLEND_DST_ALPHA);
    GLenum blendEquation = read(GL_BLEND_EQUATION_RGB);
    GLenum blendEquationAlpha = read(GL_BLEND_EQUATION_ALPHA);
    GLenum culledFace = read(GL_CULL_FACE_MODE);
    GLenum frontFace = read(GL_FRONT_FACE);
    GLenum polygonMode = read(GL_POLYGON_MODE);
    GLuint alignment = read(GL_UNPACK_ALIGNMENT);
    GLuint drawFramebuffer = read(GL_DRAW_FRAMEBUFFER_BINDING);
    GLuint readFramebuffer = read(GL_READ_FRAMEBUFFER_BINDING);
    GLuint program = read(GL_CURRENT_PROGRAM);
    GLuint vertexArray = read(GL_VERTEX_ARRAY_BINDING);
    GLuint arrayBuffer = read(GL_ARRAY_BUFFER_BINDING);
    GLenum unit = read(GL_ACTIVE_TEXTURE);
    GLuint texture = readOfFirstUnit(GL_TEXTURE_BINDING_2D);
    GLuint sampler = readOfFirstUnit(GL_SAMPLER_BINDING);
    std::array<GLint, 4> viewport {};
    std::array<GLint, 4> scissor {};
    std::array<GLboolean, 4> colorMask {};
    std::array<GLfloat, 4> blendColor {};
    std::array<GLfloat, 2> depthRange {};
    std::array<GLfloat, 2> offset {};  ///< of polygons, factor and units
};

}  // namespace nbrender
