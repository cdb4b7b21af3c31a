// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/loading/ModelData.h"

namespace viewer {

/// Writes a model to a file of the kind that its ending names (.glb, .gltf, .obj, .ply, .stl), with
/// further files of its name beside it where the kind has them. The program that reads models does
/// it; nothing is replaced before everything is written.
/// @return false with one line in `error` that begins with the path
bool writeModelFile(const QString& path, const ModelData& model, QString& error);

/// Name filter for a file dialogue.
QString exportFileFilter();

}  // namespace viewer
