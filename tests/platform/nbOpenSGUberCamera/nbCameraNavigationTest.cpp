// SPDX-License-Identifier: MIT
#include <nbOpenSGUberCamera/nbCameraNavigation.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

using osg::Pnt2f;
using osg::Pnt3f;
using osg::Vec3f;
using Navigation = nbCameraNavigation;
using View = nbCameraNavigation::StandardView;

namespace {

constexpr int kWidth = 800;
constexpr int kHeight = 600;
constexpr float kTolerance = 1e-5f;
constexpr float kPixelTolerance = 1e-3f;
const Vec3f kX(1.f, 0.f, 0.f);
const Vec3f kY(0.f, 1.f, 0.f);
const Vec3f kZ(0.f, 0.f, 1.f);
constexpr float kNan = std::numeric_limits<float>::quiet_NaN();

/// At (0, 0, 10), looking at the pivot in the origin; 90 degrees, so the view is 20 high there.
CameraPose frontPose()
{
    CameraPose pose;
    pose.from = Pnt3f(0.f, 0.f, 10.f);
    pose.at = Pnt3f(0.f, 0.f, 0.f);
    pose.pivot = pose.at;
    pose.fovDeg = 90.f;
    return pose;
}

/// Poses all around, near the origin so that a float's digits do not count; every second one flat,
/// every third one with z up, the pivot before the eye but beside the view axis.
CameraPose randomPose(int number)
{
    std::mt19937 random(static_cast<unsigned>(number));
    std::uniform_real_distribution<float> unit(-1.f, 1.f);
    CameraPose pose;
    pose.from = Pnt3f(unit(random) * 4.f, unit(random) * 4.f, unit(random) * 4.f);
    pose.at = pose.from + Vec3f(unit(random), unit(random), unit(random) + 1.5f) * 2.f;
    pose.up = Vec3f(unit(random) * 0.3f, unit(random) + 1.5f, 0.f);
    pose.fovDeg = 50.f + 30.f * unit(random);
    pose.orthographic = number % 2 == 1;
    pose.zUp = number % 3 == 1;
    const Navigation::Axes axes = Navigation::axes(pose);
    pose.pivot = pose.from - axes.back * (3.f + unit(random)) + axes.right * unit(random);
    return pose;
}

constexpr int kPoseCount = 200;

Pnt2f seenAt(const CameraPose& pose, const Pnt3f& point)
{
    Pnt2f pixel(-1e9f, -1e9f);
    EXPECT_TRUE(Navigation::project(pose, point, kWidth, kHeight, pixel));
    return pixel;
}

void expectSamePixel(const Pnt2f& actual, const Pnt2f& expected, int number)
{
    EXPECT_NEAR(actual.x(), expected.x(), kPixelTolerance) << "pose " << number;
    EXPECT_NEAR(actual.y(), expected.y(), kPixelTolerance) << "pose " << number;
}

testing::AssertionResult isNear(const Pnt3f& actual, const Pnt3f& expected,
                                float tolerance = kTolerance)
{
    if (actual.equals(expected, tolerance)) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << '(' << actual << ") instead of (" << expected << ')';
}

float elevationSine(const CameraPose& pose)
{
    return Navigation::axes(pose).back.dot(Navigation::worldUp(pose));
}

}  // namespace

TEST(nbCameraNavigation, OrbitTurnsAboutWorldUpAndRises)
{
    // 600 pixels are half a turn: 300 to the right take the eye a quarter to the left.
    EXPECT_TRUE(
        isNear(Navigation::orbit(frontPose(), 300.f, 0.f, kHeight).from, Pnt3f(-10.f, 0.f, 0.f)));
    // 150 down lift it by 45 degrees.
    const float side = 10.f * std::sqrt(0.5f);
    EXPECT_TRUE(
        isNear(Navigation::orbit(frontPose(), 0.f, 150.f, kHeight).from, Pnt3f(0.f, side, side)));

    CameraPose zUp = frontPose();
    zUp.zUp = true;
    zUp = Navigation::standardView(zUp, View::Front);
    EXPECT_TRUE(isNear(Navigation::orbit(zUp, 300.f, 0.f, kHeight).from, Pnt3f(-10.f, 0.f, 0.f)));
    EXPECT_TRUE(isNear(Navigation::orbit(zUp, 0.f, 150.f, kHeight).from, Pnt3f(0.f, -side, side)));
}

TEST(nbCameraNavigation, OrbitNeverTurnsOverThePole)
{
    const float steepest = std::sin(Navigation::kSteepestElevationDeg * osg::Pi / 180.f);
    for (const float dy : { 1e4f, -1e4f }) {
        const CameraPose pose = Navigation::orbit(frontPose(), 17.f, dy, kHeight);
        EXPECT_NEAR(std::abs(elevationSine(pose)), steepest, 1e-6f);
        EXPECT_GT(Navigation::axes(pose).up.y(), 0.f);

        const CameraPose back =
            Navigation::orbit(pose, -17.f, -std::copysign(299.6667f, dy), kHeight);
        EXPECT_NEAR(elevationSine(back), 0.f, 1e-3f) << "the way back is free";
        EXPECT_GT(Navigation::axes(back).up.y(), 0.99f);
    }

    const CameraPose top = Navigation::standardView(frontPose(), View::Top);
    EXPECT_TRUE(isNear(Navigation::orbit(top, 0.f, 50.f, kHeight).from, top.from));
    EXPECT_TRUE(isNear(Navigation::orbit(top, 0.f, -300.f, kHeight).from, Pnt3f(0.f, 0.f, 10.f)));
    const CameraPose spun = Navigation::orbit(top, 300.f, 0.f, kHeight);
    EXPECT_TRUE(isNear(spun.from, top.from));
    EXPECT_TRUE(Navigation::axes(spun).right.equals(Vec3f(0.f, 0.f, 1.f), kTolerance));
}

