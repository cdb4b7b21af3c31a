// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/loading/ModelData.h"

#include <functional>
#include <optional>

namespace viewer {

/// Reads a model file, or a picture, which becomes an upright rectangle of height 2. The importer's
/// readers cannot be trusted with a stranger's file: they may fault, loop and take all memory.
/// @param progress  told how far it is, 0 .. 1
/// @param error  one line of reason, without the path, when the answer is nothing
std::optional<ModelData> importModel(const QString& path,
                                     const std::function<void(double)>& progress, QString& error);

}  // namespace viewer
