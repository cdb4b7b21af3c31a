// SPDX-License-Identifier: MIT
// The perspective match manipulator, nothing drawn: making and destroying it, hovering on and off
// its lines, steps of a drag within an open undo group, updates. Events take the whole path:
// pointer position, context, manipulator. Beside the step of a drag stands what the host does in
// it: setting the line and solving the camera.
#include "benchmarks/GizmoStage.h"
#include "manipulator/PerspectiveMatchManipulator.h"

#include <nbKernel/nbScenegraph.h>
#include <nbKernelServices/nbUndoService.h>
#include <nbKernelServices/nbdCameraNode.h>
#include <nbOpenSGUberCamera/UberCamera.h>

#include <benchmark/benchmark.h>

namespace {

using nbec::manipulator::PerspectiveMatchManipulator;
namespace bench = nbec::manipulator::bench;
using bench::createAndDestroy;

using bench::kHeightPx;
using bench::kWidthPx;

constexpr int kWayPx = 16;

/// The match of a camera at (5, 6, 7) that looks at the origin, its lines as the camera sees them.
struct Stage : bench::GizmoStage<PerspectiveMatchManipulator>
{
    Stage()
    {
        wayPx = kWayPx;
        look(osg::Pnt3f(5, 6, 7));
        const osg::UberCameraPtr camera = view.getUberCamera();
        cameraNode = nbdCameraNode(camera->getInternalParentNode().getFieldContainerId());
        cameraNode.layLinesAsSeen();
        begin();
        gizmo.setCamera(camera);
        const QPointF centre = cameraNode.getPerspectiveMatch().getXLine1().center();
        linePx = osg::Pnt2f(static_cast<float>(centre.x() * kHeightPx),
                            static_cast<float>(kHeightPx - 1 - centre.y() * kHeightPx));
    }

    nbdCameraNode cameraNode;
    osg::Pnt2f linePx;  ///< the middle of X line 1
};

void hoverOnLine(benchmark::State& state)
{
    Stage stage;
    bench::hoverAlong(state, stage, stage.linePx, stage.linePx);
}

void hoverOffLines(benchmark::State& state)
{
    Stage stage;
    bench::hoverAlong(state, stage, osg::Pnt2f(20, 20), osg::Pnt2f(20, 20), false);
}

void dragStep(benchmark::State& state)
{
    Stage stage;
    bench::dragSteps(state, stage, stage.linePx);
}

void hostStep(benchmark::State& state)
{
    Stage stage;
    stage.gizmo.setCamera(osg::NullFC);
    nbUndoService::the()->beginGroup();
    const nbdPerspectiveMatch match = stage.cameraNode.getPerspectiveMatch();
    const QLineF start = match.getXLine1();
    for (auto _ : state) {
        match.setXLine1(start.translated(static_cast<double>(stage.nextWay()) / kHeightPx, 0));
        stage.cameraNode.updateFromPerspectiveMatch();
    }
}

void updateUnchanged(benchmark::State& state)
{
    Stage stage;
    for (auto _ : state) {
        stage.gizmo.update(true);
    }
}

void updateAfterResize(benchmark::State& state)
{
    Stage stage;
    for (auto _ : state) {
        stage.view.resize(kWidthPx + static_cast<int>(stage.nextWay()), kHeightPx);
    }
}

}  // namespace

BENCHMARK_TEMPLATE(createAndDestroy, PerspectiveMatchManipulator)
    ->Name("match/create and destroy")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(hoverOnLine)->Name("match/hover on a line");
BENCHMARK(hoverOffLines)->Name("match/hover off the lines");
BENCHMARK(dragStep)->Name("match/step of a drag")->Unit(benchmark::kMicrosecond);
BENCHMARK(hostStep)->Name("match/the host's part of a step")->Unit(benchmark::kMicrosecond);
BENCHMARK(updateUnchanged)->Name("match/update, nothing changed");
BENCHMARK(updateAfterResize)->Name("match/update after a resize");
