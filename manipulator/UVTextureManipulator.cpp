// SPDX-License-Identifier: MIT
#include "manipulator/UVTextureManipulator.h"

#include "manipulator/texture/UVGizmo.h"

namespace nbec::manipulator {

namespace {

texture::UVGizmo& uvGizmo(Gizmo& gizmo)
{
    return static_cast<texture::UVGizmo&>(gizmo);
}

}  // namespace

UVTextureManipulator::UVTextureManipulator()
    : Instanced(std::make_unique<texture::UVGizmo>(instances.m_ManipulatorSize))
{
    instances.add(this);
}

UVTextureManipulator::~UVTextureManipulator()
{
    instances.remove(this);
}

void UVTextureManipulator::setKeepAspectRatio(bool on)
{
    uvGizmo(*gizmo).keepAspectRatio = on;
}

bool UVTextureManipulator::getKeepAspectRatio() const
{
    return uvGizmo(*gizmo).keepAspectRatio;
}

void UVTextureManipulator::setAspectRatio(float ratio)
{
    uvGizmo(*gizmo).aspectRatio = ratio;
}

float UVTextureManipulator::getAspectRatio() const
{
    return uvGizmo(*gizmo).aspectRatio;
}

}  // namespace nbec::manipulator
