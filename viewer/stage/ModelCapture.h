// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/loading/ModelData.h"

namespace viewer {

/// The models in the scene as they are shown now, each object with its place, as plain values.
/// What is hidden is left out; clip planes and pictures that are projected on objects have no place
/// in a model: of the latter a warning tells.
ModelData captureModel();

}  // namespace viewer
