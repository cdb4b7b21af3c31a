// SPDX-License-Identifier: MIT
// The gizmo of planar projections: making and destroying it, hovering, an update while nothing has
// changed, and steps of a drag, nothing drawn: to a receiver that does nothing, and through the
// embedded editor into the material and back into the gizmo.
#include "benchmarks/TextureStage.h"
#include "manipulator/PlanarTextureManipulator.h"

#include <benchmark/benchmark.h>

namespace {

using nbec::manipulator::PlanarTextureManipulator;

/// The gizmo on the picture's own box.
struct Stage : nbec::manipulator::bench::TextureStage<PlanarTextureManipulator>
{
    Stage()
        : TextureStage("::changedPlanarManipulator", osg::ColorComponentSettings::PlanarProjection,
                       [](auto& bound, const osg::NodePtr& box) { bound.setNode(box); })
    { }
};

void createAndDestroy(benchmark::State& state)
{
    {
        const PlanarTextureManipulator first;
    }  // makes the geometry that all share
    for (auto _ : state) {
        PlanarTextureManipulator gizmo;
        benchmark::DoNotOptimize(gizmo);
    }
}

/// Wanders along the y arrow, so that every step is a hit at another place of one handle.
void hoverOnHandle(benchmark::State& state)
{
    Stage stage;
    const osg::Pnt2f from = stage.pixelOf(osg::Pnt3f(0, 1.15F, 0));
    const osg::Pnt2f to = stage.pixelOf(osg::Pnt3f(0, 1.5F, 0));
    constexpr int kSteps = 64;
    int step = 0;
    int hits = 0;
    for (auto _ : state) {
        const float t = static_cast<float>(step) / kSteps;
        hits += stage.hover(from + (to - from) * t) ? 1 : 0;
        step = (step + 1) % kSteps;
    }
    if (hits != static_cast<int>(state.iterations())) {
        state.SkipWithError("a step missed the handle");
    }
}

void hoverOffHandles(benchmark::State& state)
{
    Stage stage;
    constexpr int kSteps = 64;
    int step = 0;
    int hits = 0;
    for (auto _ : state) {
        hits += stage.hover(osg::Pnt2f(40.0F + static_cast<float>(step), 50.0F)) ? 1 : 0;
        step = (step + 1) % kSteps;
    }
    if (hits != 0) {
        state.SkipWithError("a step hit a handle");
    }
}

void updateUnchanged(benchmark::State& state)
{
    Stage stage;
    stage.gizmo.update(true);
    for (auto _ : state) {
        stage.gizmo.update(false);
    }
}

void dragSteps(benchmark::State& state, const char* receiver, const osg::Pnt3f& unit)
{
    Stage stage;
    stage.gizmo.setMessageReceiver(receiver);
    if (!stage.grab(unit)) {
        state.SkipWithError("the handle was missed");
        return;
    }
    std::int64_t handled = 0;
    for (auto _ : state) {
        handled += stage.step() ? 1 : 0;
    }
    if (handled != static_cast<std::int64_t>(state.iterations())) {
        state.SkipWithError("a step was refused");
    }
}

const osg::Pnt3f kArrow(1.9F, 0.F, 0.F);
const osg::Pnt3f kRing(0.6F, -0.8F, 0.F);
const osg::Pnt3f kScaleTab(2.5F, 0.F, 0.F);

}  // namespace

BENCHMARK(createAndDestroy)->Name("planar/create and destroy")->Unit(benchmark::kMicrosecond);
BENCHMARK(hoverOnHandle)->Name("planar/hover on a handle");
BENCHMARK(hoverOffHandles)->Name("planar/hover off the handles");
BENCHMARK(updateUnchanged)->Name("planar/update, nothing changed");
BENCHMARK_CAPTURE(dragSteps, translate, "nobody", kArrow)->Name("planar/drag, translate with text");
BENCHMARK_CAPTURE(dragSteps, rotate, "nobody", kRing)->Name("planar/drag, rotate with text");
BENCHMARK_CAPTURE(dragSteps, scale, "nobody", kScaleTab)->Name("planar/drag, scale with text");
BENCHMARK_CAPTURE(dragSteps, edited, "editor", kArrow)->Name("planar/drag, translate, edited");
