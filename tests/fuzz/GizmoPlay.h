// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace nbec::manipulator::test {

/// Plays bytes as a host would play with a transform gizmo: creating and destroying gizmos,
/// choosing modes, nodes and settings, moving the camera, resizing the view, deleting nodes, and
/// sending events with known and unknown names in any order. The host keeps its contract: a gizmo
/// is taken out of its context before it dies. After each step: a gizmo's tree hangs under its root
/// exactly while it is active, the picker is left at the scene filter, no transform of the scene
/// holds a number that is not finite. At the end: nothing was leaked, preselection is on.
/// @return the first invariant that did not hold, with the step; empty if all did
std::string playGizmo(const std::uint8_t* data, std::size_t size);

}  // namespace nbec::manipulator::test
