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

#include <gtest/gtest.h>

#include <type_traits>
#include <vector>

namespace nbec::manipulator::test {

using nbtest::virtualSlot;

TEST(VirtualTable, ManipulatorOperationsTakeTheSlotsZeroToFifteen)
{
    const std::vector<std::ptrdiff_t> places = { virtualSlot(&Manipulator::activate),
                                                 virtualSlot(&Manipulator::deactivate),
                                                 virtualSlot(&Manipulator::isActive),
                                                 virtualSlot(&Manipulator::getVisualisation),
                                                 virtualSlot(&Manipulator::getCollider),
                                                 virtualSlot(&Manipulator::update),
                                                 virtualSlot(&Manipulator::startManipulator),
                                                 virtualSlot(&Manipulator::processManipulator),
                                                 virtualSlot(&Manipulator::stopManipulator),
                                                 virtualSlot(&Manipulator::hover),
                                                 virtualSlot(&Manipulator::reset),
                                                 virtualSlot(&Manipulator::hoverManipulator),
                                                 virtualSlot(&Manipulator::resetManipulator),
                                                 virtualSlot(&Manipulator::setMousePosition),
                                                 virtualSlot(&Manipulator::getMousePosition),
                                                 virtualSlot(&Manipulator::setManipulatorMode) };
    for (std::size_t i = 0; i < places.size(); ++i) {
        EXPECT_EQ(places[i], static_cast<std::ptrdiff_t>(i));
    }
}

TEST(VirtualTable, SubclassesAppendInTheirFixedOrder)
{
    using Gizmo = UniversalTransformManipulator2;
    // The destructor stands between; it takes two places in this binary interface.
    const std::ptrdiff_t first = virtualSlot(&NodeManipulator::setNode);
    EXPECT_EQ(first, 18);
    const std::vector<std::ptrdiff_t> places = {
        virtualSlot(&Gizmo::activateRotatePivotManipulator),
        virtualSlot(&Gizmo::activateScalePivotManipulator),
        virtualSlot(&Gizmo::activateTranslateManipulator),
        virtualSlot(&Gizmo::activateRotateManipulator),
        virtualSlot(&Gizmo::activateScaleManipulator),
        virtualSlot(&Gizmo::activateUniversalManipulator),
        virtualSlot(&Gizmo::activateClippingManipulator),
        virtualSlot(&Gizmo::activateAdditionalManipulator),
        virtualSlot(&Gizmo::activateTranslateRotateManipulator),
        virtualSlot(&Gizmo::activateTranslateRotateScaleManipulator),
        virtualSlot(&Gizmo::activateTranslateRotateYZManipulator),
        virtualSlot(&Gizmo::showActiveManipulator),
        virtualSlot(&Gizmo::hideManipulator)
    };
    for (std::size_t i = 0; i < places.size(); ++i) {
        EXPECT_EQ(places[i], first + 1 + static_cast<std::ptrdiff_t>(i));
    }
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
    const std::vector<std::ptrdiff_t> places = { virtualSlot(&Gizmo::activate),
                                                 virtualSlot(&Gizmo::deactivate),
                                                 virtualSlot(&Gizmo::getVisualisation),
                                                 virtualSlot(&Gizmo::getCollider),
                                                 virtualSlot(&Gizmo::update),
                                                 virtualSlot(&Gizmo::startManipulator),
                                                 virtualSlot(&Gizmo::processManipulator),
                                                 virtualSlot(&Gizmo::stopManipulator),
                                                 virtualSlot(&Gizmo::hoverManipulator),
                                                 virtualSlot(&Gizmo::resetManipulator) };
    for (std::size_t i = 1; i < places.size(); ++i) {
        EXPECT_EQ(places[i], places[0] + static_cast<std::ptrdiff_t>(i));
    }
    EXPECT_GT(places[0], 0);
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
    EXPECT_EQ(virtualSlot(&Gizmo::stopManipulator), 8);
    EXPECT_EQ(virtualSlot(&Gizmo::hover), 9);
    EXPECT_EQ(virtualSlot(&Gizmo::resetManipulator), 12);
    EXPECT_EQ(virtualSlot(&Gizmo::setManipulatorMode), 15);
    EXPECT_TRUE((std::is_base_of_v<AbstractManipulator, Gizmo>));
}

TEST(VirtualTable, TheContextKeepsTheOrderOfItsBase)
{
    using Context = ManipulatorInteractionContext;
    EXPECT_EQ(virtualSlot(&Context::enabled), 1);
    EXPECT_EQ(virtualSlot(&Context::disabled), 2);
    EXPECT_EQ(virtualSlot(&Context::contextAdded), 3);
    EXPECT_EQ(virtualSlot(&Context::contextRemoved), 4);
    EXPECT_EQ(virtualSlot(&Context::pointerMoved), 7);
    EXPECT_EQ(virtualSlot(&Context::triggerEvent), 9);
    EXPECT_EQ(virtualSlot(&Context::selectMode), 14);
}

TEST(VirtualTable, ThePlateToolKeepsTheOrderOfItsBase)
{
    using Tool = nbSceneplatePickTool;
    const std::vector<std::ptrdiff_t> places = {
        virtualSlot(&Tool::setToolMode),    virtualSlot(&Tool::activateTool),
        virtualSlot(&Tool::deactivateTool), virtualSlot(&Tool::isActive),
        virtualSlot(&Tool::startTool),      virtualSlot(&Tool::processTool),
        virtualSlot(&Tool::stopTool),       virtualSlot(&Tool::triggerTool),
        virtualSlot(&Tool::hoverTool),      virtualSlot(&Tool::stopHoverTool),
        virtualSlot(&Tool::isPickHint)
    };
    for (std::size_t i = 0; i < places.size(); ++i) {
        EXPECT_EQ(places[i], static_cast<std::ptrdiff_t>(i));
    }
}

}  // namespace nbec::manipulator::test