TEST(nbCameraNavigation, ZoomAndSwitchOfTheProjectionLeaveTheTargetWhereItIsSeen)
{
    for (int number = 0; number < kPoseCount; ++number) {
        const CameraPose start = randomPose(number);
        const Navigation::Axes axes = Navigation::axes(start);
        const float depth =
            1.f + 0.02f * static_cast<float>(number);  // before and behind the pivot
        const Pnt3f target = start.from - axes.back * depth + axes.up * 0.4f - axes.right * 0.3f;

        const CameraPose moved = Navigation::zoom(start, 0.7f, target);

        expectSamePixel(seenAt(moved, target), seenAt(start, target), number);
        if (start.orthographic) {
            EXPECT_NEAR(Navigation::viewHeight(moved, 0.f),
                        0.7f * Navigation::viewHeight(start, 0.f), kTolerance);
        }

        const Pnt3f beside = start.pivot + axes.right * 0.4f - axes.up * 0.2f;
        const CameraPose other = Navigation::withProjection(start, !start.orthographic);
        EXPECT_NE(other.orthographic, start.orthographic);
        expectSamePixel(seenAt(other, beside), seenAt(start, beside), number);
        const CameraPose again = Navigation::withProjection(other, start.orthographic);
        expectSamePixel(seenAt(again, beside), seenAt(start, beside), number);
    }
}

TEST(nbCameraNavigation, FrameFillsTheViewUpToItsMargin)
{
    // tan(fov / 2) is 1: the near corner at z = 1 plus its height 1, times 1.1.
    const Vec3f cube(1.f, 1.f, 1.f);

    const std::tuple<const char*, bool, float, Vec3f, float> rows[] = {
        { "cube", false, 1.f, cube, 2.2f },
        { "cube in a wide view", false, 3.f, cube, 2.2f },
        { "cube in a narrow view", false, 0.5f, cube, 3.3f },
        { "deep", false, 1.f, cube + 4.f * kZ, 6.6f },
        { "cube, flat view", true, 1.f, cube, 1.1f },
        { "cube, narrow flat view", true, 0.5f, cube, 2.2f },
        { "unusable aspect", false, kNan, cube, 2.2f },
        { "a point", false, 1.f, {}, 10.f },
    };

    const Pnt3f centre(3.f, -4.f, 5.f);
    for (const auto& [name, orthographic, aspect, halfSize, distance] : rows) {
        CameraPose pose = frontPose();
        pose.orthographic = orthographic;
        const CameraPose framed =
            Navigation::frame(pose, centre - halfSize, centre + halfSize, aspect);
        EXPECT_TRUE(isNear(framed.at, centre)) << name;
        EXPECT_TRUE(isNear(framed.pivot, centre)) << name;
        EXPECT_TRUE(isNear(framed.from, centre + kZ * distance)) << name;
    }
}

TEST(nbCameraNavigation, StandardViews)
{
    const Vec3f corner = (kX + kZ) * std::sqrt(0.5f);
    const Vec3f cornerZUp = (kX - kY) * std::sqrt(0.5f);
    const float cosine = std::sqrt(0.75f);  // of 30 degrees

    const std::tuple<const char*, View, bool, Vec3f, Vec3f> rows[] = {
        { "front", View::Front, false, kZ, kY },
        { "back", View::Back, false, -kZ, kY },
        { "right", View::Right, false, kX, kY },
        { "top", View::Top, false, kY, -kZ },
        { "bottom", View::Bottom, false, -kY, kZ },
        { "corner", View::ThreeQuarter, false, corner * cosine + kY * 0.5f,
          kY * cosine - corner * 0.5f },
        { "front, z up", View::Front, true, -kY, kZ },
        { "left, z up", View::Left, true, -kX, kZ },
        { "top, z up", View::Top, true, kZ, kY },
        { "bottom, z up", View::Bottom, true, -kZ, -kY },
        { "corner, z up", View::ThreeQuarter, true, cornerZUp * cosine + kZ * 0.5f,
          kZ * cosine - cornerZUp * 0.5f },
    };

    for (const auto& [name, view, zUp, back, up] : rows) {
        CameraPose pose = frontPose();
        pose.zUp = zUp;
        pose.pivot = Pnt3f(1.f, 2.f, 10.f);  // sqrt(5) from the eye
        const CameraPose moved = Navigation::standardView(pose, view);
        const Navigation::Axes axes = Navigation::axes(moved);
        EXPECT_TRUE(isNear(moved.from, pose.pivot + back * std::sqrt(5.f))) << name;
        EXPECT_TRUE(axes.back.equals(back, kTolerance)) << name << ": " << axes.back;
        EXPECT_TRUE(axes.up.equals(up, kTolerance)) << name << ": " << axes.up;
    }
}
