// SPDX-License-Identifier: MIT
// The gizmos of triplanar, UV and tire projections: making and destroying one, hovering on a
// handle, an update while nothing has changed, and steps of a drag, nothing drawn: to a receiver
// that does nothing, and through the embedded editor into the material and back into the gizmo.
#include "benchmarks/TextureStage.h"
#include "tests/manipulator/support/AnchoredTraits.h"

#include <benchmark/benchmark.h>

namespace {

using nbec::manipulator::TireProjectionManipulator;
using nbec::manipulator::TriplanarTextureManipulator;
using nbec::manipulator::UVTextureManipulator;
using nbec::manipulator::test::AnchoredTraits;
namespace bench = nbec::manipulator::bench;

/// The gizmo at the box's origin, with all its handles.
template <class Gizmo>
struct Stage : bench::TextureStage<Gizmo>
{
    Stage()
        : bench::TextureStage<Gizmo>(AnchoredTraits<Gizmo>::kChanged, AnchoredTraits<Gizmo>::kType,
                                     [](Gizmo& bound, const osg::NodePtr& box) {
                                         bound.setAnchor(box, osg::Pnt3f(0, 0, 0));
                                         bound.activateUniversalManipulator();
                                     })
    {
        this->gizmo.update(true);
    }
};

/// Along the y arrow, so that every step is a hit at another place of one handle.
template <class Gizmo>
void hoverOnHandle(benchmark::State& state)
{
    Stage<Gizmo> stage;
    bench::hoverAlong(state, stage, stage.pixelOf(osg::Pnt3f(0, 1.2F, 0)),
                      stage.pixelOf(osg::Pnt3f(0, 1.4F, 0)));
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
    bench::dragSteps(state, stage, stage.pixelOf(unit));
}

template <class Gizmo>
void addAll(const char* name)
{
    const osg::Pnt3f arrow(0.F, 1.9F, 0.F);
    const std::string prefix(name);
    benchmark::RegisterBenchmark((prefix + "/create and destroy").c_str(),
                                 bench::createAndDestroy<Gizmo>)
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
