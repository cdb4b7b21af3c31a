// SPDX-License-Identifier: MIT
#include "manipulator/TireProjectionManipulator.h"

#include "manipulator/texture/TireGizmo.h"

namespace nbec::manipulator {

TireProjectionManipulator::TireProjectionManipulator()
    : Instanced(std::make_unique<texture::TireGizmo>(instances.m_ManipulatorSize))
{
    instances.add(this);
}

TireProjectionManipulator::~TireProjectionManipulator()
{
    instances.remove(this);
}

}  // namespace nbec::manipulator
