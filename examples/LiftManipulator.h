// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "Lift.h"
#include <manipulator/AbstractManipulator.h>
#include <manipulator/GizmoFace.h>

/// Drags a lift by an arrow up and down; a press on the ring around it puts the object down on
/// height 0. In mode "precisionTool" the arrow moves in steps of a quarter.
class LiftManipulator : public nbec::manipulator::GizmoFace<nbec::manipulator::AbstractManipulator>
{
public:
    /// @param edited  outlives the manipulator
    explicit LiftManipulator(Lift& edited);

    bool setManipulatorMode(const std::string& mode) override;
};
