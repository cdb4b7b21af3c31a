// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Texts of the renderer's own shader programs, complete with their preambles.
namespace nbrender::shaders {

/// What a fragment program of surfaces and lines can do; leaving parts out lets drivers test depth
/// early and saves time in software.
struct Features
{
    bool lit = true;  ///< shades; otherwise plain colours
    bool textured = true;  ///< mixes with a texture
    bool discards = true;  ///< has alpha test and line stipple
};

/// Materials for surfaceVertex and lineVertex.
std::string surfaceFragment(const Features& features);

std::string surfaceVertex();  ///< triangles and, with pointSize, points
std::string lineVertex();  ///< a line per instance, widened to a polygon with round ends

/// Widens the lines of a user's program, like lineVertex, from clip positions alone.
std::string lineGeometry();

/// Vertices of the polygon that lineVertex makes of a line, drawn as a triangle strip.
constexpr int kLinePolygonVertices = 14;

std::string fullScreenVertex();  ///< one triangle over everything, without attributes
std::string gradientFragment();  ///< the background
std::string presentFragment();  ///< copies a texture, opaque

}  // namespace nbrender::shaders
