// SPDX-License-Identifier: MIT
#include "manipulator/drag/DragGeometry.h"

#include "manipulator/course/ValueText.h"
#include "manipulator/drag/RingDrag.h"
#include "manipulator/texture/TextureDragMath.h"
#include "manipulator/transform/TransformDrag.h"

#include <QtCore/QString>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace nbec::manipulator::test {

namespace {

using osg::Pnt3f;
using osg::Vec3f;

constexpr float kInfinity = std::numeric_limits<float>::infinity();

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

TEST(TransformDrag, FactorsHaveAFloorAndAnglesASign)
{
    transform::TransformDrag drag;
    drag.scaleAnchor = Vec3f(2, 4, 1e-7F);
    const auto factor = [&drag](unsigned axes, const Pnt3f& point) {
        drag.action = { DragParameters::Kind::Factor, axes };
        return factorAt(drag, point, 1);
    };

    EXPECT_EQ(factor(axisBit(2), Pnt3f(5, 8, 6)), 1) << "too near to divide by";
    drag.unit = 1e-2F;
    EXPECT_GT(factor(axisBit(2), Pnt3f(5, 8, 6)), 1e6) << "the gizmo is small";
    EXPECT_FLOAT_EQ(factor(axisBit(0), Pnt3f(-1, -2, -3)), 0.01);
    EXPECT_FLOAT_EQ(factor(kAllAxes, Pnt3f(-1, -90, -3)), 0.1);
    EXPECT_NEAR(transform::computeRotation(Pnt3f(0, 2, 0), Pnt3f(5, 0, 3), 0), 1.5707963, 1e-6);
    EXPECT_NEAR(transform::computeRotation(Pnt3f(0, 1, 0), Pnt3f(1, 0, 0), 2), -1.5707963, 1e-6);
}

TEST(TextureDragMath, FactorsNeverFallBelowAThousandthAndAreOtherwiseSentAsTheyAre)
{
    EXPECT_FLOAT_EQ(texture::axisScaleFactor(3, 2), 1.5F);
    EXPECT_FLOAT_EQ(texture::axisScaleFactor(0, 2), 0.001F);
    EXPECT_FLOAT_EQ(texture::axisScaleFactor(-1, 2), 0.001F);
    EXPECT_FLOAT_EQ(texture::axisScaleFactor(-3, -2), 1.5F);
    EXPECT_EQ(texture::axisScaleFactor(1, 0), kInfinity);
    EXPECT_TRUE(std::isnan(texture::axisScaleFactor(0, 0)));

    EXPECT_FLOAT_EQ(texture::uniformScaleFactor(3, 1), 1.02F);
    EXPECT_FLOAT_EQ(texture::uniformScaleFactor(0, 1), 0.99F);
    EXPECT_FLOAT_EQ(texture::uniformScaleFactor(-200, 1), 0.001F);
    EXPECT_EQ(texture::uniformScaleFactor(1, 0), kInfinity);
}

TEST(TextureDragMath, AnAxisWithoutLengthStillGivesAFrame)
{
    osg::Matrix matrix;
    matrix.setScale(Vec3f(1, 0, 1));
    EXPECT_NEAR(texture::unitFrame(matrix, osg::Pnt3f()).det3(), 1.0F, 1e-6F);
}

TEST(ValueText, HasTwoDecimalsAndNoSignOnZero)
{
    const auto describe = [](float x, float y, float z) {
        return describeValues("Scale (", Vec3f(x, y, z)).toStdString();
    };
    EXPECT_EQ(describe(0.0F, 1.0F, -2.5F), "Scale (0.00, 1.00, -2.50)");
    EXPECT_EQ(describe(-0.0F, -0.004F, 0.005F), "Scale (0.00, 0.00, 0.00)");
    EXPECT_EQ(describe(0.125F, -0.125F, 9.996F), "Scale (0.13, -0.13, 10.00)");
    EXPECT_EQ(describe(16777216.0F, -1234567.9F, 0.05F), "Scale (16777216.00, -1234567.88, 0.05)");
    EXPECT_EQ(describe(kInfinity, -kInfinity, 1e20F),
              "Scale (inf, -inf, 100000002004087734272.00)");
    EXPECT_EQ(describe(std::numeric_limits<float>::quiet_NaN(), 0, 0), "Scale (nan, 0.00, 0.00)");
}

}  // namespace nbec::manipulator::test
