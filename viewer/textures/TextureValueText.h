// SPDX-License-Identifier: MIT
#pragma once

#include "viewer/stage/HandleCursor.h"
#include "viewer/textures/TextureTarget.h"

#include <string>

namespace viewer {

/// What a drag of a handle edits, for the status line; "" without anything to edit.
/// @param action  what the handle does
std::string textureValueText(HandleAction action, const TextureTarget& target);

}  // namespace viewer
