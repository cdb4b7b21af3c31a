// SPDX-License-Identifier: MIT
#pragma once

namespace viewer {

class Stage;

/// Adds the commands that change which objects there are and what they are called, each one undo
/// step: "scene.delete" and "scene.duplicate" (the selected objects with all below them; clip
/// planes can be deleted), "object.name" (of the object selected last).
/// @param stage  outlives the commands
void addSceneEdits(Stage& stage);

}  // namespace viewer
