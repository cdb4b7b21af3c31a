// SPDX-License-Identifier: MIT
#pragma once

/// Strings of the interaction events, all compared exactly. A host may use any others beside them.
namespace nbec::interaction::names {

// Event names.
inline constexpr const char* kStart = "start";  ///< a drag begins
inline constexpr const char* kProcess = "process";  ///< the pointer moved within a drag
inline constexpr const char* kStop = "stop";  ///< a drag ends
inline constexpr const char* kHover = "hover";  ///< the pointer moved without a button
inline constexpr const char* kStopHover = "stopHover";  ///< the pointer no longer hovers
inline constexpr const char* kTrigger = "trigger";  ///< a single action, such as a wheel turn

// Tool names.
inline constexpr const char* kTool = "tool";  ///< the current tool or manipulator
inline constexpr const char* kModeTool = "mode";  ///< switching of the mode that the hint names
inline constexpr const char* kCamera = "camera";  ///< navigation of the view

// Hints of the tool "tool".
inline constexpr const char* kSelect = "select";
inline constexpr const char* kDeselect = "deselect";
inline constexpr const char* kAdd = "add";
inline constexpr const char* kSub = "sub";
inline constexpr const char* kToggle = "toggle";
inline constexpr const char* kSelectThrough = "selectThrough";

// Hints of the tool "camera".
inline constexpr const char* kOrbit = "orbit";
inline constexpr const char* kPan = "pan";
inline constexpr const char* kZoom = "zoom";

// Interaction modes.
inline constexpr const char* kToolMode = "tool";  ///< the ordinary mode
inline constexpr const char* kPrecisionToolMode = "precisionTool";  ///< while Ctrl is held
inline constexpr const char* kNoMode = "";  ///< a tool is being left

}  // namespace nbec::interaction::names
