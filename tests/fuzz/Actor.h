// SPDX-License-Identifier: MIT
#pragma once

#include "tests/fuzz/Bytes.h"
#include "tests/fuzz/Stage.h"

#include <string>

namespace nbec::manipulator::test {

/// Something of the library with the part of the host that drives it, on a stage that it may share
/// with others.
class Actor
{
public:
    Actor() = default;
    Actor(const Actor&) = delete;
    Actor& operator=(const Actor&) = delete;
    virtual ~Actor() = default;

    /// Does one thing that a host does with it.
    virtual void act(Bytes& bytes) = 0;

    /// @return the first invariant that does not hold; empty if all do
    virtual std::string check() { return ""; }

    /// Whether it may be hovered, so that preselection may be off.
    virtual bool isActive() const { return false; }
};

}  // namespace nbec::manipulator::test
