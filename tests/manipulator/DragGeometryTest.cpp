// SPDX-License-Identifier: MIT
#include "manipulator/drag/DragGeometry.h"

#include <gtest/gtest.h>

#include <cmath>

namespace nbec::manipulator::test {

namespace {

using osg::Pnt3f;
using osg::Vec3f;

constexpr double kPi = 3.14159265358979323846;
constexpr double kEyeDistance = 10.0;
/// Pixels of a tangent of 1: 600 pixels high under 45 degrees.
const double kPixels = 300.0 / std::tan(kPi / 8);

/// A ring of radius 1 around the origin, looked at from (0, 0, 10), tilted away from the viewer and
/// grabbed beside its nearest point, which is below the centre on screen; all angles in degrees.
class RingDrag
{
public:
    RingDrag(double tiltDeg, double besideDeg)
    {
        const double tilt = tiltDeg / kDegPerRad;
        const double beside = besideDeg / kDegPerRad;
        const auto point = [](double a, double b, double c) {
            return Vec3f(static_cast<float>(a), static_cast<float>(b), static_cast<float>(c));
        };
        const Pnt3f grabbed(point(std::sin(beside), -std::cos(beside) * std::cos(tilt),
                                  std::cos(beside) * std::sin(tilt)));
        Vec3f sight = grabbed - Pnt3f(0, 0, kEyeDistance);
        sight.normalize();
        frame = ringDragFrame(Pnt3f(), point(0, std::sin(tilt), std::cos(tilt)), grabbed, sight);
        last = frame.angleOf(grabbed);
        x = grabbed.x() * kPixels / (kEyeDistance - grabbed.z());
        y = grabbed.y() * kPixels / (kEyeDistance - grabbed.z());
    }

    /// Goes to a pixel from the middle. @return the angle gathered so far
    double stepTo(double toX, double toY)
    {
        Vec3f direction(static_cast<float>(toX / kPixels), static_cast<float>(toY / kPixels), -1);
        direction.normalize();
        Pnt3f met;
        EXPECT_TRUE(intersectPlane(osg::Plane(frame.normal, frame.center),
                                   osg::Line(Pnt3f(0, 0, kEyeDistance), direction), met));
        const double step = std::remainder(frame.angleOf(met) - last, 2.0 * kPi) * kDegPerRad;
        EXPECT_LT(std::abs(step), 45.0);
        last = frame.angleOf(met);
        return gathered += step;
    }

    /// Goes 40 pixels sideways in steps of one. @param wobblePx  offset across at each second step
    double goAside(double wobblePx)
    {
        for (int i = 1; i < 40; ++i) {
            stepTo(x + i, y + (i % 2 == 0 ? wobblePx : -wobblePx));
        }
        return stepTo(x + 40, y + wobblePx);
    }

    double x = 0;  ///< where it was grabbed
    double y = 0;

private:
    RingFrame frame;
    double last = 0;
    double gathered = 0;
};

}  // namespace

TEST(RingDragFrame, DragsTheSameAtEveryTilt)
{
    double before = RingDrag(0, 20).goAside(0);
    for (int tilt = 0; tilt <= 90; ++tilt) {
        SCOPED_TRACE(tilt);
        RingDrag drag(tilt, 20);
        const double gathered = drag.goAside(0);
        EXPECT_GT(gathered, 20);
        EXPECT_LT(gathered, 30);
        EXPECT_NEAR(gathered, before, 1);
        EXPECT_NEAR(drag.stepTo(drag.x, drag.y), 0, 0.01) << "and back";
        EXPECT_NEAR(RingDrag(tilt, 20).goAside(4), gathered, 3);
        EXPECT_NEAR(RingDrag(tilt, 20).goAside(-4), gathered, 3);
        before = gathered;
    }
}

TEST(RingDragFrame, StaysTameWhereTheTangentPointsAtTheEye)
{
    for (const double beside : { 60.0, 90.0 }) {
        double before = RingDrag(0, beside).goAside(0);
        for (int tilt = 0; tilt <= 90; ++tilt) {
            const double gathered = RingDrag(tilt, beside).goAside(0);
            EXPECT_LT(std::abs(gathered), 45.0) << beside << ' ' << tilt;
            EXPECT_NEAR(gathered, before, 3.0) << beside << ' ' << tilt;
            before = gathered;
        }
    }
}

TEST(RingDragFrame, CirclingAFacingRingTurnsOnce)
{
    RingDrag drag(0, 0);
    double gathered = 0;
    for (int i = 1; i <= 360; ++i) {
        const double angle = i / kDegPerRad;
        gathered = drag.stepTo(drag.x * std::cos(angle) - drag.y * std::sin(angle),
                               drag.x * std::sin(angle) + drag.y * std::cos(angle));
    }
    EXPECT_NEAR(gathered, 360.0, 0.01);
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
