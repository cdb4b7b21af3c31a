// SPDX-License-Identifier: MIT
#include "manipulator/UVTextureManipulator.h"

#include "manipulator/texture/UVGizmo.h"

namespace nbec::manipulator {

namespace {

constexpr float kDefaultSize = 0.03F;

texture::UVGizmo& uvGizmo(Gizmo& gizmo)
{
    return static_cast<texture::UVGizmo&>(gizmo);
}

}  // namespace

Instances<UVTextureManipulator> UVTextureManipulator::instances = { {}, nullptr, kDefaultSize };

UVTextureManipulator::UVTextureManipulator()
    : AnchoredTextureManipulator(std::make_unique<texture::UVGizmo>(instances.m_ManipulatorSize))
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
