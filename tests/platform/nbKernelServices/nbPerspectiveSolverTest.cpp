// SPDX-License-Identifier: MIT
#include <nbKernelServices/nbPerspectiveSolver.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include <tests/platform/nbKernelServices/PhotographStudio.h>

namespace {

using namespace matchtest;
using osg::Vec3d;

/// What a picture of known lines must give back, degrees.
constexpr double kExactDeg = 0.01;
/// Half a pixel in a view of 1000 pixels.
constexpr double kHalfPixel = 0.0005;

/// A camera without roll: about its right, then about the world's y.
PerspectiveAim uprightAim(double pitchRad, double yawRad)
{
    const PerspectiveAim aim = turned(PerspectiveAim(), Vec3d(1.0, 0.0, 0.0), pitchRad);
    return turned(aim, Vec3d(0.0, 1.0, 0.0), yawRad);
}

/// A camera that sees all three axes well: from above, from the right and the front.
PerspectiveProblem threeQuarterProblem()
{
    PerspectiveProblem problem;
    problem.width = 1.5;
    problem.start = uprightAim(-0.5, 0.7);
    problem.start.focalLength = 1.2;
    layEdges(problem, problem.start);
    return problem;
}

TEST(nbPerspectiveSolver, GivesTheCameraOfExactLinesBack)
{
    for (const TypeRow& row : kTypeRows) {
        SCOPED_TRACE(row.name);
        double worstAngle = 0.0;
        double worstFov = 0.0;
        forRandomCameras(row, 500, [&](const auto& problem, const auto& aim, Studio&) {
            const PerspectiveSolution solution = nbPerspectiveSolver::solve(problem);
            ASSERT_EQ(solution.result, nbCameraTypes::Solved);
            worstAngle = std::max(worstAngle, angleDeg(solution.aim, aim));
            worstFov = std::max(
                worstFov,
                std::abs(fovDeg(solution.aim, problem.height) - fovDeg(aim, problem.height)));
        });
        EXPECT_LT(worstAngle, 1e-9);
        EXPECT_LT(worstFov, 1e-9);
    }
}

TEST(nbPerspectiveSolver, ErrorsAreAsLargeAsTheQualitySays)
{
    for (const TypeRow& row : kTypeRows) {
        SCOPED_TRACE(row.name);
        std::array<double, 2> squares {};  // of errors in units of what was told
        constexpr int kCount = 400;
        forRandomCameras(row, kCount, [&](auto problem, const auto& aim, Studio& studio) {
            problem.reference = aim;
            for (QLineF& line : problem.lines) {
                line = studio.trembling(line, kHalfPixel / 10.0);
            }
            const PerspectiveSolution solution = nbPerspectiveSolver::solve(problem);
            ASSERT_EQ(solution.result, nbCameraTypes::Solved);
            PerspectiveProblem exact = problem;
            layEdges(exact, aim);
            const PerspectiveQuality told = nbPerspectiveSolver::judge(
                exact, { nbCameraTypes::Solved, aim }, kHalfPixel / 10.0);
            squares[0] += std::pow(angleDeg(solution.aim, aim) / told.rotationDeg, 2);
            squares[1] += std::pow(
                (fovDeg(solution.aim, problem.height) - fovDeg(aim, problem.height)) / told.fovDeg,
                2);
            EXPECT_LT(told.residuals[0], 1e-12);
        });
        for (const double square : squares) {
            EXPECT_NEAR(std::sqrt(square / kCount), 1.0, 0.12);
        }
    }
}

TEST(nbPerspectiveSolver, QualityNamesTheLineThatIsOffAndTheAxisThatSaysLittle)
{
    PerspectiveProblem problem = threeQuarterProblem();
    problem.lines[3].setP1(problem.lines[3].p1() + QPointF(0.0, 0.01));
    const PerspectiveQuality off =
        nbPerspectiveSolver::judge(problem, nbPerspectiveSolver::solve(problem), kHalfPixel);
    EXPECT_EQ(std::max_element(off.residuals.begin(), off.residuals.end()), &off.residuals[3]);
    EXPECT_EQ(off.doubt, PerspectiveDoubt::NoDoubt);

    const std::tuple<double, double, PerspectiveDoubt, int> rows[] = {
        { 0.0, 0.6, PerspectiveDoubt::ParallelLines, 1 },
        { -0.01, 0.6, PerspectiveDoubt::AlmostParallelLines, 1 },
        { -0.6, 0.01, PerspectiveDoubt::AlmostParallelLines, 0 },
    };
    for (const auto& [pitchRad, yawRad, doubt, axis] : rows) {
        const bool isLevel = axis == 1;
        const PerspectiveAim aim = uprightAim(pitchRad, yawRad);
        problem.type = isLevel ? nbCameraTypes::XYLines : nbCameraTypes::XZLines;
        problem.start = aim;
        layEdges(problem, aim);
        const PerspectiveQuality quality =
            nbPerspectiveSolver::judge(problem, nbPerspectiveSolver::solve(problem), kHalfPixel);
        EXPECT_EQ(quality.doubt, doubt) << pitchRad;
        EXPECT_EQ(quality.doubtfulAxis, axis) << pitchRad;
    }
}

TEST(nbPerspectiveSolver, ParallelLinesKeepTheFieldOfViewUnlessTwoOthersMeet)
{
    const std::tuple<const char*, nbCameraTypes::VanishingLinesType, double, double, bool>
        rows[] = {
            { "level view, all axes: x and z give it", nbCameraTypes::XYZLines, 0.0, 0.6, true },
            { "level view, x and y", nbCameraTypes::XYLines, 0.0, 0.6, false },
            { "level view, y and z", nbCameraTypes::YZLines, 0.0, -0.9, false },
            { "along z, x and y both parallel", nbCameraTypes::XYLines, 0.0, 0.0, false },
            { "along z from above, x parallel", nbCameraTypes::XYZLines, -0.4, 0.0, true },
            { "along z from above, x and z", nbCameraTypes::XZLines, -0.4, 0.0, false },
        };
    for (const auto& [name, type, pitchRad, yawRad, isFovFound] : rows) {
        SCOPED_TRACE(name);
        PerspectiveAim aim = uprightAim(pitchRad, yawRad);
        aim.focalLength = 1.1;
        PerspectiveProblem problem;
        problem.type = type;
        problem.width = 1.4;
        layEdges(problem, aim);
        for (const double tremble : { 0.0, 1e-9, 1e-7 }) {
            problem.lines[2].setP2(problem.lines[2].p2() + QPointF(tremble, 0.0));
            problem.start = turned(aim, Vec3d(0.6, 0.0, 0.8), 0.2);
            problem.start.focalLength = isFovFound ? 2.0 : aim.focalLength;

            const PerspectiveSolution solution = nbPerspectiveSolver::solve(problem);

            EXPECT_EQ(solution.result,
                      isFovFound ? nbCameraTypes::Solved : nbCameraTypes::SolvedWithKeptFov);
            EXPECT_LT(angleDeg(solution.aim, aim), kExactDeg);
            EXPECT_NEAR(fovDeg(solution.aim, 1.0), fovDeg(aim, 1.0), kExactDeg);
        }
    }
}

TEST(nbPerspectiveSolver, RefusesLinesThatSayNothingAndLeavesTheCamera)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const PerspectiveProblem good = threeQuarterProblem();
    const QLineF first = good.lines[0];
    const std::tuple<const char*, int, QLineF, nbCameraTypes::MatchResult> rows[] = {
        { "no length", 3, QLineF(0.4, 0.4, 0.4, 0.4), nbCameraTypes::UnusableLine },
        { "not a number", 5, QLineF(0.4, nan, 0.7, 0.4), nbCameraTypes::UnusableLine },
        { "out of all bounds", 2, QLineF(0.4, 0.1, 1e30, 0.4), nbCameraTypes::UnusableLine },
        { "the same line twice", 1, first, nbCameraTypes::IdenticalLines },
        { "the same the other way round", 1, QLineF(first.p2(), first.p1()),
          nbCameraTypes::IdenticalLines },
        { "on the other's extension", 1, QLineF(first.p2(), first.pointAt(1.7)),
          nbCameraTypes::IdenticalLines },
    };
    for (const auto& [name, line, value, result] : rows) {
        SCOPED_TRACE(name);
        PerspectiveProblem problem = good;
        problem.lines[line] = value;

        const PerspectiveSolution solution = nbPerspectiveSolver::solve(problem);

        EXPECT_EQ(solution.result, result);
        EXPECT_EQ(solution.aim.focalLength, problem.start.focalLength);
        EXPECT_EQ(angleDeg(solution.aim, problem.start), 0.0);
    }
    PerspectiveProblem twice = good;
    twice.lines[2] = twice.lines[4];
    twice.lines[3] = twice.lines[5];
    EXPECT_EQ(nbPerspectiveSolver::solve(twice).result, nbCameraTypes::ContradictingLines);
    PerspectiveProblem unused = good;
    unused.type = nbCameraTypes::XZLines;
    unused.lines[2] = QLineF();
    EXPECT_EQ(nbPerspectiveSolver::solve(unused).result, nbCameraTypes::Solved);
}

