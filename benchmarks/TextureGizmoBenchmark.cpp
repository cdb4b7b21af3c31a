// SPDX-License-Identifier: MIT
// The gizmos of triplanar, UV and tire projections: making and destroying one, hovering on a
// handle, an update while nothing has changed, and steps of a drag, nothing drawn: to a receiver
// that does nothing, and through the embedded editor into the material and back into the gizmo.
#include "benchmarks/TextureStage.h"
#include "manipulator/TireProjectionManipulator.h"
#include "manipulator/TriplanarTextureManipulator.h"
#include "manipulator/UVTextureManipulator.h"

#include <benchmark/benchmark.h>

namespace {

using nbec::manipulator::TireProjectionManipulator;
using nbec::manipulator::TriplanarTextureManipulator;
using nbec::manipulator::UVTextureManipulator;
using Settings = osg::ColorComponentSettings;

template <class Gizmo>
struct Traits;

template <>
struct Traits<TriplanarTextureManipulator>
{
    static constexpr const char* kChanged = "::changedTriplanarManipulator";
    static constexpr auto kType = Settings::TriplanarProjection;
};

template <>
struct Traits<UVTextureManipulator>
{
    static constexpr const char* kChanged = "::changedUVManipulator";
    static constexpr auto kType = Settings::UVProjection;
};

template <>
struct Traits<TireProjectionManipulator>
{
    static constexpr const char* kChanged = "::changedTireManipulator";
    static constexpr auto kType = Settings::TireProjection;
};

/// The gizmo at the box's origin, with all its handles.
template <class Gizmo>
struct Stage : nbec::manipulator::bench::TextureStage<Gizmo>
{
    Stage()
        : nbec::manipulator::bench::TextureStage<Gizmo>(
              Traits<Gizmo>::kChanged, Traits<Gizmo>::kType,
              [](Gizmo& bound, const osg::NodePtr& box) {
                  bound.setAnchor(box, osg::Pnt3f(0, 0, 0));
                  bound.activateUniversalManipulator();
              })
    {
        this->gizmo.update(true);
    }
};

template <class Gizmo>
void createAndDestroy(benchmark::State& state)
{
    {
        const Gizmo first;
    }  // makes the geometry that all share
    for (auto _ : state) {
        Gizmo gizmo;
        benchmark::DoNotOptimize(gizmo);
    }
}

/// Wanders along the y arrow, so that every step is a hit at another place of one handle.
template <class Gizmo>
void hoverOnHandle(benchmark::State& state)
{
    Stage<Gizmo> stage;
    const osg::Pnt2f from = stage.pixelOf(osg::Pnt3f(0, 1.2F, 0));
    const osg::Pnt2f to = stage.pixelOf(osg::Pnt3f(0, 1.4F, 0));
    constexpr int kSteps = 64;
    int step = 0;
    int hits = 0;
    for (auto _ : state) {
        hits += stage.hover(from + (to - from) * (static_cast<float>(step) / kSteps)) ? 1 : 0;
        step = (step + 1) % kSteps;
    }
    if (hits != static_cast<int>(state.iterations())) {
        state.SkipWithError("a step missed the handle");
    }
}

template <class Gizmo>
void updateUnchanged(benchmark::State& state)
{
    Stage<Gizmo> stage;
    for (auto _ : state) {
        stage.gizmo.update(false);
    }
}

template <class Gizmo>
void dragSteps(benchmark::State& state, const char* receiver, const osg::Pnt3f& unit)
{
    Stage<Gizmo> stage;
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

template <class Gizmo>
void addAll(const char* name)
{
    const osg::Pnt3f arrow(0.F, 1.9F, 0.F);
    const std::string prefix(name);
    benchmark::RegisterBenchmark((prefix + "/create and destroy").c_str(), createAndDestroy<Gizmo>)
        ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark((prefix + "/hover on a handle").c_str(), hoverOnHandle<Gizmo>);
    benchmark::RegisterBenchmark((prefix + "/update, nothing changed").c_str(),
                                 updateUnchanged<Gizmo>);
    benchmark::RegisterBenchmark((prefix + "/drag, translate").c_str(), dragSteps<Gizmo>, "nobody",
                                 arrow);
    benchmark::RegisterBenchmark((prefix + "/drag, translate, edited").c_str(), dragSteps<Gizmo>,
                                 "editor", arrow);
}

const bool isAdded = [] {
    addAll<TriplanarTextureManipulator>("triplanar");
    addAll<UVTextureManipulator>("uv");
    addAll<TireProjectionManipulator>("tire");
    return true;
}();

}  // namespace
