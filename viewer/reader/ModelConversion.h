// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/loading/ModelData.h"

struct aiScene;

namespace viewer {

/// Takes the triangles, materials, pictures and nodes out of an imported scene.
/// Triangles with a corner that is not finite are left out, with a warning; so are pictures that
/// cannot be read.
/// @param path   of the model's file, beside which its pictures lie
/// @param error  what it has that no scene can have; untouched for nothing
ModelData convertScene(const aiScene& scene, const QString& path, QString& error);

}  // namespace viewer
