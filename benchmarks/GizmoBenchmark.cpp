// SPDX-License-Identifier: MIT
// The transform gizmo: making and destroying it, its memory, hovering on and off its handles, an
// update while nothing has changed. Hovering is the whole path of an event: pointer position,
// context, manipulator, picker.
#include "benchmarks/GizmoStage.h"
#include "manipulator/UniversalTransformManipulator2.h"

#include <nbKernel/nbScenegraph.h>
#include <nbOpenSGUberCamera/UberCamera.h>

#include <OpenSG/OSGSimpleGeometry.h>

#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <memory>

#include <malloc.h>

namespace {

using nbec::manipulator::UniversalTransformManipulator2;
namespace bench = nbec::manipulator::bench;
using bench::createAndDestroy;

/// A box with the universal gizmo over it, seen from (5, 6, 7).
struct Stage : bench::GizmoStage<UniversalTransformManipulator2>
{
    Stage()
    {
        look(osg::Pnt3f(5, 6, 7));
        const osg::NodePtr box = osg::makeBox(1, 1, 1, 1, 1, 1);
        nbScenegraph::getRootNode()->addChild(box);
        gizmo.setNode(box);
        gizmo.activateUniversalManipulator();
        begin();
    }
};

void memoryOfOne(benchmark::State& state)
{
    constexpr std::size_t kCount = 64;
    std::size_t bytes = 0;
    {
        const UniversalTransformManipulator2 first;
    }
    for (auto _ : state) {
        const std::size_t before = mallinfo2().uordblks;
        const auto gizmos = std::make_unique<std::array<UniversalTransformManipulator2, kCount>>();
        bytes = mallinfo2().uordblks - before;
        benchmark::DoNotOptimize(gizmos.get());
    }
    state.counters["bytes_each"] = static_cast<double>(bytes / kCount);
}

/// Along the y arrow beyond the scale box, so that every step is a hit at another place of one
/// handle.
void hoverOnHandle(benchmark::State& state)
{
    Stage stage;
    bench::hoverAlong(state, stage, stage.pixelOfWorld(osg::Pnt3f(0, 1.17F, 0)),
                      stage.pixelOfWorld(osg::Pnt3f(0, 1.35F, 0)));
}

void hoverOffHandles(benchmark::State& state)
{
    Stage stage;
    bench::hoverBeside(state, stage);
}

/// Between the handles: inside the gizmo's bounds on screen, but on none of them.
void hoverBetweenHandles(benchmark::State& state)
{
    Stage stage;
    const osg::Pnt2f between = stage.pixelOfWorld(osg::Pnt3f(0.62F, 0.62F, 0.62F));
    int hits = 0;
    for (auto _ : state) {
        hits += stage.hover(between) ? 1 : 0;
    }
    state.counters["hits"] = hits;
}

void updateUnchanged(benchmark::State& state)
{
    Stage stage;
    stage.gizmo.update(true);
    for (auto _ : state) {
        stage.gizmo.update(false);
    }
}

}  // namespace

BENCHMARK_TEMPLATE(createAndDestroy, UniversalTransformManipulator2)
    ->Name("gizmo/create and destroy")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(memoryOfOne)->Name("gizmo/memory")->Iterations(1);
BENCHMARK(hoverOnHandle)->Name("gizmo/hover on a handle");
BENCHMARK(hoverOffHandles)->Name("gizmo/hover off the handles");
BENCHMARK(hoverBetweenHandles)->Name("gizmo/hover between the handles");
BENCHMARK(updateUnchanged)->Name("gizmo/update, nothing changed");
