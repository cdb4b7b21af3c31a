// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/loading/ModelData.h"

#include <array>
#include <vector>

namespace viewer {

/// A body turned on a lathe about the y axis.
/// @param profile  corners (radius, height) from the bottom up on the outside; a smooth curve is
///                 laid through them, and a corner given twice stays an edge; radii >= 0
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
