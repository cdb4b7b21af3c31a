// SPDX-License-Identifier: MIT
#include "manipulator/TriplanarTextureManipulator.h"

#include "manipulator/texture/TriplanarGizmo.h"

namespace nbec::manipulator {

Instances<TriplanarTextureManipulator> TriplanarTextureManipulator::instances;

TriplanarTextureManipulator::TriplanarTextureManipulator()
    : AnchoredTextureManipulator(
          std::make_unique<texture::TriplanarGizmo>(instances.m_ManipulatorSize))
{
    instances.add(this);
}

TriplanarTextureManipulator::~TriplanarTextureManipulator()
{
    instances.remove(this);
}

void TriplanarTextureManipulator::activateUniversalManipulator()
{
    gizmo->activateMode(static_cast<int>(ManipulatorMode::Universal));
}

void TriplanarTextureManipulator::activateRotateManipulator()
{
    gizmo->activateMode(static_cast<int>(ManipulatorMode::Rotate));
}

void TriplanarTextureManipulator::activateRotateScaleManipulator()
{
    gizmo->activateMode(static_cast<int>(ManipulatorMode::RotateScale));
}

TriplanarTextureManipulator::ManipulatorMode TriplanarTextureManipulator::getMode() const
{
    return static_cast<ManipulatorMode>(gizmo->getMode());
}

TriplanarTextureManipulator::ActiveMode TriplanarTextureManipulator::getActiveMode() const
{
    return static_cast<ActiveMode>(gizmo->getArmed());
}

void TriplanarTextureManipulator::setRingsTilted(bool on)
{
    static_cast<texture::TriplanarGizmo&>(*gizmo).areRingsTilted = on;
}

bool TriplanarTextureManipulator::areRingsTilted() const
{
    return static_cast<const texture::TriplanarGizmo&>(*gizmo).areRingsTilted;
}

// == All instances

void TriplanarTextureManipulator::createInstance()
{
    instances.share(new TriplanarTextureManipulator);
}

void TriplanarTextureManipulator::setManipulatorSize(float size)
{
    instances.setSize(size);
}

void TriplanarTextureManipulator::updateAllManipulators()
{
    instances.updateAll();
}

}  // namespace nbec::manipulator
