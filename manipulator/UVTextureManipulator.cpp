// SPDX-License-Identifier: MIT
#include "manipulator/UVTextureManipulator.h"

#include "manipulator/texture/UVGizmo.h"

namespace nbec::manipulator {

UVTextureManipulator::UVTextureManipulator()
    : Instanced(std::make_unique<texture::UVGizmo>(instances.m_ManipulatorSize))
{
    instances.add(this);
}

UVTextureManipulator::~UVTextureManipulator()
{
    instances.remove(this);
}

}  // namespace nbec::manipulator
