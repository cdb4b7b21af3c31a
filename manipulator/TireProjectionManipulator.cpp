// SPDX-License-Identifier: MIT
#include "manipulator/TireProjectionManipulator.h"

#include "manipulator/detail/InstanceRegistry.h"
#include "manipulator/detail/ScreenScale.h"
#include "manipulator/detail/TireGizmo.h"

namespace nbec::manipulator {

float TireProjectionManipulator::m_ManipulatorSize = detail::kDefaultManipulatorSize;
std::vector<TireProjectionManipulator*> TireProjectionManipulator::_allManipulators;
TireProjectionManipulator* TireProjectionManipulator::_the = nullptr;

TireProjectionManipulator::TireProjectionManipulator()
    : AnchoredTextureManipulator(std::make_unique<detail::TireGizmo>())
{
    _allManipulators.push_back(this);
}

TireProjectionManipulator::~TireProjectionManipulator()
{
    detail::unregisterInstance(_allManipulators, this);
    if (_the == this) {
        _the = nullptr;
    }
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
    return static_cast<ManipulatorMode>(gizmo->mode);
}

TireProjectionManipulator::ActiveMode TireProjectionManipulator::getActiveMode() const
{
    return static_cast<ActiveMode>(gizmo->activeMode);
}

// == All instances

void TireProjectionManipulator::createInstance()
{
    delete _the;
    _the = new TireProjectionManipulator();
}

void TireProjectionManipulator::setManipulatorSize(float size)
{
    m_ManipulatorSize = size;
    if (_the != nullptr) {
        _the->updateManipulator();
    }
}

void TireProjectionManipulator::updateAllManipulators()
{
    detail::forEachInstance(_allManipulators, [](TireProjectionManipulator& manipulator) {
        manipulator.updateManipulator();
    });
}

}  // namespace nbec::manipulator
