// SPDX-License-Identifier: MIT
#include "manipulator/drag/DragGeometry.h"

#include "tests/manipulator/support/RingTilt.h"

#include <gtest/gtest.h>

#include <cmath>

namespace nbec::manipulator::test {

namespace {

using osg::Pnt3f;
using osg::Vec3f;

constexpr double kBesideNearest = 20.0;

}  // namespace

TEST(RingDragFrame, DragsTheSameAtEveryTilt)
{
    const std::vector<RingTilt> rows = measureRingTilts(kBesideNearest);
    ASSERT_EQ(rows.size(), 91U);
    double before = rows.front().cleanDeg;
    for (const RingTilt& row : rows) {
        EXPECT_TRUE(row.isFinite) << row.tiltDeg;
        EXPECT_GT(row.cleanDeg, 20.0) << row.tiltDeg;
        EXPECT_LT(row.cleanDeg, 30.0) << row.tiltDeg;
        EXPECT_LT(std::abs(row.cleanDeg - before), 1.0) << row.tiltDeg;
        EXPECT_LT(row.wobbleDeg, 3.0) << row.tiltDeg;
        EXPECT_NEAR(row.backDeg, 0.0, 0.01) << row.tiltDeg;
        before = row.cleanDeg;
    }
}

TEST(RingDragFrame, CirclingAFacingRingTurnsOnce)
{
    EXPECT_NEAR(measureFullCircle(), 360.0, 0.01);
}

TEST(RingDragFrame, StaysTameWhereTheTangentPointsAtTheEye)
{
    for (const double beside : { 60.0, 90.0 }) {
        double before = measureRingTilt(0.0, beside).cleanDeg;
        for (const RingTilt& row : measureRingTilts(beside)) {
            EXPECT_TRUE(row.isFinite) << beside << ' ' << row.tiltDeg;
            EXPECT_LT(std::abs(row.cleanDeg), 45.0) << beside << ' ' << row.tiltDeg;
            EXPECT_LT(std::abs(row.cleanDeg - before), 3.0) << beside << ' ' << row.tiltDeg;
            EXPECT_NEAR(row.backDeg, 0.0, 0.01) << beside << ' ' << row.tiltDeg;
            before = row.cleanDeg;
        }
    }
}

TEST(RingDragFrame, KeepsTheGrabbedPointAndItsTangent)
{
    const Vec3f axis(0.0F, 1.0F, 0.0F);
    const Pnt3f grabbed(0.6F, 0.0F, 0.8F);
    Vec3f sight(-0.6F, -0.2F, -0.8F);
    sight.normalize();
    const RingFrame frame = ringDragFrame(Pnt3f(0, 0, 0), axis, grabbed, sight);
    EXPECT_LT((frame.center + frame.radial - grabbed).length(), 1e-6F);
    EXPECT_LT((frame.tangent - axis.cross(Vec3f(0.6F, 0.0F, 0.8F))).length(), 1e-6F);
    EXPECT_NEAR(std::abs(frame.normal.dot(sight)), 0.766F, 1e-3F);
    EXPECT_LT((frame.radial.cross(frame.tangent) - frame.normal).length(), 1e-6F);
}

TEST(RingDragFrame, IsFiniteForARingGrabbedAtItsCentreOrSeenAlongItsTangent)
{
    const Vec3f axis(0.0F, 0.0F, 1.0F);
    for (const Pnt3f& grabbed : { Pnt3f(0, 0, 0), Pnt3f(0, 0, 2), Pnt3f(1, 0, 0) }) {
        for (const Vec3f& sight : { Vec3f(0, 1, 0), Vec3f(1, 0, 0), Vec3f(0, 0, -1) }) {
            const RingFrame frame = ringDragFrame(Pnt3f(0, 0, 0), axis, grabbed, sight);
            EXPECT_NEAR(frame.normal.length(), 1.0F, 1e-6F);
            EXPECT_GT(std::abs(frame.normal.dot(sight)), 0.765F) << grabbed << sight;
        }
    }
}

TEST(IntersectPlane, RefusesWhatHasNoCrossingAndLeavesThePoint)
{
    const Pnt3f untouched(7, 8, 9);
    Pnt3f point = untouched;
    const osg::Plane plane(Vec3f(0, 0, 1), Pnt3f(0, 0, 0));
    const Vec3f ahead(0, 0, -1);
    EXPECT_FALSE(intersectPlane(plane, osg::Line(Pnt3f(0, 0, 5), Vec3f(1, 0, 0)), point));
    EXPECT_FALSE(intersectPlane(plane, osg::Line(Pnt3f(0, 0, -5), ahead), point));
    EXPECT_FALSE(
        intersectPlane(osg::Plane(Vec3f(0, 0, 0), Pnt3f()), osg::Line(Pnt3f(), ahead), point));
    EXPECT_EQ(point, untouched);
    EXPECT_TRUE(intersectPlane(plane, osg::Line(Pnt3f(1, 2, 5), ahead), point));
    EXPECT_LT((point - Pnt3f(1, 2, 0)).length(), 1e-6F);
}

TEST(Snapped, RoundsHalfAwayFromZero)
{
    EXPECT_EQ(snapped(2.5, 1.0), 3.0);
    EXPECT_EQ(snapped(-2.5, 1.0), -3.0);
    EXPECT_EQ(snapped(2.49, 1.0), 2.0);
    EXPECT_EQ(snapped(-7.0, 15.0), 0.0);
    EXPECT_EQ(snapped(-7.5, 15.0), -15.0);
    EXPECT_EQ(snapped(0.3, 0.0), 0.3);
    EXPECT_EQ(snapped(0.0, 1.0), 0.0);
}

}  // namespace nbec::manipulator::test
