// SPDX-License-Identifier: MIT
#include "manipulator/course/ValueText.h"

#include <QtCore/QString>

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace nbec::manipulator {

namespace {

std::string describe(float x, float y, float z)
{
    return describeValues("Scale (", osg::Vec3f(x, y, z)).toStdString();
}

}  // namespace

TEST(ValueText, HasTwoDecimalsAndNoSignOnZero)
{
    EXPECT_EQ(describe(0.0F, 1.0F, -2.5F), "Scale (0.00, 1.00, -2.50)");
    EXPECT_EQ(describe(-0.0F, -0.004F, 0.005F), "Scale (0.00, 0.00, 0.00)");
    EXPECT_EQ(describe(0.125F, -0.125F, 9.996F), "Scale (0.13, -0.13, 10.00)");
    EXPECT_EQ(describe(16777216.0F, -1234567.9F, 0.05F), "Scale (16777216.00, -1234567.88, 0.05)");
    const float infinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(describe(infinity, -infinity, 1e20F), "Scale (inf, -inf, 100000002004087734272.00)");
    EXPECT_EQ(describe(std::numeric_limits<float>::quiet_NaN(), 0, 0), "Scale (nan, 0.00, 0.00)");
}

}  // namespace nbec::manipulator
