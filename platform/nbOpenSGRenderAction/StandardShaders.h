// SPDX-License-Identifier: MIT
#pragma once

#include <nbOpenSGRenderAction/UberMaterialShader.h>

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
    /// Pictures of an UberMaterial that it shows; surfaces only.
    PictureKinds pictures { kNoPicture, kNoPicture };
};

/// Clip planes that a vertex program made with them obeys: uniform vec4 array "clipPlanes" in view
/// space, written to as many clip distances. Planes of zeros cut nothing.
enum class Clipping
{
    Off,
    On
};

/// Materials for surfaceVertex and lineVertex.
std::string surfaceFragment(const Features& features);

/// Triangles and, with pointSize, points.
/// @param projected  for a fragment program that shows pictures
std::string surfaceVertex(Clipping clipping = Clipping::Off, bool projected = false);

std::string
lineVertex(Clipping clipping =
               Clipping::Off);  ///< a line per instance, widened to a polygon with round ends

/// Widens the lines of a user's program, like lineVertex, from clip positions alone.
std::string lineGeometry();

/// Vertices of the polygon that lineVertex makes of a line, drawn as a triangle strip.
constexpr int kLinePolygonVertices = 14;

/// Body of a program of one triangle over everything, without attributes; tells the fragment
/// program its "place", from (0, 0) to (1, 1).
extern const char* const kFullScreenVertex;

}  // namespace nbrender::shaders