TEST(nbPerspectiveSolver, TakesTheSignsNearestToTheCameraAsItStands)
{
    PerspectiveProblem problem = threeQuarterProblem();
    std::swap(problem.lines[0], problem.lines[1]);
    problem.lines[4] = QLineF(problem.lines[4].p2(), problem.lines[4].p1());
    const PerspectiveAim aim = problem.start;
    // Half turns about the world's axes map each axis to itself or its opposite: the same lines.
    const Vec3d axes[] = { Vec3d(1.0, 0.0, 0.0), Vec3d(0.0, 1.0, 0.0), Vec3d(0.0, 0.0, 1.0) };
    std::vector<PerspectiveAim> equals { aim };
    for (const Vec3d& axis : axes) {
        equals.push_back(turned(aim, axis, kPi));
    }
    Studio studio(5);
    for (const auto type : { nbCameraTypes::XYZLines, nbCameraTypes::XYLines,
                             nbCameraTypes::XZLines, nbCameraTypes::YZLines }) {
        for (const PerspectiveAim& equal : equals) {
            problem.type = type;
            problem.start = turned(equal, studio.direction(), 0.6);
            const PerspectiveSolution solution = nbPerspectiveSolver::solve(problem);
            EXPECT_LT(angleDeg(solution.aim, equal), 1e-4) << "type " << type;
        }
    }
}

TEST(nbPerspectiveSolver, NoTwoEndsOfLaidLinesShareASpot)
{
    Studio studio(3);
    for (int i = 0; i < 500; ++i) {
        const CameraPose pose = nbPerspectiveSolver::turned(CameraPose(), studio.camera(), 1.0);
        std::vector<QPointF> ends;
        for (const QLineF& line : nbPerspectiveSolver::linesOf(pose, 1.6, 1.0)) {
            for (const QPointF& end : { line.p1(), line.p2() }) {
                for (const QPointF& other : ends) {
                    EXPECT_GT(QLineF(end, other).length(), 0.02) << i;
                }
                ends.push_back(end);
            }
        }
    }
}

}  // namespace
