// SPDX-License-Identifier: MIT
#include "manipulator/TriplanarTextureManipulator.h"

#include "manipulator/texture/TriplanarGizmo.h"

namespace nbec::manipulator {

TriplanarTextureManipulator::TriplanarTextureManipulator()
    : Instanced(std::make_unique<texture::TriplanarGizmo>(instances.m_ManipulatorSize))
{
    instances.add(this);
}

TriplanarTextureManipulator::~TriplanarTextureManipulator()
{
    instances.remove(this);
}

}  // namespace nbec::manipulator
