// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/loading/ModelData.h"

#include <functional>
#include <optional>

namespace viewer {

/// Told how far reading is, 0 .. 1; answers whether to go on. Called in the reading thread.
using ReadProgress = std::function<bool(double)>;

/// Reads a model file (OBJ, PLY, STL, glTF, GLB, 3DS, ...) or a picture, which becomes an upright
/// rectangle of height 2. Touches no scene graph and no widget, so that it may run in any thread.
/// Never throws.
/// @param progress  may be empty
/// @param error  one line that begins with the path when the answer is nothing
std::optional<ModelData> readModelFile(const QString& path, const ReadProgress& progress,
                                       QString& error);

/// Name filter for a file dialogue, such as "Models and pictures (*.obj *.ply ...)".
QString modelFileFilter();

/// Name and version of the library that reads model files, such as "Assimp 5.2.4".
QString modelLibraryVersion();

/// Whether the name's ending is that of a file that readModelFile() may be able to read.
bool isModelFileName(const QString& path);

}  // namespace viewer
