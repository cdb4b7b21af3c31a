// SPDX-License-Identifier: MIT
#include "manipulator/drag/DragGeometry.h"

#include "manipulator/drag/RingDrag.h"

#include <gtest/gtest.h>

namespace nbec::manipulator::test {

namespace {

using osg::Pnt3f;
using osg::Vec3f;

}  // namespace

TEST(RingDrag, OfARingGrabbedAtItsCentreOrSeenEdgeOnIsFinite)
{
    const Pnt3f eye(0, -10, 0);
    for (const Pnt3f& grabbed : { Pnt3f(0, 0, 0), Pnt3f(0, 0, 2), Pnt3f(1, 0, 0) }) {
        for (const std::optional<Pnt3f>& from : { std::optional<Pnt3f>(), std::optional(eye) }) {
            const RingDrag ring =
                RingDrag::begin(Pnt3f(), Vec3f(0, 0, 1), grabbed, { Vec3f(0, 1, 0), from });
            DragTrack track;
            for (const float aside : { 0.0F, 0.3F, -4.0F }) {
                const auto point = ring.follow(osg::Line(eye, Vec3f(aside, 10, 0.1F)), track);
                ASSERT_TRUE(point);
                EXPECT_NEAR(point->z(), 0, 1e-6F);
                EXPECT_NEAR((*point - Pnt3f()).length(), ring.radius, 1e-5F);
            }
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
