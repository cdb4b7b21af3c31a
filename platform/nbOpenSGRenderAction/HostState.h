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
    void restoreFunctions() const;
    void restoreBindings() const;

    static constexpr std::size_t kCapabilityCount = 25;
    static constexpr std::size_t kNumbers = 21;

    Gl& gl;
    std::array<bool, kCapabilityCount> wasOn {};
    std::array<GLint, kNumbers> numbers {};
    std::array<GLint, 4> viewport {};
    std::array<GLint, 4> scissor {};
    std::array<GLboolean, 4> colorMask {};
    std::array<GLfloat, 4> blendColor {};
    std::array<GLfloat, 2> depthRange {};
    std::array<GLfloat, 2> offset {};  ///< of polygons, factor and units
};

}  // namespace nbrender
