// SPDX-License-Identifier: MIT
#pragma once

namespace viewer {

class Stage;
class TextureTool;

/// Adds the commands and values, all named "texture.", of how a picture lies on its surface:
/// - projection "uv", "planar", "triplanar" or "tire";
/// - uvOffset, uvRepeat [u, v], uvRotate in degrees;
/// - triplanarRotation [x, y, z] in degrees; triplanarOffsetU, triplanarOffsetV, triplanarRepeatU,
///   triplanarRepeatV [x, y, z], of the projections along these axes;
/// - tireCenter [x, y, z], tireHeight, tireRadius, in the object's space, tireScaleU; tireFit BOOL:
///   the first three are fitted to the object, until one of them is set;
/// - anchor PLACE, of the view as steps of sessions have it: puts the handles there;
/// - handleSize NUMBER, in units of the handles in use;
/// - uvKeepAspect BOOL: the scale handles of u and v scale both; ringsTilted BOOL: rings of the
///   triplanar handles that are seen edge-on are turned to the eye for a drag.
/// Each is a value of the same name, too; anchor is one of the world. They go with the other
/// commands of the tool.
/// @param stage, tool  outlive the commands
void addTextureValueCommands(Stage& stage, TextureTool& tool);

}  // namespace viewer
