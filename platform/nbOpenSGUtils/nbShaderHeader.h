// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <string>

/// Kinds of shader programs.
enum class nbShaderStage
{
    Vertex,
    Geometry,
    Fragment
};

/// The preamble of a shader program: GLSL version 3.30 core and the declarations of what the
/// renderer supplies. A program is this text followed by its own declarations and main().
///
/// transforms, matrices of column vectors and view data, in every stage:
///     uniform mat4 nbWorldFromObject, nbViewFromWorld, nbClipFromView;
///     uniform mat4 nbClipFromObject;   product of the three: clip position = nbClipFromObject *
///     position uniform vec2 nbViewportSize;     device pixels
/// and in the vertex stage also the position of the vertex in the object's frame:
///     layout (location = 0) in vec3 nbPosition;
/// surface, in the vertex stage the other attributes of the vertex (a geometry without colours
/// gives white, without texture coordinates 0), elsewhere nothing:
///     layout (location = 1) in vec3 nbNormal;
///     layout (location = 2) in vec4 nbColor;
///     layout (location = 3) in vec2 nbTexCoord;
/// texture, in every stage, the image of the material's texture chunk:
///     uniform sampler2D nbTexture;
///
/// Clip depths are in the terms of the renderer's depth layout, which may run backwards: programs
/// take them from the matrices and do not count on a direction.
///
/// A fragment program declares its outputs itself: location 0 is the colour buffer, location 1 the
/// effect buffer. With all flags off the text is the version line alone.
/// @return text that ends with a line break
NB_PLATFORM_API std::string shaderHeaderString(nbShaderStage stage, bool transforms, bool surface,
                                               bool texture);
