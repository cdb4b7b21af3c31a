// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Texts of the renderer's own shader programs, complete with their preambles.
namespace nbrender::shaders {

std::string surfaceVertex();  ///< triangles and, with pointSize, points
std::string lineVertex();  ///< a line per instance, widened to a polygon with round ends
std::string surfaceFragment();  ///< materials for both of them

/// Widens the lines of a user's program, like lineVertex, from clip positions alone.
std::string lineGeometry();

/// Vertices of the polygon that lineVertex makes of a line, drawn as a triangle fan.
constexpr int kLinePolygonVertices = 14;

std::string fullScreenVertex();  ///< one triangle over everything, without attributes
std::string gradientFragment();  ///< the background
std::string presentFragment();  ///< copies a texture, opaque

}  // namespace nbrender::shaders
