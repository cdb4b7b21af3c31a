// SPDX-License-Identifier: MIT
// The scene-plate manipulator: making and destroying it, hovering its handles, an update while
// nothing has changed, a step of a drag. A step is the whole way: pointer position, context,
// manipulator, message, module with an open group of undo, plate, handles; nothing is drawn.
#include "benchmarks/GizmoStage.h"
#include "manipulator/nbSceneplateManipulator.h"

#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbOpenSGUtils/nbEdit.h>
#include <nbSceneplateModule/nbSceneplateModule.h>

#include <benchmark/benchmark.h>

#include <cstdint>
#include <vector>

namespace {

namespace bench = nbec::manipulator::bench;
using bench::createAndDestroy;

const osg::Pnt2f kCentrePx(640, 400);

/// Plates of 320 x 200 pixels at the centre of the view, all selected.
class Stage : public bench::GizmoStage<nbSceneplateManipulator>
{
public:
    explicit Stage(std::int64_t count)
    {
        std::vector<osg::NodePtr> nodes;
        for (std::int64_t i = 0; i < count; ++i) {
            osg::SceneplatePtr plate;
            nodes.push_back(osg::makeCoredNode<osg::Sceneplate>(&plate));
            const nbEdit edit(plate, osg::FieldBits::AllFields);
            plate->setSize(osg::Vec2f(0.4F, 0.25F));
            nbScenegraph::getSceneplateRoot()->addChild(nodes.back());
        }
        module.select(nodes, "select");
        gizmo.setNodes(nodes);
        begin();
    }

    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    ~Stage() { finish(); }

private:
    nbSceneplateModule module;
};

void hoverOnBody(benchmark::State& state)
{
    Stage stage(1);
    bench::hoverAlong(state, stage, kCentrePx + osg::Vec2f(0, 20.F),
                      kCentrePx + osg::Vec2f(64.F, 20.F));
}

void updateUnchanged(benchmark::State& state)
{
    Stage stage(1);
    stage.gizmo.update(true);
    for (auto _ : state) {
        stage.gizmo.update(false);
    }
}

/// @param handle  where it is grabbed, from the centre of the frame, pixels
void dragStep(benchmark::State& state, const osg::Vec2f& handle)
{
    Stage stage(state.range(0));
    bench::dragSteps(state, stage, kCentrePx + handle);
}

}  // namespace

BENCHMARK_TEMPLATE(createAndDestroy, nbSceneplateManipulator)
    ->Name("plates/create and destroy")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(hoverOnBody)->Name("plates/hover on the body");
BENCHMARK(updateUnchanged)->Name("plates/update, nothing changed");
BENCHMARK_CAPTURE(dragStep, move, osg::Vec2f(0, 20))->Name("plates/move")->Arg(1)->Arg(100);
BENCHMARK_CAPTURE(dragStep, turn, osg::Vec2f(0, -132))->Name("plates/turn")->Arg(1)->Arg(100);
BENCHMARK_CAPTURE(dragStep, scale, osg::Vec2f(160, -100))->Name("plates/scale")->Arg(1)->Arg(100);
