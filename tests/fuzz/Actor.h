// SPDX-License-Identifier: MIT
#pragma once

#include "tests/fuzz/Bytes.h"
#include "tests/fuzz/Stage.h"

#include <memory>
#include <string>

namespace nbec::manipulator::test {

/// Something of the library with the part of the host that drives it, on a stage that it may share
/// with others.
class Actor
{
public:
    virtual ~Actor() = default;

    /// Does one thing that a host does with it.
    virtual void act(Bytes& bytes) = 0;

    /// @return the first invariant that does not hold; empty if all do
    virtual std::string check() = 0;

    /// Whether it may be hovered, so that preselection may be off.
    virtual bool isActive() const = 0;
};

// The makers of actors; each joins the stage, which outlives it.
std::unique_ptr<Actor> makeTransformActor(Stage& stage);
std::unique_ptr<Actor> makeCameraActor(Stage& stage);
std::unique_ptr<Actor> makePlanarActor(Stage& stage);
std::unique_ptr<Actor> makeTriplanarActor(Stage& stage);
std::unique_ptr<Actor> makeUVActor(Stage& stage);
std::unique_ptr<Actor> makeTireActor(Stage& stage);
std::unique_ptr<Actor> makeMatchActor(Stage& stage);
std::unique_ptr<Actor> makePlateActor(Stage& stage);
std::unique_ptr<Actor> makePlatePickActor(Stage& stage);
std::unique_ptr<Actor> makePlacementActor(Stage& stage);
std::unique_ptr<Actor> makeProjectionActor(Stage& stage);
std::unique_ptr<Actor> makeMessageActor(Stage& stage);

}  // namespace nbec::manipulator::test
