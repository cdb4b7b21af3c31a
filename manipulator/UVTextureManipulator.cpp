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

void UVTextureManipulator::activateUniversalManipulator()
{
    gizmo->activateMode(static_cast<int>(ManipulatorMode::Universal));
}

void UVTextureManipulator::activateTranslateManipulator()
{
    gizmo->activateMode(static_cast<int>(ManipulatorMode::Translate));
}

void UVTextureManipulator::activateScaleManipulator()
{
    gizmo->activateMode(static_cast<int>(ManipulatorMode::Scale));
}

void UVTextureManipulator::activateRotateManipulator()
{
    gizmo->activateMode(static_cast<int>(ManipulatorMode::Rotate));
}

void UVTextureManipulator::activateRotateScaleManipulator()
{
    gizmo->activateMode(static_cast<int>(ManipulatorMode::RotateScale));
}

UVTextureManipulator::ManipulatorMode UVTextureManipulator::getMode() const
{
    return static_cast<ManipulatorMode>(gizmo->getMode());
}

UVTextureManipulator::ActiveMode UVTextureManipulator::getActiveMode() const
{
    return static_cast<ActiveMode>(gizmo->getArmed());
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

// == All instances

void UVTextureManipulator::setManipulatorSize(float size)
{
    instances.setSize(size);
}

void UVTextureManipulator::updateAllManipulators()
{
    instances.updateAll();
}

}  // namespace nbec::manipulator
