// SPDX-License-Identifier: MIT
#include "manipulator/TireProjectionManipulator.h"

#include "manipulator/texture/TireGizmo.h"

namespace nbec::manipulator {

Instances<TireProjectionManipulator> TireProjectionManipulator::instances;

TireProjectionManipulator::TireProjectionManipulator()
    : AnchoredTextureManipulator(std::make_unique<texture::TireGizmo>(instances.m_ManipulatorSize))
{
    instances.add(this);
}

TireProjectionManipulator::~TireProjectionManipulator()
{
    instances.remove(this);
}

void TireProjectionManipulator::activateUniversalManipulator()
{
    gizmo->activateMode(static_cast<int>(ManipulatorMode::Universal));
}

void TireProjectionManipulator::activateTranslateManipulator()
{
    gizmo->activateMode(static_cast<int>(ManipulatorMode::Translate));
}

void TireProjectionManipulator::activateScaleManipulator()
{
    gizmo->activateMode(static_cast<int>(ManipulatorMode::Scale));
}

TireProjectionManipulator::ManipulatorMode TireProjectionManipulator::getMode() const
{
    return static_cast<ManipulatorMode>(gizmo->getMode());
}

TireProjectionManipulator::ActiveMode TireProjectionManipulator::getActiveMode() const
{
    return static_cast<ActiveMode>(gizmo->getArmed());
}

// == All instances

void TireProjectionManipulator::createInstance()
{
    instances.share(new TireProjectionManipulator);
}

void TireProjectionManipulator::setManipulatorSize(float size)
{
    instances.setSize(size);
}

void TireProjectionManipulator::updateAllManipulators()
{
    instances.updateAll();
}

}  // namespace nbec::manipulator
