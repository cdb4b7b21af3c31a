// SPDX-License-Identifier: MIT
#include "tests/viewer/support/StageTest.h"

namespace viewer {
namespace {

TEST(Commands, NumbersAreNearWithinTheToleranceWhereverTheyStand)
{
    const QJsonObject found { { "at", QJsonArray { 1.0, 2.004 } }, { "name", "a" }, { "more", 1 } };

    EXPECT_TRUE(isNear(found, QJsonObject { { "at", QJsonArray { 1, 2 } } }, 0.005));
    EXPECT_FALSE(isNear(found, QJsonObject { { "at", QJsonArray { 1, 2 } } }, 0.003));
    EXPECT_FALSE(isNear(found, QJsonObject { { "at", QJsonArray { 1 } } }, 1.0));
    EXPECT_FALSE(isNear(found, QJsonObject { { "name", "b" } }, 1.0));
    EXPECT_FALSE(isNear(found, QJsonObject { { "missing", 0 } }, 1.0));
    EXPECT_FALSE(isNear(QJsonValue("1"), 1, 1.0));
}

using Checkpoints = StageTest;

TEST_F(Checkpoints, CompareNamedValues)
{
    stage.commands().addValue("match.fov", [] { return QJsonValue(45.02); });
    SessionStep checkpoint;
    checkpoint.name = "end";
    checkpoint.expectation.values = QJsonObject { { "match.fov", 45 } };
    checkpoint.expectation.tolerance = 0.05;

    EXPECT_EQ(findFailures(checkpoint, stage), QStringList());
    checkpoint.expectation.tolerance = 0.01;
    EXPECT_EQ(findFailures(checkpoint, stage),
              QStringList { "checkpoint \"end\": match.fov is 45.02 instead of 45" });
    checkpoint.expectation.values = QJsonObject { { "match.fow", 45 } };
    EXPECT_EQ(findFailures(checkpoint, stage),
              QStringList { "checkpoint \"end\": there is no value \"match.fow\"" });
}

}  // namespace
}  // namespace viewer
