// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/core/HandleCursor.h"
#include "viewer/core/TextureTarget.h"

#include <string>

namespace viewer {

/// What a drag of a handle edits, for the status line; "" without anything to edit.
/// @param action  what the handle does
std::string textureValueText(HandleAction action, const TextureTarget& target);

}  // namespace viewer
