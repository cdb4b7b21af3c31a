// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/core/ModelData.h"

#include <functional>

namespace viewer {

/// A point of a curved surface for parameters u and v, each 0 .. 1.
using SurfaceFunction = std::function<Vec3(float u, float v)>;

/// How finely a surface is cut, and where its ends meet.
struct SurfaceGrid
{
    unsigned uSteps = 1;  ///< pieces along u, > 0
    unsigned vSteps = 1;  ///< pieces along v, > 0
    bool uCloses = false;  ///< u = 0 and u = 1 are the same place
    bool vCloses = false;
};

/// Appends a surface to a mesh; normals come from differences along u and v and point to the side
/// from which u to v turns counter-clockwise.
void addSurface(const SurfaceFunction& surface, const SurfaceGrid& grid, MeshData& mesh);

/// A body turned on a lathe about the y axis.
/// @param profile  corners (radius, height) from the bottom up on the outside; a smooth curve is
/// laid through them, and a
///                 corner given twice stays an edge; radii >= 0
/// @param steps  pieces of the full turn, >= 3
MeshData makeLathe(const std::vector<std::array<float, 2>>& profile, unsigned steps);

/// A tube along the torus knot that winds twice about the y axis and three times about its ring.
/// @param ringRadius, tubeRadius  world units, > 0
MeshData makeTorusKnot(float ringRadius, float tubeRadius);

/// A closed, softly dented body about the origin.
/// @param radius  mean distance of its surface, > 0
MeshData makeBlob(float radius);

/// A sphere about the origin.
MeshData makeBall(float radius);

/// A twisted column of square section with rounded edges, standing on the origin along +y.
MeshData makeTwistedColumn(float halfWidth, float height);

}  // namespace viewer
