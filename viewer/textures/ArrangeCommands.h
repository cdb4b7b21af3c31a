// SPDX-License-Identifier: MIT
#pragma once

namespace viewer {

class Stage;
class TextureTool;

/// Adds the commands by which the picture is placed as a whole, each one step of undo, where the
/// projection in use can do it, see nbPicturePlacing:
/// - texture.fit "object", "face" or "view", texture.align "normal", "up" or "view"; face and
/// normal
///   are those where the picture's middle is seen, or its handles;
/// - texture.centre, texture.ownAspect: anything;
/// - texture.turnBy NUMBER of right angles, counter-clockwise; texture.flip "u" or "v";
/// - texture.texelsPerUnit NUMBER, of the world, both ways; its value is the mean of both.
/// @param stage, tool  outlive the commands
void addArrangeCommands(Stage& stage, TextureTool& tool);

}  // namespace viewer
