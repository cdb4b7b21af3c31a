// SPDX-License-Identifier: MIT
#include "SceneImage.h"

#include <algorithm>

namespace nbrender {

namespace {

// Costs in those of copying the samples of a pixel: to fill a pixel with the background, and to
// draw a triangle of a model. With Mesa's software renderer a triangle costs as much as 150 pixels,
// with graphics cards as a few; these are cautious for the former and good enough for the latter.
constexpr double kFillCost = 0.5;
constexpr double kTriangleCost = 10.0;
/// What is drawn in each frame must cost this part of a copy of all pixels for a longer beginning
/// to be kept.
constexpr double kGrowth = 0.25;

/// What drawing steps costs; of more than `most` only that it is more.
double drawingCost(const FrameSteps& steps, std::size_t begin, std::size_t end,
                   const SceneImage::Costs& costs, double most)
{
    double sum = 0.0;
    for (std::size_t i = begin; i < end && sum <= most; ++i) {
        sum += kTriangleCost * static_cast<double>(costs.trianglesOf(steps[i]));
    }
    return sum;
}

}  // namespace

void SceneImage::setEnabled(bool on)
{
    isEnabled = on;
    if (!on) {
        forget();
    }
}

void SceneImage::forget()
{
    lastStamps.clear();
    keptSteps = 0;
    keptStamp = 0;
    refusedPixels = std::numeric_limits<std::size_t>::max();
}

std::size_t SceneImage::unchangedSteps(const FrameSteps& steps) const
{
    std::size_t count = 0;
    while (count < steps.size() && count < lastStamps.size() && !steps[count].transient &&
           steps[count].stamp == lastStamps[count]) {
        ++count;
    }
    return count;
}

std::size_t SceneImage::usableSteps(const FrameSteps& steps, const Costs& costs) const
{
    const bool isUsable = costs.hasCopy && keptSteps > 0 && keptSteps <= steps.size() &&
        steps[keptSteps - 1].stamp == keptStamp;
    return isUsable ? keptSteps : 0;
}

bool SceneImage::pays(const FrameSteps& steps, std::size_t count, const Costs& costs,
                      PixelBox touched)
{
    const auto frame = static_cast<double>(costs.framePixels);
    const double drawing = kFillCost * frame + drawingCost(steps, 0, count, costs, frame);
    for (std::size_t i = count; i < steps.size() && static_cast<double>(touched.area()) < frame;
         ++i) {
        touched.unite(costs.pixelsOf(steps[i]));
    }
    return static_cast<double>(touched.area()) <= drawing;
}

SceneImage::Plan SceneImage::plan(const FrameSteps& steps, const Costs& costs)
{
    Plan result;
    if (!isEnabled) {
        return result;
    }
    const std::size_t usable = usableSteps(steps, costs);
    if (usable > 0 && pays(steps, usable, costs, costs.difference)) {
        result.reused = usable;
    }
    const std::size_t unchanged =
        costs.framePixels < refusedPixels ? std::max(unchangedSteps(steps), costs.settledSteps) : 0;
    if (unchanged > usable) {
        const double growth = kGrowth * static_cast<double>(costs.framePixels);
        const bool isWorth =
            usable == 0 || drawingCost(steps, usable, unchanged, costs, growth) >= growth;
        result.kept = isWorth && pays(steps, unchanged, costs, PixelBox()) ? unchanged : 0;
    }
    lastStamps.clear();
    for (const FrameStep& step : steps) {
        lastStamps.push_back(step.stamp);
    }
    return result;
}

void SceneImage::kept(const FrameSteps& steps, const Plan& plan, std::size_t framePixels,
                      bool success)
{
    if (!success) {
        refusedPixels = std::min(refusedPixels, framePixels);
    }
    keptSteps = success ? plan.kept : 0;
    keptStamp = success ? steps[plan.kept - 1].stamp : 0;
}

}  // namespace nbrender
