// SPDX-License-Identifier: MIT
#include "manipulator/ManipulatorInteractionContext.h"
#include "manipulator/PerspectiveMatchManipulator.h"
#include "manipulator/PlanarTextureManipulator.h"
#include "manipulator/TireProjectionManipulator.h"
#include "manipulator/TriplanarTextureManipulator.h"
#include "manipulator/UVTextureManipulator.h"
#include "manipulator/UniversalTransformManipulator2.h"
#include "manipulator/nbSceneplatePickTool.h"
#include "tests/platform/support/VirtualSlot.h"

#include <type_traits>

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

TEST(VirtualTable, ThePlanarGizmoAppendsNothing)
{
    using Gizmo = PlanarTextureManipulator;
    EXPECT_EQ(virtualSlot(&Gizmo::update), 5);
    EXPECT_EQ(virtualSlot(&Gizmo::startManipulator), 6);
    EXPECT_EQ(virtualSlot(&Gizmo::resetManipulator), 12);
    EXPECT_EQ(virtualSlot(&Gizmo::setNode), virtualSlot(&NodeManipulator::setNode));
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

template <class Gizmo>
class AnchoredVirtualTable : public testing::Test
{ };

using AnchoredGizmos =
    testing::Types<TriplanarTextureManipulator, UVTextureManipulator, TireProjectionManipulator>;
TYPED_TEST_SUITE(AnchoredVirtualTable, AnchoredGizmos, );

TYPED_TEST(AnchoredVirtualTable, AppendsNothing)
{
    using Gizmo = TypeParam;
    EXPECT_EQ(virtualSlot(&Gizmo::activate), 0);
    EXPECT_EQ(virtualSlot(&Gizmo::getVisualisation), 3);
    EXPECT_EQ(virtualSlot(&Gizmo::update), 5);
    EXPECT_EQ(virtualSlot(&Gizmo::startManipulator), 6);
    expectSlotsFrom(8, &Gizmo::stopManipulator, &Gizmo::hover);
    EXPECT_EQ(virtualSlot(&Gizmo::resetManipulator), 12);
    EXPECT_EQ(virtualSlot(&Gizmo::setManipulatorMode), 15);
    EXPECT_TRUE((std::is_base_of_v<AbstractManipulator, Gizmo>));
}

TEST(VirtualTable, TheContextKeepsTheOrderOfItsBase)
{
    using Context = ManipulatorInteractionContext;
    expectSlotsFrom(1, &Context::enabled, &Context::disabled, &Context::contextAdded,
                    &Context::contextRemoved);
    EXPECT_EQ(virtualSlot(&Context::pointerMoved), 7);
    EXPECT_EQ(virtualSlot(&Context::triggerEvent), 9);
    EXPECT_EQ(virtualSlot(&Context::selectMode), 14);
}

TEST(VirtualTable, ThePlateToolKeepsTheOrderOfItsBase)
{
    using Tool = nbSceneplatePickTool;
    expectSlotsFrom(0, &Tool::setToolMode, &Tool::activateTool, &Tool::deactivateTool,
                    &Tool::isActive, &Tool::startTool, &Tool::processTool, &Tool::stopTool,
                    &Tool::triggerTool, &Tool::hoverTool, &Tool::stopHoverTool, &Tool::isPickHint);
}

}  // namespace nbec::manipulator::test
