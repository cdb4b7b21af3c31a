// SPDX-License-Identifier: MIT
#include <nbKernelServices/nbPerspectiveSolver.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

#include <tests/platform/nbKernelServices/PhotographStudio.h>

/// Prints the table of docs/match.md: how far cameras that were solved from lines with ends off by
/// normal deviations are from the true ones, beside the first-order bound.

namespace {

using namespace matchtest;

constexpr int kPhotographs = 200;
constexpr double kPixel = 1.0 / 1000.0;  // of a view 1000 pixels high

struct View
{
    const char* name;
    double least[2];  ///< yaw and pitch below the horizon, degrees
    double most[2];
};

constexpr View kViews[] = {
    { "three-quarter", { 25.0, 15.0 }, { 65.0, 40.0 } },
    { "nearly level", { 25.0, 2.0 }, { 65.0, 6.0 } },
    { "nearly along an axis", { 3.0, 15.0 }, { 10.0, 40.0 } },
};

struct Type
{
    const char* name;
    nbCameraTypes::VanishingLinesType type;
};

constexpr Type kTypes[] = {
    { "X, Y, Z", nbCameraTypes::XYZLines },
    { "X, Z", nbCameraTypes::XZLines },
    { "X, Y", nbCameraTypes::XYLines },
    { "Y, Z", nbCameraTypes::YZLines },
};

double rootMeanSquare(const std::vector<double>& values)
{
    double sum = 0.0;
    for (const double value : values) {
        sum += value * value;
    }
    return values.empty() ? 0.0 : std::sqrt(sum / static_cast<double>(values.size()));
}

double median(std::vector<double> values)
{
    if (values.empty()) {
        return 0.0;
    }
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}

PerspectiveAim cameraOf(const View& view, Studio& studio)
{
    constexpr double kRadPerDeg = kPi / 180.0;
    const double yaw = studio.between(view.least[0], view.most[0]) * kRadPerDeg;
    const double pitch = studio.between(view.least[1], view.most[1]) * kRadPerDeg;
    PerspectiveAim aim = turned(PerspectiveAim(), Vec3d(1.0, 0.0, 0.0), -pitch);
    aim = turned(aim, Vec3d(0.0, 1.0, 0.0), yaw);
    aim.focalLength = 0.5 / std::tan(0.5 * studio.between(30.0, 70.0) * kRadPerDeg);
    return aim;
}

void printRow(const Type& type, const View& view, double noisePx)
{
    Studio studio(23);
    std::vector<double> angles;
    std::vector<double> angleBounds;
    std::vector<double> fovs;
    std::vector<double> fovBounds;
    int flips = 0;
    for (int i = 0; i < kPhotographs; ++i) {
        const PerspectiveAim aim = cameraOf(view, studio);
        PerspectiveProblem problem;
        problem.width = 1.5;
        problem.type = type.type;
        problem.start = aim;
        layEdges(problem, aim);
        const PerspectiveQuality bound =
            nbPerspectiveSolver::judge(problem, { nbCameraTypes::Solved, aim }, noisePx * kPixel);
        for (QLineF& line : problem.lines) {
            line = studio.trembling(line, noisePx * kPixel);
        }
        problem.start = turned(aim, studio.direction(), studio.between(0.0, 0.4));
        const PerspectiveSolution solution = nbPerspectiveSolver::solve(problem);
        const double angle = angleDeg(solution.aim, aim);
        constexpr double kFlipDeg = 45.0;
        flips += angle > kFlipDeg ? 1 : 0;
        if (solution.result == nbCameraTypes::Solved) {
            angles.push_back(angle);
            angleBounds.push_back(bound.rotationDeg);
            fovs.push_back(std::abs(fovDeg(solution.aim, 1.0) - fovDeg(aim, 1.0)));
            fovBounds.push_back(bound.fovDeg);
        }
    }
    std::printf("| %s | %s | %.1f | %zu | %.2f (%.2f) | %.2f | %.2f (%.2f) | %.2f | %d |\n",
                type.name, view.name, noisePx, angles.size(), rootMeanSquare(angles),
                median(angles), rootMeanSquare(angleBounds), rootMeanSquare(fovs), median(fovs),
                rootMeanSquare(fovBounds), flips);
}

}  // namespace

int main()
{
    std::printf(
        "| lines | view | px | solved | orientation | bound | field of view | bound | flips |\n"
        "|---|---|---|---|---|---|---|---|---|\n");
    for (const Type& type : kTypes) {
        for (const View& view : kViews) {
            for (const double noisePx : { 0.0, 0.5, 1.0 }) {
                printRow(type, view, noisePx);
            }
        }
    }
    return 0;
}
