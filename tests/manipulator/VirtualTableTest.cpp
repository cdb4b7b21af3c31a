// SPDX-License-Identifier: MIT
#include "manipulator/PerspectiveMatchManipulator.h"
#include "manipulator/UniversalTransformManipulator2.h"
#include "tests/platform/support/VirtualSlot.h"

namespace nbec::manipulator::test {

using nbtest::expectSlotsFrom;
using nbtest::virtualSlot;

TEST(VirtualTable, ManipulatorOperationsTakeTheSlotsZeroToFifteen)
{
    expectSlotsFrom(0, &Manipulator::activate, &Manipulator::deactivate, &Manipulator::isActive,
                    &Manipulator::getVisualisation, &Manipulator::getCollider, &Manipulator::update,
                    &Manipulator::startManipulator, &Manipulator::processManipulator,
                    &Manipulator::stopManipulator, &Manipulator::hover, &Manipulator::reset,
                    &Manipulator::hoverManipulator, &Manipulator::resetManipulator,
                    &Manipulator::setMousePosition, &Manipulator::getMousePosition,
                    &Manipulator::setManipulatorMode);
}

TEST(VirtualTable, SubclassesAppendInTheirFixedOrder)
{
    using Gizmo = UniversalTransformManipulator2;
    // The destructor stands between; it takes two places in this binary interface.
    expectSlotsFrom(18, &NodeManipulator::setNode, &Gizmo::activateRotatePivotManipulator,
                    &Gizmo::activateScalePivotManipulator, &Gizmo::activateTranslateManipulator,
                    &Gizmo::activateRotateManipulator, &Gizmo::activateScaleManipulator,
                    &Gizmo::activateUniversalManipulator, &Gizmo::activateClippingManipulator,
                    &Gizmo::activateAdditionalManipulator,
                    &Gizmo::activateTranslateRotateManipulator,
                    &Gizmo::activateTranslateRotateScaleManipulator,
                    &Gizmo::activateTranslateRotateYZManipulator, &Gizmo::showActiveManipulator,
                    &Gizmo::hideManipulator);
}

TEST(VirtualTable, AnObjectOfQtThatManipulatesIsAnObjectFirst)
{
    using Gizmo = PerspectiveMatchManipulator;
    Gizmo gizmo;
    const auto* const start = reinterpret_cast<const char*>(&gizmo);
    EXPECT_EQ(reinterpret_cast<const char*>(static_cast<QObject*>(&gizmo)), start);
    EXPECT_EQ(reinterpret_cast<const char*>(static_cast<AbstractManipulator*>(&gizmo)),
              start + sizeof(QObject));

    // What it overrides of its second base follows the places of the first, in the fixed order.
    const std::ptrdiff_t first = virtualSlot(&Gizmo::activate);
    EXPECT_GT(first, 0);
    expectSlotsFrom(first, &Gizmo::activate, &Gizmo::deactivate, &Gizmo::getVisualisation,
                    &Gizmo::getCollider, &Gizmo::update, &Gizmo::startManipulator,
                    &Gizmo::processManipulator, &Gizmo::stopManipulator, &Gizmo::hoverManipulator,
                    &Gizmo::resetManipulator);
}

}  // namespace nbec::manipulator::test
