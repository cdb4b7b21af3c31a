// SPDX-License-Identifier: MIT
// The one gizmo of a class that a host shares with everybody.
#include "manipulator/TireProjectionManipulator.h"
#include "manipulator/UniversalTransformManipulator2.h"
#include "manipulator/nbSceneplateManipulator.h"

#include <OpenSG/OSGContainerCensus.h>

#include <gtest/gtest.h>

namespace nbec::manipulator::test {

template <class Gizmo>
class SharedInstances : public testing::Test
{ };

using SharedGizmos = testing::Types<UniversalTransformManipulator2, TireProjectionManipulator,
                                    nbSceneplateManipulator>;
TYPED_TEST_SUITE(SharedInstances, SharedGizmos, );

TYPED_TEST(SharedInstances, AreReplacedTakeSizesAndAreForgottenWhenTheyDie)
{
    const float size = TypeParam::getManipulatorSize();
    TypeParam::createInstance();
    const osg::ContainerCensus one = osg::ContainerCensus::take();

    TypeParam::createInstance();
    TypeParam::setManipulatorSize(1.5F * size);
    TypeParam::updateAllManipulators();

    EXPECT_EQ(osg::ContainerCensus::take().differenceTo(one), "") << "the earlier one is gone";
    EXPECT_FLOAT_EQ(TypeParam::getManipulatorSize(), 1.5F * size);
    TypeParam::setManipulatorSize(size);
    delete TypeParam::getInstance();
    EXPECT_EQ(TypeParam::getInstance(), nullptr);
    TypeParam::setManipulatorSize(size);
}

}  // namespace nbec::manipulator::test
