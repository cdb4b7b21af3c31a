// SPDX-License-Identifier: MIT
#pragma once

#include "tests/fuzz/Actor.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace nbec::manipulator::test {

/// What a fuzzer plays with: a name for files and programs, and who acts on the stage.
struct PlayTarget
{
    std::string name;
    std::vector<std::unique_ptr<Actor> (*)(Stage&)> actors;
};

std::unique_ptr<Actor> makeProjectionActor(Stage& stage);

/// One target for each manipulator and tool, and "together", in which all meet on one stage.
const std::vector<PlayTarget>& playTargets();

/// Makes what is made once in a process and kept, so that it is no leak of the first play.
void preparePlays();

/// Plays bytes as hosts of a target would act: creating and destroying, all settings, events with
/// known and unknown names in any order, nodes, materials, cameras and views deleted at any moment,
/// views without area, cameras without a sound field of view, message handlers that delete what is
/// edited or throw; at the end, manager, view, contexts and manipulators destroyed in any order.
/// Hosts keep their contract: a drag is stopped before its manipulator is
/// deactivated, and a manipulator is deactivated before it dies.
///
/// After each step: what is visible hangs under its root exactly while active; preselection is on
/// unless a manipulator is active; a drag that was stopped has resumed the preview, and refreshed
/// it; no scope of undo is left open; the picker has its filter; the values of the scene are
/// finite. At the end: no container, text or pause of the preview is left.
/// @return the first invariant that did not hold, with the step; empty if all did
std::string play(const PlayTarget& target, const std::uint8_t* data, std::size_t size);

}  // namespace nbec::manipulator::test
