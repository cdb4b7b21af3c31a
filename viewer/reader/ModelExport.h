// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/loading/ModelData.h"

namespace viewer {

/// Writes a model to a file, of the kind that its ending names; further files that belong to it
/// come beside it. @return false with one line in `error`
bool exportModel(const ModelData& model, const QString& path, QString& error);

}  // namespace viewer
