// SPDX-License-Identifier: MIT
#include "manipulator/UVTextureManipulator.h"

#include "manipulator/detail/InstanceRegistry.h"
#include "manipulator/detail/UVGizmo.h"

namespace nbec::manipulator {

namespace {

constexpr float kDefaultSize = 0.03F;

detail::UVGizmo& uvGizmo(detail::AnchoredGizmo& gizmo)
{
    return static_cast<detail::UVGizmo&>(gizmo);
}

}  // namespace

float UVTextureManipulator::m_ManipulatorSize = kDefaultSize;
std::vector<UVTextureManipulator*> UVTextureManipulator::_allManipulators;

UVTextureManipulator::UVTextureManipulator()
    : AnchoredTextureManipulator(std::make_unique<detail::UVGizmo>())
{
    _allManipulators.push_back(this);
}

UVTextureManipulator::~UVTextureManipulator()
{
    detail::unregisterInstance(_allManipulators, this);
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
    return static_cast<ManipulatorMode>(gizmo->mode);
}

UVTextureManipulator::ActiveMode UVTextureManipulator::getActiveMode() const
{
    return static_cast<ActiveMode>(gizmo->activeMode);
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
    m_ManipulatorSize = size;
}

void UVTextureManipulator::updateAllManipulators()
{
    detail::forEachInstance(_allManipulators, [](UVTextureManipulator& manipulator) {
        manipulator.updateManipulator();
    });
}

}  // namespace nbec::manipulator
