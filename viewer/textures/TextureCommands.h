// SPDX-License-Identifier: MIT
#pragma once

namespace viewer {

class Stage;
class TextureTool;

/// Adds the commands and values of the texture tool, all named "texture.", as the panel, sessions
/// and tests use them:
/// - component "diffuse" or "transparency"; picture FILE, or null to take it away;
/// - drop {"file": FILE, "at": PLACE}: as if the file were dropped there; a place of the view as
///   steps of sessions have it;
/// - handles "translate", "rotate", "scale", "rotateScale" or "universal": shows these, as far as
///   the projection has them; place BOOL: clicks place the picture, or the handles alone where only
///   these have a place;
/// - edit BOOL: gives the pointer to the tool or back; null: the other way round;
/// - translation, rotation (degrees), scale [x, y, z] of the planar projection, in the object's
///   space;
/// - angles [most, fading], degrees: on which faces it shows, see ColorComponentSettings;
/// - keepAspect, repeatU, repeatV, endInDepth, mask, invert BOOL;
/// - showProjection, showDepth BOOL and planeTransparency 0 .. 1: the projection in the scene;
/// - projection "uv", "planar", "triplanar" or "tire";
/// - uvOffset, uvRepeat [u, v], uvRotate in degrees;
/// - triplanarRotation [x, y, z] in degrees; triplanarOffsetU, triplanarOffsetV, triplanarRepeatU,
///   triplanarRepeatV [x, y, z], of the projections along these axes;
/// - tireCenter [x, y, z], tireHeight, tireRadius, in the object's space, tireScaleU; tireFit BOOL:
///   the first three are fitted to the object, until one of them is set;
/// - anchor PLACE, of the view as steps of sessions have it: puts the handles there;
/// - handleSize NUMBER, in units of the handles in use;
/// - grabPicture BOOL: a press on the picture grabs it; pivotAtHandles BOOL: turns and scales are
///   about the handles;
/// - uvKeepAspect BOOL: the scale handles of u and v scale both; ringsTilted BOOL: rings of the
///   triplanar handles that are seen edge-on are turned to the eye for a drag.
/// Each is a value of the same name, except drop; picture is the name of the file alone, anchor is
/// one of the world. Further values: surface, the name of what is edited, and preview, false while
/// it is paused.
/// @param stage, tool  outlive the commands
void addTextureCommands(Stage& stage, TextureTool& tool);

}  // namespace viewer
