// SPDX-License-Identifier: MIT
#pragma once

namespace viewer {

class PlatesTool;
class Stage;

/// Adds the commands and values of scene plates to a stage.
///
/// - "plates.edit": true or false begins or ends editing in the view; null does the other.
/// - "plates.addPicture": {"file": ...}; "plates.addText": {"text": ..., "font", "color", "bold",
///   "height"}, height of a line in heights of the view; "plates.addColor": {"color": "#rrggbb" or
///   "#aarrggbb", "size": [width, height]}. All take "name", "front", "anchor" (the centre unless
///   told) and "position" (mid-view unless told), and a picture "height", of the plate. What was
///   added is selected.
/// - "plates.select": array of names. "plates.remove", "plates.forward" and "plates.backward" for
///   the selected ones, and so are the following, each also a value, that of the plate selected
///   last:
/// - "plates.name", "plates.front", "plates.opacity" (0 .. 1), "plates.visible" (also {"name": ...,
///   "visible": ...} for any plate), "plates.color", "plates.anchor" ("centre", "topLeft", ...; the
///   plate stays in place), "plates.position" and "plates.size" (heights of the view),
///   "plates.scale", "plates.rotation" (degrees).
/// - "plates.text": as what "plates.addText" takes, of which all may be absent: changes the text
///   selected last.
/// - "plates.align": "left", "centre", "right", "top", "middle" or "bottom" of the box around the
///   selected plates, of one plate in the view; "plates.distribute": "across" or "down", with equal
///   gaps; "plates.move": [across, up], device pixels; "plates.duplicate": selects the copies.
/// - "plates.snapping": that of all manipulators.
/// - Values besides: "plates.list" (names, the foremost first), "plates.selected",
///   "plates.preselected", "plates.centre" (device pixels).
///
/// Edits are steps of undo; nothing is edited where a command refuses.
void addPlateCommands(Stage& stage, PlatesTool& tool);

}  // namespace viewer
