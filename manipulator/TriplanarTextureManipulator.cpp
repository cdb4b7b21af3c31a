// SPDX-License-Identifier: MIT
#include "manipulator/TriplanarTextureManipulator.h"

#include "manipulator/detail/InstanceRegistry.h"
#include "manipulator/detail/ScreenScale.h"
#include "manipulator/detail/TriplanarGizmo.h"

namespace nbec::manipulator {

float TriplanarTextureManipulator::m_ManipulatorSize = detail::kDefaultManipulatorSize;
std::vector<TriplanarTextureManipulator*> TriplanarTextureManipulator::_allManipulators;
TriplanarTextureManipulator* TriplanarTextureManipulator::_the = nullptr;

TriplanarTextureManipulator::TriplanarTextureManipulator()
    : AnchoredTextureManipulator(std::make_unique<detail::TriplanarGizmo>())
{
    _allManipulators.push_back(this);
}

TriplanarTextureManipulator::~TriplanarTextureManipulator()
{
    detail::unregisterInstance(_allManipulators, this);
    if (_the == this) {
        _the = nullptr;
    }
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
    return static_cast<ManipulatorMode>(gizmo->mode);
}

TriplanarTextureManipulator::ActiveMode TriplanarTextureManipulator::getActiveMode() const
{
    return static_cast<ActiveMode>(gizmo->activeMode);
}

void TriplanarTextureManipulator::setRingsTilted(bool on)
{
    static_cast<detail::TriplanarGizmo&>(*gizmo).areRingsTilted = on;
}

bool TriplanarTextureManipulator::areRingsTilted() const
{
    return static_cast<const detail::TriplanarGizmo&>(*gizmo).areRingsTilted;
}

// == All instances

void TriplanarTextureManipulator::createInstance()
{
    delete _the;
    _the = new TriplanarTextureManipulator();
}

void TriplanarTextureManipulator::setManipulatorSize(float size)
{
    m_ManipulatorSize = size;
    if (_the != nullptr) {
        _the->updateManipulator();
    }
}

void TriplanarTextureManipulator::updateAllManipulators()
{
    detail::forEachInstance(_allManipulators, [](TriplanarTextureManipulator& manipulator) {
        manipulator.updateManipulator();
    });
}

}  // namespace nbec::manipulator
