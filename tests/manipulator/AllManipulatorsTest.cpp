// SPDX-License-Identifier: MIT
// What all manipulators have in common.
#include "manipulator/CameraManipulator.h"
#include "manipulator/PerspectiveMatchManipulator.h"
#include "manipulator/PlanarTextureManipulator.h"
#include "manipulator/TireProjectionManipulator.h"
#include "manipulator/TriplanarTextureManipulator.h"
#include "manipulator/UVTextureManipulator.h"
#include "manipulator/UniversalTransformManipulator2.h"
#include "manipulator/nbSceneplateManipulator.h"

#include <nbKernel/nbOSGWidget.h>

#include <OpenSG/OSGContainerCensus.h>

#include <gtest/gtest.h>

namespace nbec::manipulator::test {

template <class Gizmo>
class AllManipulators : public testing::Test
{ };

using All =
    testing::Types<CameraManipulator, PerspectiveMatchManipulator, PlanarTextureManipulator,
                   TireProjectionManipulator, TriplanarTextureManipulator, UVTextureManipulator,
                   UniversalTransformManipulator2, nbSceneplateManipulator>;
TYPED_TEST_SUITE(AllManipulators, All, );

TYPED_TEST(AllManipulators, ConstructionAndDestructionLeaveNothing)
{
    {
        const TypeParam first;  // makes the geometry that all share
    }
    const osg::ContainerCensus before = osg::ContainerCensus::take();
    {
        const TypeParam one;
        TypeParam other;
        other.update(true);
    }
    EXPECT_EQ(osg::ContainerCensus::take().differenceTo(before), "");
    nbOSGWidget widget;
    widget.resize(100, 100);  // calls nobody who is gone
}

template <class Gizmo>
class ManipulatorsWithModes : public testing::Test
{ };

using WithModes =
    testing::Types<CameraManipulator, UniversalTransformManipulator2, nbSceneplateManipulator>;
TYPED_TEST_SUITE(ManipulatorsWithModes, WithModes, );

TYPED_TEST(ManipulatorsWithModes, CompareThemExactly)
{
    TypeParam gizmo;
    EXPECT_TRUE(gizmo.setManipulatorMode("precisionTool"));
    // Deliberate: it takes effect all the same.
    EXPECT_FALSE(gizmo.setManipulatorMode("tool"));
    EXPECT_TRUE(gizmo.setManipulatorMode(""));
    EXPECT_FALSE(gizmo.setManipulatorMode("Tool"));
    EXPECT_FALSE(gizmo.setManipulatorMode("precisiontool"));
}

}  // namespace nbec::manipulator::test
