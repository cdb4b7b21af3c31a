// SPDX-License-Identifier: MIT
// The gizmo of planar projections: making and destroying it, hovering, an update while nothing has
// changed, and steps of a drag, nothing drawn: to a receiver that does nothing, and through the
// embedded editor into the material and back into the gizmo.
#include "benchmarks/TextureStage.h"
#include "manipulator/PlanarTextureManipulator.h"

#include <benchmark/benchmark.h>

namespace {

using nbec::manipulator::PlanarTextureManipulator;
namespace bench = nbec::manipulator::bench;
using bench::createAndDestroy;

/// The gizmo on the picture's own box.
struct Stage : bench::TextureStage<PlanarTextureManipulator>
{
    Stage()
        : TextureStage("::changedPlanarManipulator", osg::ColorComponentSettings::PlanarProjection,
                       [](auto& bound, const osg::NodePtr& box) { bound.setNode(box); })
    { }
};

/// Along the y arrow, so that every step is a hit at another place of one handle.
void hoverOnHandle(benchmark::State& state)
{
    Stage stage;
    bench::hoverAlong(state, stage, stage.pixelOf(osg::Pnt3f(0, 1.15F, 0)),
                      stage.pixelOf(osg::Pnt3f(0, 1.5F, 0)));
}

void hoverOffHandles(benchmark::State& state)
{
    Stage stage;
    bench::hoverBeside(state, stage);
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
    bench::dragSteps(state, stage, stage.pixelOf(unit));
}

const osg::Pnt3f kArrow(1.9F, 0.F, 0.F);
const osg::Pnt3f kRing(0.6F, -0.8F, 0.F);
const osg::Pnt3f kScaleTab(2.5F, 0.F, 0.F);

}  // namespace

BENCHMARK_TEMPLATE(createAndDestroy, PlanarTextureManipulator)
    ->Name("planar/create and destroy")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(hoverOnHandle)->Name("planar/hover on a handle");
BENCHMARK(hoverOffHandles)->Name("planar/hover off the handles");
BENCHMARK(updateUnchanged)->Name("planar/update, nothing changed");
BENCHMARK_CAPTURE(dragSteps, translate, "nobody", kArrow)->Name("planar/drag, translate with text");
BENCHMARK_CAPTURE(dragSteps, rotate, "nobody", kRing)->Name("planar/drag, rotate with text");
BENCHMARK_CAPTURE(dragSteps, scale, "nobody", kScaleTab)->Name("planar/drag, scale with text");
BENCHMARK_CAPTURE(dragSteps, edited, "editor", kArrow)->Name("planar/drag, translate, edited");
